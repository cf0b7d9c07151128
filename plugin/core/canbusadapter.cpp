#include "canbusadapter.h"

#include "adapterfactory.h"

#include "orbapplication.h"

#include <QDebug>
#include <QFile>
#include <QTimerEvent>

#include <qextserialport.h>

namespace {

const int InitDelay = 50; // ms that the box gets between the opening of the port and the first command

}

CanBusAdapter *CanBusAdapter::s_instance = nullptr;

CanBusAdapter::CanBusAdapter(QObject *parent)
    : ProtocolUtils(parent), initTimerId(0), canBusType(CanBusTypeNone), serialPort(nullptr)
{
    setObjectName(QLatin1String("CanBusAdapter"));
    connect(this, SIGNAL(recvProtocolData(QByteArray)), this, SLOT(onRecvMcuProtocol(QByteArray)));
}

CanBusAdapter *CanBusAdapter::getAdapterInstance(CanBusType type)
{
    if (!s_instance) {
        CanBusAdapter *const adapter = AdapterFactory::create(type);
        if (!adapter) {
            return nullptr;
        }
        adapter->canBusType = type;
        s_instance = adapter;
        const char *const className = adapter->metaObject()->className();
        qDebug() << "CanBusAdapter:" << className << int(type);
        adapter->setDebugMode(QLatin1String(className), QFile::exists(QLatin1String("/data/mcudebug_flag")));
        adapter->initAdapter();
    }
    return s_instance->canBusType == type ? s_instance : nullptr;
}

QString CanBusAdapter::getPortName()
{
    return OrbApplication::getOrbProductValue(QLatin1String("CANPortName"),
                                              QVariant(QLatin1String("/dev/ttyHS0")))
        .toString();
}

bool CanBusAdapter::getPortSettings(PortSettings &settings)
{
    setLine(settings, BAUD115200, 50);
    return true;
}

void CanBusAdapter::setLine(PortSettings &settings, int baudRate, long timeout)
{
    settings.BaudRate = static_cast<BaudRateType>(baudRate);
    settings.DataBits = DATA_8;
    settings.Parity = PAR_NONE;
    settings.StopBits = STOP_1;
    settings.FlowControl = FLOW_OFF;
    settings.Timeout_Millisec = timeout;
}

void CanBusAdapter::initAdapter()
{
    const QString name = getPortName();
    if (serialPort) {
        attachIODevice(nullptr); // the framer would take the closing for a loss
        serialPort->close();
        serialPort->deleteLater();
        serialPort = nullptr;
    }
    PortSettings settings;
    if (!getPortSettings(settings) || name.isEmpty()) {
        return;
    }

    serialPort = new QextSerialPort(name, settings, QextSerialPort::Polling);
    const bool opened = serialPort->open(QIODevice::ReadWrite);
    qDebug() << "Open CanBus Serial Port " << name << " Ret:" << opened << serialPort->errorString();
    attachIODevice(serialPort);
    initTimerId = startTimer(InitDelay);
}

void CanBusAdapter::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != initTimerId) {
        return;
    }
    killTimer(initTimerId);
    initTimerId = 0;
    onInited();
}

void CanBusAdapter::showApp(unsigned int) {}

void CanBusAdapter::translateApp() {}

void CanBusAdapter::orbAppStateChange(unsigned long, unsigned long) {}

void CanBusAdapter::orbAppNotify(OrbEvent *) {}

void CanBusAdapter::onInited() {}
