#include "canbusadapter.h"

#include "adapterfactory.h"

#include "orbapplication.h"

#include <QDebug>
#include <QFile>
#include <QTimerEvent>

#include <qextserialport.h>

namespace {

const int InitDelay = 50; // ms that the box gets between the opening of the port and the first command

// While the line is lost. No QIODevice tells that it was opened.
const int WatchInterval = 10; // ms
const int MostKept = 256;     // packages

} // namespace

CanBusAdapter *CanBusAdapter::s_instance = nullptr;

CanBusAdapter::CanBusAdapter(QObject *parent)
    : ProtocolUtils(parent)
    , initTimerId(0)
    , canBusType(CanBusTypeNone)
    , serialPort(nullptr)
    , m_isLineLost(false)
    , m_isStarting(false)
    , m_isGreetingQueued(false)
    , m_watchTimerId(0)
    , m_looksOpen(0)
{
    setObjectName(QLatin1String("CanBusAdapter"));
    connect(this, SIGNAL(recvProtocolData(QByteArray)), this, SLOT(onRecvMcuProtocol(QByteArray)));
}

CanBusAdapter::~CanBusAdapter()
{
    closePort();
    if (s_instance == this) {
        s_instance = nullptr;
    }
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

void CanBusAdapter::closePort()
{
    if (serialPort) {
        attachIODevice(nullptr); // the framer would take the closing for a loss
        disconnect(serialPort, nullptr, this, nullptr);
        serialPort->close();
        serialPort->deleteLater();
        serialPort = nullptr;
    }
}

void CanBusAdapter::initAdapter()
{
    const QString name = getPortName();
    closePort();
    PortSettings settings;
    if (!getPortSettings(settings) || name.isEmpty()) {
        return;
    }

    serialPort = new QextSerialPort(name, settings, QextSerialPort::Polling);
    const bool opened = serialPort->open(QIODevice::ReadWrite);
    qDebug() << "Open CanBus Serial Port " << name << " Ret:" << opened << serialPort->errorString();
    attachIODevice(serialPort);
    connect(serialPort, SIGNAL(aboutToClose()), this, SLOT(onLineClosing()));
    if (!opened) {
        setLineLost();
    }
    initTimerId = startTimer(InitDelay);
}

void CanBusAdapter::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_watchTimerId) {
        watchLine();
    } else if (event->timerId() == initTimerId) {
        killTimer(initTimerId);
        initTimerId = 0;
        m_isGreetingQueued = m_isLineLost;
        m_isStarting = true;
        onInited();
        m_isStarting = false;
    }
}

// ------------------------------------------------------------------------------------------- a lost line

void CanBusAdapter::onLineClosing()
{
    setLineLost();
}

void CanBusAdapter::setLineLost()
{
    m_isLineLost = true;
    m_looksOpen = 0;
    if (m_watchTimerId == 0) {
        m_watchTimerId = startTimer(WatchInterval);
    }
}

void CanBusAdapter::watchLine()
{
    m_looksOpen = serialPort && serialPort->isOpen() ? m_looksOpen + 1 : 0;
    if (m_looksOpen * WatchInterval <= InitDelay) {
        return;
    }
    killTimer(m_watchTimerId);
    m_watchTimerId = 0;
    m_isLineLost = false;
    if (!m_isGreetingQueued) {
        greetBox(); // what it says anew is dropped from what was kept
    }
    m_isGreetingQueued = false;
    while (!m_kept.isEmpty()) {
        writeDatas(m_kept.takeFirst().package);
    }
}

void CanBusAdapter::greetBox()
{
    onInited();
}

void CanBusAdapter::writeOrKeep(const QByteArray &package, int kindSize)
{
    if (kindSize > 0) {
        dropKept(package.left(kindSize));
    }
    if (!m_isLineLost || (m_isStarting && kindSize == 0)) {
        writeDatas(package);
    } else if (kindSize > 0) {
        const Kept kept = {package, kindSize};
        m_kept.append(kept);
        if (m_kept.size() > MostKept) {
            m_kept.removeFirst();
        }
    }
}

void CanBusAdapter::dropKept(const QByteArray &kind)
{
    for (int i = m_kept.size() - 1; i >= 0; --i) {
        if (m_kept.at(i).package.left(m_kept.at(i).kindSize) == kind) {
            m_kept.removeAt(i);
        }
    }
}

void CanBusAdapter::showApp(unsigned int) {}

void CanBusAdapter::translateApp() {}

void CanBusAdapter::orbAppStateChange(unsigned long, unsigned long) {}

void CanBusAdapter::orbAppNotify(OrbEvent *) {}

void CanBusAdapter::onInited() {}
