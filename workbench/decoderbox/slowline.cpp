#include "slowline.h"

#include <utility>

namespace {

const qint64 Second = 1000000000; // ns
const qint64 Millisecond = 1000000;
const int BitsPerByte = 10;
const qint64 LongestTick = 4 * Millisecond;
// Timers are late by up to a millisecond, and answers to answers would add that up: a byte may come out so
// much too early instead. The line as a whole is never faster for it.
const qint64 Early = Millisecond;

qint64 roundUp(qint64 ns)
{
    return (ns + Millisecond - 1) / Millisecond;
}

} // namespace

SlowLine::SlowLine(QObject *parent) : QObject(parent)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SlowLine::work);
}

void SlowLine::setBaud(int baud)
{
    m_byteTime = baud > 0 ? BitsPerByte * Second / baud : 0;
}

int SlowLine::duration(int count) const
{
    return int(roundUp(count * m_byteTime));
}

void SlowLine::put(const QByteArray &bytes, int pauseMs)
{
    if (bytes.isEmpty()) {
        return;
    }
    if (m_pieces.isEmpty() && m_byteTime == 0 && pauseMs == 0) {
        Q_EMIT arrived(bytes);
        return;
    }
    if (m_pieces.isEmpty()) {
        m_begin = qMax(m_begin, m_clock.nsecsElapsed());
    }
    m_pieces.enqueue({bytes, pauseMs * Millisecond});
    m_size += int(bytes.size());
    if (!m_timer.isActive()) {
        waitForMore();
    }
}

void SlowLine::clear()
{
    m_timer.stop();
    m_begin = 0;
    m_pieces.clear();
    m_size = 0;
}

QByteArray SlowLine::takeAll()
{
    QByteArray bytes;
    for (const Piece &piece : std::as_const(m_pieces)) {
        bytes += piece.bytes;
    }
    clear();
    return bytes;
}

void SlowLine::work()
{
    const qint64 now = m_clock.nsecsElapsed() + Early;
    QByteArray out;
    while (!m_pieces.isEmpty() && now - m_begin >= m_pieces.head().pause) {
        Piece &piece = m_pieces.head();
        m_begin += std::exchange(piece.pause, 0);
        const qint64 passed = m_byteTime > 0 ? (now - m_begin) / m_byteTime : piece.bytes.size();
        const int count = int(qMin(passed, qint64(piece.bytes.size())));
        out += piece.bytes.left(count);
        piece.bytes.remove(0, count);
        m_begin += count * m_byteTime;
        if (!piece.bytes.isEmpty()) {
            break;
        }
        m_pieces.dequeue();
    }
    m_size -= int(out.size());
    waitForMore();
    if (!out.isEmpty()) {
        Q_EMIT arrived(out);
    }
}

void SlowLine::waitForMore()
{
    if (m_pieces.isEmpty()) {
        return;
    }
    const Piece &piece = m_pieces.head();
    const qint64 sending = qMin(LongestTick, piece.bytes.size() * m_byteTime);
    const qint64 due = m_begin + piece.pause + sending - Early - m_clock.nsecsElapsed();
    m_timer.start(due > 0 ? int(qMax(Millisecond, due) / Millisecond) : 0);
}
