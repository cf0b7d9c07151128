#include "framereceiver.h"

namespace {
const int CandidateLifetimeMs = 100; // the longest package takes 67 ms on the slowest line
const quint8 Acknowledgement = 0xFF;
} // namespace

FrameReceiver::FrameReceiver(const FrameFormat &format, QObject *parent) : QObject(parent), m_format(format)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(CandidateLifetimeMs);
    connect(&m_patience, &QTimer::timeout, this, &FrameReceiver::giveUpWaiting);
}

void FrameReceiver::feed(const QByteArray &bytes)
{
    m_buffer += bytes;
    work();
}

void FrameReceiver::clear()
{
    m_buffer.clear();
    m_front = 0;
    m_rejected = 0;
    m_stale = 0;
    m_patience.stop();
}

void FrameReceiver::giveUpWaiting()
{
    m_stale = int(m_buffer.size());
    m_rejected = m_stale;
    work();
}

void FrameReceiver::work()
{
    while (m_front < m_buffer.size()) {
        if (quint8(m_buffer.at(m_front)) != m_format.start) {
            takeByteBetweenPackages();
        } else if (!takeCandidate()) {
            break;
        }
    }
    m_buffer.remove(0, m_front);
    m_front = 0;
}

void FrameReceiver::takeByteBetweenPackages()
{
    const bool isNews = m_rejected == 0 && quint8(m_buffer.at(m_front)) == Acknowledgement;
    pass(1);
    if (isNews) {
        Q_EMIT acknowledged();
    }
}

// False while the candidate at the front is not whole.
bool FrameReceiver::takeCandidate()
{
    const char *front = m_buffer.constData() + m_front;
    const int available = int(m_buffer.size()) - m_front;
    const int size = m_format.frameSize(front, available);
    if (size < 0) {
        pass(1);
        return true;
    }
    if (size == 0 || available < size) {
        if (m_stale > 0) {
            pass(1);
            return true;
        }
        if (!m_patience.isActive()) {
            m_patience.start();
        }
        return false;
    }
    m_patience.stop();
    const bool isNews = m_rejected == 0;
    const bool isGood = m_format.isGood(front, size);
    const QByteArray frame = isGood || isNews ? QByteArray(front, size) : QByteArray();
    if (isGood) {
        pass(size);
        Q_EMIT packageReceived(m_format.package(frame), frame);
        return true;
    }
    m_rejected = qMax(m_rejected, size);
    pass(1);
    if (isNews) {
        Q_EMIT badChecksum(frame);
    }
    return true;
}

void FrameReceiver::pass(int count)
{
    m_front += count;
    m_rejected = qMax(0, m_rejected - count);
    m_stale = qMax(0, m_stale - count);
}
