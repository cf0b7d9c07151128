#ifndef STREAMAGE_H
#define STREAMAGE_H

#include <QQueue>

/// Knows which part of a byte stream was read longer ago than a package may take to arrive. Time counts while
/// somebody listens only, and places are noted every 20 ms.
class StreamAge
{
public:
    StreamAge() : m_now(0) {}

    void clear() { m_marks.clear(); }

    /// \a elapsed ms of listening have passed, and \a streamEnd bytes have been read so far.
    void advance(int elapsed, qint64 streamEnd)
    {
        m_now += elapsed;
        if (m_marks.isEmpty() || m_now - m_marks.last().time >= MarkInterval) {
            const Mark mark = {m_now, streamEnd};
            m_marks.enqueue(mark);
        }
        while (m_marks.size() > 1 && m_marks.at(1).time <= m_now - Lifetime) {
            m_marks.dequeue();
        }
    }

    /// Whether the byte at \a place in the stream is that old.
    bool isStale(qint64 place) const
    {
        return !m_marks.isEmpty() && m_marks.first().time <= m_now - Lifetime &&
               place < m_marks.first().streamEnd;
    }

private:
    enum { MarkInterval = 20, Lifetime = 500 }; // ms

    // Everything before this place was read at that time or earlier.
    struct Mark
    {
        qint64 time;
        qint64 streamEnd;
    };

    qint64 m_now;
    QQueue<Mark> m_marks;
};

#endif // STREAMAGE_H
