#ifndef MEMORYDEVICE_H
#define MEMORYDEVICE_H

#include <QByteArray>
#include <QIODevice>

#include <cstring>

/// A line that delivers a recorded stream in reads of a given size: each time that it is armed, one read's
/// worth has arrived. What is written to it is dropped.
class MemoryDevice : public QIODevice
{
public:
    MemoryDevice(const QByteArray &stream, int readSize)
        : m_stream(stream), m_readSize(readSize), m_at(0), m_arrived(0), m_wouldHaveWaited(false)
    {
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }

    /// The next bytes arrive; false at the end of the stream.
    bool arm()
    {
        m_arrived = qMin(m_at + m_readSize, m_stream.size());
        return m_arrived > m_at;
    }

    void rewind()
    {
        m_at = 0;
        m_arrived = 0;
    }

    /// Whether more was asked for than had arrived: a serial port would have waited for it.
    bool wouldHaveWaited() const { return m_wouldHaveWaited; }

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_arrived - m_at; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        m_wouldHaveWaited |= maxSize > m_arrived - m_at;
        const int count = int(qMin<qint64>(maxSize, m_arrived - m_at));
        memcpy(data, m_stream.constData() + m_at, size_t(count));
        m_at += count;
        return count;
    }

    qint64 writeData(const char *, qint64 size) override { return size; }

private:
    const QByteArray m_stream;
    const int m_readSize;
    int m_at;
    int m_arrived;
    bool m_wouldHaveWaited;
};

#endif // MEMORYDEVICE_H
