#include "arrivalwatch.h"

#include "serialtap.h"

#include <limits>

#include <poll.h>
#include <sys/ioctl.h>

namespace {

const int LookInterval = 1;      // ms
const int PauseTime = 2000;      // us; what comes later than this after the last byte is a chunk of its own
const int MostThere = 64 * 1024; // bytes; no terminal holds as much

// Terminals whose far end is gone answer what they like.
int bytesThere(int descriptor)
{
    int count = 0;
    pollfd look = {descriptor, POLLIN, 0};
    ::poll(&look, 1, 0); // the kernel hands on what a pseudo-terminal's other end has written
    return ::ioctl(descriptor, FIONREAD, &count) == 0 ? qBound(0, count, MostThere) : 0;
}

} // namespace

ArrivalWatch::ArrivalWatch(int descriptor, QObject *parent)
    : QObject(parent), m_descriptor(descriptor), m_notifier(descriptor, QSocketNotifier::Read)
{
    m_timer.setInterval(LookInterval);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ArrivalWatch::look);
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier.setEnabled(false); // it would go on until somebody reads, and after a hang-up for ever
        m_timer.start();
        look();
    });
}

ArrivalWatch::~ArrivalWatch()
{
    tellSent(std::numeric_limits<qint64>::max());
}

void ArrivalWatch::look()
{
    const int there = bytesThere(m_descriptor);
    if (there == 0) {
        m_timer.stop();
    }
    if (there <= m_waiting) {
        return;
    }
    const qint64 now = SerialTap::now();
    if (m_chunks.isEmpty() || now - m_lastGrowth >= PauseTime) {
        m_chunks.append({now, 0});
    }
    m_chunks.last().size += there - m_waiting;
    m_waiting = there;
    m_lastGrowth = now;
}

void ArrivalWatch::received(const QByteArray &bytes)
{
    for (int from = 0; from < bytes.size();) {
        if (m_chunks.isEmpty()) { // came between the look and the read
            m_chunks.append({SerialTap::now(), int(bytes.size()) - from});
            m_waiting += m_chunks.last().size;
        }
        Chunk &chunk = m_chunks.first();
        const QByteArray part = bytes.mid(from, chunk.size);
        const qint64 at = chunk.at;
        from += int(part.size());
        m_waiting -= int(part.size());
        chunk.size -= int(part.size());
        if (chunk.size == 0) {
            m_chunks.removeFirst();
        }
        tellSent(at);
        for (SerialTapObserver *observer : SerialTap::observers()) {
            observer->received(part, at);
        }
    }
    if (m_chunks.isEmpty()) {
        tellSent(std::numeric_limits<qint64>::max());
        m_timer.stop();
        m_notifier.setEnabled(true);
    }
}

void ArrivalWatch::sent(const QByteArray &bytes)
{
    m_sent.append({SerialTap::now(), bytes});
    if (m_chunks.isEmpty()) {
        tellSent(m_sent.last().at);
    }
}

void ArrivalWatch::tellSent(qint64 until)
{
    while (!m_sent.isEmpty() && m_sent.first().at <= until) {
        const Sent sent = m_sent.takeFirst();
        for (SerialTapObserver *observer : SerialTap::observers()) {
            observer->sent(sent.bytes, sent.at);
        }
    }
}
