#include "lineframer.h"

namespace {
const int LongestRun = 256; // bytes passed over that come out as one piece
} // namespace

void LineFramer::feed(const QByteArray &bytes, qint64 microseconds)
{
    const int done = m_runFrom;
    m_buffer = m_buffer.mid(done);
    m_front -= done;
    m_runFrom = 0;
    while (m_marks.size() > 1 && m_marks.at(1).from <= done) {
        m_marks.pop_front();
    }
    int late = 0;
    for (size_t i = 0; i < m_marks.size(); ++i) {
        m_marks[i].from = qMax(0, m_marks[i].from - done);
    }
    for (size_t i = 0; i < m_marks.size() && microseconds - m_marks[i].microseconds > m_patience; ++i) {
        late = i + 1 < m_marks.size() ? m_marks[i + 1].from : int(m_buffer.size());
    }
    m_stale = qMax(m_stale, late - m_front);
    m_rejected = qMax(m_rejected, m_stale);
    if (!bytes.isEmpty()) {
        m_marks.push_back({int(m_buffer.size()), microseconds});
        m_buffer += bytes;
    }
}

bool LineFramer::next(LinePiece *piece)
{
    for (;;) {
        const bool isCut = hasRun() && (m_isRunOver || m_front - m_runFrom >= LongestRun);
        const Step step = isCut ? takeRun(piece) : this->step(piece);
        if (step != Passed) {
            return step == Found;
        }
    }
}

void LineFramer::giveUp()
{
    m_stale = waiting();
    m_rejected = m_stale;
}

void LineFramer::clear()
{
    m_buffer.clear();
    m_marks.clear();
    m_front = 0;
    m_runFrom = 0;
    m_isRunOver = false;
    m_rejected = 0;
    m_stale = 0;
}

// Looks at the byte in front.
LineFramer::Step LineFramer::step(LinePiece *piece)
{
    if (m_front == m_buffer.size()) {
        return hasRun() ? takeRun(piece) : Waits;
    }
    if (quint8(m_buffer.at(m_front)) == m_format->start) {
        return stepCandidate(piece);
    }
    if (m_rejected == 0 && m_format->isAnswer(m_buffer.at(m_front))) {
        return take(LinePiece::Answer, 1, piece);
    }
    pass(1);
    return Passed;
}

LineFramer::Step LineFramer::stepCandidate(LinePiece *piece)
{
    const char *const front = m_buffer.constData() + m_front;
    const int size = m_format->frameSize(front, waiting());
    const bool isWhole = size > 0 && waiting() >= size;
    const bool isLate = m_stale > 0 && (!isWhole || size > m_stale);
    if (size < 0 || isLate) {
        pass(1);
        return Passed;
    }
    if (!isWhole) {
        return hasRun() ? takeRun(piece) : Waits;
    }
    if (m_format->isGood(front, size)) {
        return take(LinePiece::Package, size, piece);
    }
    const bool isNews = m_rejected == 0;
    if (isNews && hasRun()) {
        return takeRun(piece);
    }
    if (isNews) {
        fill(LinePiece::BadPackage, m_front, size, piece);
    }
    m_rejected = qMax(m_rejected, size);
    pass(1);
    return isNews ? Found : Passed;
}

// Takes the bytes in front as a piece, behind what was passed over before them.
LineFramer::Step LineFramer::take(LinePiece::Kind kind, int size, LinePiece *piece)
{
    if (hasRun()) {
        return takeRun(piece);
    }
    fill(kind, m_front, size, piece);
    pass(size);
    m_runFrom = m_front;
    m_isRunOver = false;
    return Found;
}

LineFramer::Step LineFramer::takeRun(LinePiece *piece)
{
    fill(LinePiece::Skipped, m_runFrom, m_front - m_runFrom, piece);
    m_runFrom = m_front;
    m_isRunOver = false;
    return Found;
}

void LineFramer::pass(int count)
{
    m_front += count;
    m_isRunOver = m_isRunOver || (m_rejected > 0 && m_rejected <= count);
    m_rejected = qMax(0, m_rejected - count);
    m_stale = qMax(0, m_stale - count);
}

void LineFramer::fill(LinePiece::Kind kind, int from, int size, LinePiece *piece) const
{
    piece->kind = kind;
    piece->bytes = m_buffer.mid(from, size);
    piece->microseconds = timeOf(from + size - 1);
}

qint64 LineFramer::timeOf(int at) const
{
    qint64 time = 0;
    for (const Mark &mark : m_marks) {
        if (mark.from > at) {
            break;
        }
        time = mark.microseconds;
    }
    return time;
}
