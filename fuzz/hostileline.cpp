#include "hostileline.h"

#include "memorydevice.h"
#include "raisewire.h"

#include "adapterfactory.h"

#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>
#include <errno.h>

// Stands in for the C library's own in the whole program: a version text must reach the shell as data, so what would
// be run is looked at and not run. libFuzzer alone may run this program once more, to merge inputs.
extern "C" int system(const char *command)
{
    if (QByteArray(command).startsWith(program_invocation_name)) {
        const auto real = reinterpret_cast<int (*)(const char *)>(dlsym(RTLD_NEXT, "system"));
        return real ? real(command) : -1;
    }
    if (!HostileLine::isVersionCommand(command)) {
        fprintf(stderr, "not a version text, but a command: %s\n", command);
        abort();
    }
    return 0;
}

namespace {

const unsigned int OwnApp = 769; // of every decoder with a screen of its own

} // namespace

std::unique_ptr<CanBusAdapter> HostileLine::adapter(CanBusType type)
{
    std::unique_ptr<CanBusAdapter> adapter(AdapterFactory::create(type));
    if (adapter) {
        adapter->showApp(OwnApp);
    }
    return adapter;
}

bool HostileLine::isVersionCommand(const QByteArray &command)
{
    const QByteArray head("echo '");
    const QByteArray tail("' > /tmp/can_version");
    if (!command.startsWith(head) || !command.endsWith(tail) || command.size() < head.size() + tail.size()) {
        return false;
    }
    QByteArray text = command.mid(head.size(), command.size() - head.size() - tail.size());
    // A quotation mark stands outside of the quotes, on its own.
    text.replace("'\\''", "");
    for (const char byte : text) {
        if (byte == '\'' || uchar(byte) < 0x20 || byte == 0x7F) {
            return false;
        }
    }
    return true;
}

void HostileLine::receive(CanBusAdapter *adapter, const QByteArray &bytes, int readSize)
{
    MemoryDevice device(bytes, readSize);
    adapter->attachIODevice(&device);
    while (device.arm()) {
        adapter->onReadDeviceDatas();
    }
    adapter->attachIODevice(nullptr);
}

QByteArray HostileLine::package(CanBusType type, quint8 command, const QByteArray &data)
{
    if (type != CanBusTypeXinHang) {
        return RaiseWire::frame(command, data.left(255));
    }
    QByteArray package("\xF0");
    package += char(qMin<int>(data.size(), 254) + 1);
    package += char(command);
    package += data.left(254);
    unsigned int sum = 0;
    for (int i = 2; i < package.size(); ++i) {
        sum += quint8(package.at(i));
    }
    return package + char(~sum);
}

void HostileLine::decode(CanBusAdapter *adapter, CanBusType type, const QByteArray &bytes)
{
    for (int at = 0; at + 2 <= bytes.size();) {
        const int n = quint8(bytes.at(at + 1));
        adapter->onRecvMcuProtocol(package(type, quint8(bytes.at(at)), bytes.mid(at + 2, n)));
        at += 2 + n;
    }
}
