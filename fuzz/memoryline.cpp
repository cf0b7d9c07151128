#include "memoryline.h"

#include "frameformat.h"

#include <qextserialport.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

MemoryLine &MemoryLine::instance()
{
    static MemoryLine line;
    return line;
}

void MemoryLine::reset(const FrameFormat *format)
{
    *this = MemoryLine();
    isThere = true;
    isTrusted = true;
    m_format = format;
}

qint64 MemoryLine::take(const char *bytes, qint64 size)
{
    if (writing == Refused) {
        isTrusted = false;
        return -1;
    }
    if (writing == Short && room < size) {
        isTrusted = false;
        size = room;
    }
    const QByteArray piece = QByteArray::fromRawData(bytes, int(size));
    const bool isAnswer = size == 1 && m_format && m_format->isAnswer(*bytes);
    if (isTrusted && !isAnswer && (!m_format || !m_format->isFrame(piece))) {
        std::fprintf(stderr, "no package: %s\n", piece.toHex().constData());
        std::abort();
    }
    for (const char byte : piece) {
        note(quint8(byte));
    }
    return size;
}

// ------------------------------------------------------------------------- the serial layer's interface

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
    MemoryLine &line = MemoryLine::instance();
    if (isOpen() || !line.isThere) {
        return false;
    }
    line.coming.clear();
    line.hasHungUp = false;
    return QIODevice::open(mode | Unbuffered);
}

void QextSerialPort::close()
{
    if (isOpen()) {
        QIODevice::close();
    }
}

qint64 QextSerialPort::bytesAvailable() const
{
    const MemoryLine &line = MemoryLine::instance();
    if (!isOpen()) {
        return 0;
    }
    return line.hasHungUp ? -1 : line.coming.size();
}

QString QextSerialPort::errorString()
{
    return m_failure;
}

qint64 QextSerialPort::readData(char *data, qint64 maxSize)
{
    MemoryLine &line = MemoryLine::instance();
    if (line.readsNothing) {
        return 0;
    }
    const int count = int(qMin<qint64>(maxSize, line.coming.size()));
    std::memcpy(data, line.coming.constData(), size_t(count));
    line.coming.remove(0, count);
    return count;
}

qint64 QextSerialPort::writeData(const char *data, qint64 maxSize)
{
    return MemoryLine::instance().hasHungUp ? -1 : MemoryLine::instance().take(data, maxSize);
}
