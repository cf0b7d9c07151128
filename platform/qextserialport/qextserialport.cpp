#include "qextserialport.h"

#include "arrivalwatch.h"
#include "serialtap.h"

#include <QFile>
#include <QSocketNotifier>

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

speed_t speedOf(BaudRateType rate)
{
    switch (rate) {
    case BAUD9600:
        return B9600;
    case BAUD19200:
        return B19200;
    case BAUD38400:
        return B38400;
    case BAUD57600:
        return B57600;
    case BAUD115200:
        break;
    }
    return B115200;
}

tcflag_t dataBitsOf(DataBitsType bits)
{
    static const tcflag_t flags[] = {CS5, CS6, CS7, CS8};
    return flags[bits - DATA_5];
}

tcflag_t parityOf(ParityType parity)
{
    static const tcflag_t flags[] = {0, PARENB | PARODD, PARENB, PARENB | CMSPAR};
    return flags[parity];
}

QString openFailure(const QString &name)
{
    switch (errno) {
    case ENOENT:
        return QString::fromLatin1("The %1 file doesn't exists").arg(name);
    case EACCES:
        return QString::fromLatin1("Permission denied: %1").arg(name);
    default:
        return QString::fromLatin1("The file opened by the port is not a valid device");
    }
}

bool hasHungUp(int descriptor)
{
    pollfd look = {descriptor, POLLIN, 0};
    return ::poll(&look, 1, 0) < 0 || (look.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

} // namespace

QextSerialPort::QextSerialPort(const QString &name, const PortSettings &settings, QueryMode mode,
                               QObject *parent)
    : QIODevice(parent)
    , m_name(name)
    , m_settings(settings)
    , m_mode(mode)
    , m_descriptor(-1)
    , m_notifier(nullptr)
    , m_watch(nullptr)
{}

QextSerialPort::~QextSerialPort()
{
    QextSerialPort::close();
}

bool QextSerialPort::open(OpenMode mode)
{
    if (isOpen()) {
        return false;
    }
    m_failure.clear();
    m_descriptor = ::open(QFile::encodeName(m_name).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_descriptor < 0 || !setUpLine()) {
        m_failure = openFailure(m_name);
        const int systemError = errno;
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
            m_descriptor = -1;
        }
        for (SerialTapObserver *observer : SerialTap::observers()) {
            observer->openFailed(m_name, systemError, SerialTap::now());
        }
        return false;
    }
    if (!SerialTap::observers().isEmpty()) {
        m_watch = new ArrivalWatch(m_descriptor, this);
    }
    for (SerialTapObserver *observer : SerialTap::observers()) {
        observer->opened(m_name, m_settings, SerialTap::now());
    }
    if (m_mode == EventDriven) {
        m_notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, &QextSerialPort::onReadable);
    }
    SerialTap::setPort(this);
    return QIODevice::open(mode | Unbuffered);
}

void QextSerialPort::close()
{
    if (!isOpen()) {
        return;
    }
    QIODevice::close();
    SerialTap::setPort(nullptr);
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier->deleteLater(); // it may be the one that called
        m_notifier = nullptr;
    }
    if (m_watch) {
        const bool isLost = hasHungUp(m_descriptor) || !m_failure.isEmpty();
        delete m_watch;
        m_watch = nullptr;
        for (SerialTapObserver *observer : SerialTap::observers()) {
            observer->closed(isLost, SerialTap::now());
        }
    }
    ::close(m_descriptor);
    m_descriptor = -1;
}

// False when the device is no terminal. One that refuses what only a wire has carries the bytes all the same.
bool QextSerialPort::setUpLine()
{
    termios line;
    if (::tcgetattr(m_descriptor, &line) != 0) {
        return false;
    }
    ::cfmakeraw(&line);
    line.c_cflag &= ~tcflag_t(CSIZE | PARENB | PARODD | CMSPAR | CSTOPB | CRTSCTS);
    line.c_cflag |= CLOCAL | CREAD | dataBitsOf(m_settings.DataBits) | parityOf(m_settings.Parity);
    if (m_settings.StopBits == STOP_2) {
        line.c_cflag |= CSTOPB;
    }
    if (m_settings.FlowControl == FLOW_HARDWARE) {
        line.c_cflag |= CRTSCTS;
    }
    if (m_settings.FlowControl == FLOW_XONXOFF) {
        line.c_iflag |= IXON | IXOFF;
    }
    ::cfsetispeed(&line, speedOf(m_settings.BaudRate));
    ::cfsetospeed(&line, speedOf(m_settings.BaudRate));
    ::tcsetattr(m_descriptor, TCSANOW, &line);
    return true;
}

// The kernel may still hold back what a pseudo-terminal's other end has written: this look hands it on.
bool QextSerialPort::isReadable(int timeout) const
{
    pollfd look = {m_descriptor, POLLIN, 0};
    return ::poll(&look, 1, timeout) != 0;
}

qint64 QextSerialPort::bytesAvailable() const
{
    if (!isOpen() || !isReadable(0)) {
        return 0;
    }
    int count = 0;
    return ::ioctl(m_descriptor, FIONREAD, &count) == 0 ? count : -1;
}

QString QextSerialPort::errorString()
{
    return m_failure.isEmpty() ? QString::fromLatin1("No Error has occurred") : m_failure;
}

qint64 QextSerialPort::readData(char *data, qint64 maxSize)
{
    if (m_watch) {
        m_watch->look();
    }
    ssize_t count = ::read(m_descriptor, data, size_t(maxSize));
    if (count < 0 && errno == EAGAIN && m_mode == Polling && m_settings.Timeout_Millisec > 0) {
        isReadable(int(m_settings.Timeout_Millisec));
        count = ::read(m_descriptor, data, size_t(maxSize));
    }
    if (count < 0 && errno != EAGAIN && errno != EINTR) {
        m_failure = QString::fromLatin1("General read operation failure");
        return -1;
    }
    if (m_notifier) {
        m_notifier->setEnabled(count != 0); // 0: hung up
    }
    if (m_watch && count > 0) {
        m_watch->received(QByteArray(data, int(count)));
    }
    return qMax<qint64>(count, 0);
}

qint64 QextSerialPort::writeData(const char *data, qint64 maxSize)
{
    const ssize_t count = ::write(m_descriptor, data, size_t(maxSize));
    if (count < 0 && errno != EAGAIN && errno != EINTR) {
        m_failure = QString::fromLatin1("General write operation failure");
        return -1;
    }
    if (m_watch && count > 0) {
        m_watch->sent(QByteArray(data, int(count)));
    }
    return qMax<qint64>(count, 0);
}

void QextSerialPort::onReadable()
{
    // Until somebody reads: what nobody reads, and a terminal that has hung up, stays readable.
    m_notifier->setEnabled(false);
    if (bytesAvailable() >= 0) {
        Q_EMIT readyRead();
    } else {
        Q_EMIT readChannelFinished();
    }
}
