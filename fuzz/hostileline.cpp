#include "hostileline.h"

#include "memorydevice.h"
#include "raisewire.h"

#include "decoders/canbus_huida_zd.h"
#include "decoders/canbus_lihang_jmce200n.h"
#include "decoders/canbus_xbs_mazda.h"
#include "decoders/canbus_xinri.h"
#include "raise/canbus_raise_gac.h"
#include "raise/canbus_raise_gm.h"
#include "raise/canbus_raise_haval.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_jeep.h"
#include "raise/canbus_raise_nissan.h"
#include "raise/canbus_raise_renault.h"
#include "raise/canbus_raise_toyota.h"
#include "raise/canbus_raise_venucia.h"
#include "volkswagen/canbus_raise_volkswagen.h"
#include "xinhang/canbus_xinhang.h"

#include <cstdio>
#include <cstdlib>

// Stands in for the C library's own in the whole program: a version text must reach the shell as data, so what would
// be run is looked at and not run.
extern "C" int system(const char *command)
{
    if (!HostileLine::isVersionCommand(command)) {
        fprintf(stderr, "not a version text, but a command: %s\n", command);
        abort();
    }
    return 0;
}

namespace {

const unsigned int VolkswagenApp = 769;

template <class Adapter>
CanBusAdapter *create()
{
    return new Adapter;
}

typedef CanBusAdapter *(*Creator)();

// In the order of the type numbers, from 1.
const Creator Creators[] = {
    create<CanBus_LiHang_JMCE200N>, create<CanBus_Huida_ZD>,      create<CanBus_Raise_Volkswagen>,
    create<CanBus_XinHang>,         create<CanBus_XBS_Mazda>,     create<CanBus_XinRi>,
    create<CanBus_Raise_Honda>,     create<CanBus_Raise_Nissan>,  create<CanBus_Raise_Toyota>,
    create<CanBus_Raise_GM>,        create<CanBus_Raise_Haval>,   create<CanBus_Raise_GAC>,
    create<CanBus_Raise_Venucia>,   create<CanBus_Raise_Renault>, create<CanBus_Raise_Jeep>,
};

} // namespace

std::unique_ptr<CanBusAdapter> HostileLine::adapter(CanBusType type)
{
    if (type < 1 || type > sizeof Creators / sizeof Creators[0]) {
        return nullptr;
    }
    std::unique_ptr<CanBusAdapter> adapter(Creators[type - 1]());
    if (type == CanBusTypeRaiseVolkswagen) {
        adapter->showApp(VolkswagenApp);
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
