#include "pacedwriter.h"

#include <QIODevice>

namespace {

const int QueueLimit = 4096;
// Bytes that wait here and in the device; direct writes past this are dropped, queued packages wait.
const int UnsentLimit = 64 * 1024;
const int RetryInterval = 4;

} // namespace

PacedWriter::PacedWriter(QObject *parent)
    : QObject(parent), m_device(nullptr), m_interval(0), m_refusing(false)
{
    m_sinceWrite.invalidate(); // Qt 4.8 leaves it as the memory was
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(onTimer()));
}

void PacedWriter::setDevice(QIODevice *device)
{
    m_device = device;
    m_unsent.clear();
    m_timer.stop();
    sendQueued();
}

void PacedWriter::enqueue(const QByteArray &package)
{
    const bool full = m_queue.size() >= QueueLimit;
    if (full && !m_refusing) {
        qWarning("ProtocolUtils: %d packages wait to be written, further ones are refused", QueueLimit);
    }
    m_refusing = full;
    if (full) {
        return;
    }
    m_queue.enqueue(package);
    sendQueued();
}

void PacedWriter::writeNow(const QByteArray &bytes)
{
    if (m_device && m_unsent.size() + m_device->bytesToWrite() + bytes.size() <= UnsentLimit) {
        write(bytes);
    }
}

// Sends what may leave by now and arms the timer for the rest.
void PacedWriter::sendQueued()
{
    while (m_device && !m_queue.isEmpty()) {
        const qint64 wait = m_sinceWrite.isValid() ? m_interval - m_sinceWrite.elapsed() : 0;
        if (wait > 0 || !m_unsent.isEmpty() || m_device->bytesToWrite() >= UnsentLimit) {
            if (!m_timer.isActive()) {
                m_timer.start(wait > 0 ? int(wait) : RetryInterval);
            }
            return;
        }
        // It leaves the queue first: a write that fails half-way must not send it a second time.
        const QByteArray package = m_queue.dequeue();
        m_sinceWrite.start();
        Q_EMIT sent(package);
        write(package);
    }
}

void PacedWriter::onTimer()
{
    if (m_device && !m_unsent.isEmpty()) {
        const QByteArray rest = m_unsent;
        m_unsent.clear();
        write(rest);
    }
    sendQueued();
}

void PacedWriter::write(const QByteArray &bytes)
{
    if (!m_unsent.isEmpty()) {
        m_unsent += bytes;
        return;
    }
    const qint64 written = m_device->write(bytes);
    if (written < 0) {
        Q_EMIT failed();
    } else if (written < bytes.size()) {
        m_unsent = bytes.mid(int(written));
        m_timer.start(RetryInterval);
    }
}
