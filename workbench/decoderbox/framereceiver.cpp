#include "framereceiver.h"

namespace {
const int candidateLifetimeMs = 100; // the longest package takes 67 ms on the slowest line
const quint8 acknowledgement = 0xFF;
} // namespace

FrameReceiver::FrameReceiver(const FrameFormat &format, QObject *parent) : QObject(parent), m_format(format)
{}

void FrameReceiver::feed(const QByteArray &bytes)
{
    if (m_isWaiting && m_candidateAge.hasExpired(candidateLifetimeMs)) {
        m_isWaiting = false;
        m_stale = int(m_buffer.size());
        m_rejected = m_stale;
    }
    m_buffer += bytes;
    while (!m_buffer.isEmpty()) {
        if (quint8(m_buffer.front()) != m_format.start) {
            takeByteBetweenPackages();
        } else if (!takeCandidate()) {
            break;
        }
    }
}

void FrameReceiver::clear()
{
    m_buffer.clear();
    m_rejected = 0;
    m_stale = 0;
    m_isWaiting = false;
}

void FrameReceiver::takeByteBetweenPackages()
{
    const bool isNews = m_rejected == 0 && quint8(m_buffer.front()) == acknowledgement;
    reject();
    if (isNews) {
        emit acknowledged();
    }
}

// False while the candidate at the front is not whole.
bool FrameReceiver::takeCandidate()
{
    const int size = m_format.frameSize(m_buffer);
    if (size < 0) {
        reject();
        return true;
    }
    if (size == 0 || m_buffer.size() < size) {
        if (m_stale > 0) {
            reject();
            return true;
        }
        if (!m_isWaiting) {
            m_isWaiting = true;
            m_candidateAge.start();
        }
        return false;
    }
    m_isWaiting = false;
    const QByteArray frame = m_buffer.left(size);
    if (m_format.isGood(frame)) {
        m_buffer.remove(0, size);
        m_rejected = qMax(0, m_rejected - size);
        m_stale = qMax(0, m_stale - size);
        emit packageReceived(m_format.package(frame), frame);
        return true;
    }
    const bool isNews = m_rejected == 0;
    m_rejected = qMax(m_rejected, size);
    reject();
    if (isNews) {
        emit badChecksum(frame);
    }
    return true;
}

void FrameReceiver::reject()
{
    m_buffer.remove(0, 1);
    m_rejected = qMax(0, m_rejected - 1);
    m_stale = qMax(0, m_stale - 1);
}
