#include "orbapplication.h"
#include "orbdialog.h"
#include "orbevent.h"
#include "orbplugin.h"
#include "protocolutils.h"
#include "qextserialport.h"

#include <csignal>

namespace {

const int NotifyEvent = 51007;
const int DataAt = 3;
const int Overhead = 4; // of a Raise frame

/// A decoder whose package 0x10 does to it what a package should not: bit 7 of its data byte kills the process, bit 6
/// opens a dialog that nobody answers. Bit 0 causes an event, bits 1 and 2 together another.
class FragileAdapter : public ProtocolUtils
{
public:
    FragileAdapter()
    {
        PortSettings settings = {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, 0};
        m_port = new QextSerialPort(OrbApplication::getOrbProductValue("CANPortName").toString(), settings,
                                    QextSerialPort::Polling);
        m_port->setParent(this);
        m_port->open(QIODevice::ReadWrite);
        attachIODevice(m_port);
        connect(this, &ProtocolUtils::recvProtocolData, this, &FragileAdapter::take);
    }

    int getPackageMinSize() override { return DataAt; }
    int findPackageStartSig(int from) override { return recvBuffer.indexOf(char(0x2E), from); }
    int getPackageSize(int start) override { return quint8(recvBuffer.at(start + 2)) + Overhead; }
    bool isAvaliablePackage(int start, int, int size) override
    {
        return size > Overhead && recvBuffer.at(start + 1) == 0x10;
    }

private:
    void take(const QByteArray &package)
    {
        const int bits = quint8(package.at(DataAt));
        if (bits & 0x80) {
            std::raise(SIGSEGV);
        }
        if (bits & 0x40) {
            OrbDialog dialog;
            dialog.setModal(true);
            dialog.exec();
        }
        tell(1, bits & 1);
        tell(2, (bits & 6) == 6);
    }

    static void tell(unsigned int what, bool is)
    {
        OrbEvent event(7, what, NotifyEvent);
        event.setParams(what, is ? 1 : 0);
        OrbApplication::instance()->dispatchOrbEvent(&event);
    }

    QextSerialPort *m_port;
};

class FragilePlugin : public OrbPlugin
{
public:
    OrbMainWindow *createMainWindow() override { return nullptr; }

private:
    FragileAdapter m_adapter;
};

} // namespace

extern "C" {

Q_DECL_EXPORT OrbPlugin *create()
{
    return new FragilePlugin;
}

Q_DECL_EXPORT void destroy(OrbPlugin *plugin)
{
    delete plugin;
}
}
