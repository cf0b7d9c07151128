#include "qextserialport.h"

QextSerialPort::QextSerialPort(const QString &name, const PortSettings &settings, QueryMode mode,
                               QObject *parent)
    : QIODevice(parent), m_settings(settings), m_mode(mode), m_failed(false)
{
    m_port.setPortName(name);
    connect(&m_port, SIGNAL(readyRead()), this, SIGNAL(readyRead()));
    connect(&m_port, SIGNAL(bytesWritten(qint64)), this, SIGNAL(bytesWritten(qint64)));
    connect(&m_port, SIGNAL(errorOccurred(QSerialPort::SerialPortError)), this,
            SLOT(onPortError(QSerialPort::SerialPortError)));
}

QextSerialPort::~QextSerialPort()
{
    QextSerialPort::close();
}

bool QextSerialPort::open(OpenMode mode)
{
    if (isOpen()) {
        return false;
    }
    m_failed = false;
    if (!m_port.open(mode & ReadWrite)) {
        setFailure(m_port.errorString());
        return false;
    }
    applySettings();
    setFailure(QString());
    // The port keeps the only buffer.
    return QIODevice::open(mode | Unbuffered);
}

void QextSerialPort::close()
{
    if (isOpen()) {
        QIODevice::close();
    }
    if (m_port.isOpen()) {
        m_port.close();
    }
}

// A pseudo-terminal refuses what only a wire has (a line rate, parity); it carries the bytes all the same.
void QextSerialPort::applySettings()
{
    static const QSerialPort::Parity parities[] = {QSerialPort::NoParity, QSerialPort::OddParity,
                                                   QSerialPort::EvenParity, QSerialPort::SpaceParity};
    static const QSerialPort::FlowControl flows[] = {QSerialPort::NoFlowControl, QSerialPort::HardwareControl,
                                                     QSerialPort::SoftwareControl};
    m_port.setBaudRate(m_settings.BaudRate);
    m_port.setDataBits(static_cast<QSerialPort::DataBits>(m_settings.DataBits));
    m_port.setParity(parities[m_settings.Parity]);
    m_port.setStopBits(m_settings.StopBits == STOP_2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
    m_port.setFlowControl(flows[m_settings.FlowControl]);
    m_port.clearError();
}

qint64 QextSerialPort::bytesAvailable() const
{
    return QIODevice::bytesAvailable() + m_port.bytesAvailable();
}

qint64 QextSerialPort::bytesToWrite() const
{
    return m_port.bytesToWrite();
}

QString QextSerialPort::errorString()
{
    return m_failure;
}

void QextSerialPort::setFailure(const QString &text)
{
    m_failure = text;
    setErrorString(text); // what QIODevice answers is never empty
}

qint64 QextSerialPort::readData(char *data, qint64 maxSize)
{
    return m_failed ? -1 : m_port.read(data, maxSize);
}

qint64 QextSerialPort::writeData(const char *data, qint64 maxSize)
{
    return m_failed ? -1 : m_port.write(data, maxSize);
}

void QextSerialPort::onPortError(QSerialPort::SerialPortError error)
{
    // After a hang-up the port reports ReadError, over and over, and stays open; a device that is pulled out
    // reports ResourceError. Settings that the device does not know are no reason to give it up.
    const bool fatal = error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
                       error == QSerialPort::ResourceError || error == QSerialPort::PermissionError;
    if (!fatal || m_failed || !isOpen()) {
        return;
    }
    m_failed = true;
    setFailure(m_port.errorString());
    Q_EMIT readChannelFinished();
}
