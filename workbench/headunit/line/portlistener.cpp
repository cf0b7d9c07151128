#include "portlistener.h"

#include "serialtap.h"

#include <QEventLoop>
#include <QTimer>

#include <qextserialport.h>

namespace {

const int LookInterval = 2; // ms; a box wants its acknowledgement within 10

const BoxPackage Ready = {0x81, QByteArray("\x01")};
const char Acknowledged = '\xff';

} // namespace

PortListener::PortListener(const QString &path, QObject *parent) : QObject(parent), m_path(path) {}

PortListener::~PortListener() = default;

bool PortListener::open(int baud, QString *error)
{
    const PortSettings settings = {static_cast<BaudRateType>(baud), DATA_8, PAR_NONE, STOP_1, FLOW_OFF, -1};
    m_port.reset(new QextSerialPort(m_path, settings, QextSerialPort::Polling));
    m_raise = PackageCensus(FrameFormat::raise());
    m_xinHang = PackageCensus(FrameFormat::xinHang());
    m_answers = false;
    m_answeredAfter = -1;
    m_isLost = false;
    if (!m_port->open(QIODevice::ReadWrite)) {
        *error = QString("%1 does not open: %2").arg(m_path, m_port->errorString());
        return false;
    }
    return true;
}

bool PortListener::listen(int ms, QString *error)
{
    QEventLoop loop;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        read();
        if (m_isLost) {
            loop.quit();
        }
    });
    look.start(LookInterval);
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    if (m_isLost) {
        *error = m_path + " is gone: was the adapter unplugged?";
    }
    return !m_isLost;
}

void PortListener::greet()
{
    read(); // what came before is no answer
    m_answers = true;
    m_greetedAt = SerialTap::now();
    for (const FrameFormat *format : {&FrameFormat::raise(), &FrameFormat::xinHang()}) {
        m_port->write(format->frame(Ready));
    }
}

void PortListener::read()
{
    const qint64 available = m_port->bytesAvailable();
    const QByteArray bytes = available > 0 ? m_port->read(available) : QByteArray();
    m_isLost = available < 0 || (available > 0 && bytes.isEmpty());
    if (bytes.isEmpty()) {
        return;
    }
    if (m_answers && m_answeredAfter < 0) {
        m_answeredAfter = SerialTap::now() - m_greetedAt;
    }
    const qint64 before = m_raise.packageCount();
    m_raise.add(bytes, SerialTap::now());
    m_xinHang.add(bytes, SerialTap::now());
    for (qint64 i = before; m_answers && i < m_raise.packageCount(); ++i) {
        m_port->write(&Acknowledged, 1);
    }
}
