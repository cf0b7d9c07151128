#include "hostileline.h"

#include "memorydevice.h"
#include "raisewire.h"

#include "adapterfactory.h"

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
