#ifndef LINEFRAMER_H
#define LINEFRAMER_H

#include "frameformat.h"

#include <deque>

/// What a LineFramer finds in the bytes of one direction of a line.
struct LinePiece
{
    enum Kind {
        Package,    ///< a whole frame with a good checksum
        Answer,     ///< a single byte between packages that answers one
        BadPackage, ///< a whole frame with a bad checksum: a notice. Its bytes come again, in what follows
        Skipped     ///< bytes that are nothing of this
    };

    Kind kind = Skipped;
    QByteArray bytes;
    qint64 microseconds = 0; ///< when the last of the bytes came
};

/// Finds packages in the bytes of one direction of a line, as the unit does: a bad candidate costs its start byte only,
/// so that a good package inside or behind it is found, and one that is not whole in time is given up. Every byte that
/// is fed comes out once, in order, in pieces that are no notices.
class LineFramer
{
public:
    /// How long the unit waits for the rest of a package.
    static constexpr qint64 UnitPatience = 500000; // microseconds

    /// A candidate is given up when bytes are fed more than \a patience microseconds after those that it begins with.
    explicit LineFramer(const FrameFormat &format, qint64 patience = UnitPatience)
        : m_format(&format), m_patience(patience)
    {}

    /// Takes \a bytes that came at \a microseconds, which is not before the last ones; none, when only time has
    /// passed. What they make whole is fetched
    /// with next().
    void feed(const QByteArray &bytes, qint64 microseconds);
    /// The next piece; false when there is none before more bytes come.
    bool next(LinePiece *piece);

    /// What waits for more bytes does so no longer: it is fetched with next().
    void giveUp();
    /// Forgets what is not yet whole.
    void clear();
    /// Bytes that wait for more, once next() was false.
    int waiting() const { return int(m_buffer.size()) - m_front; }

    const FrameFormat &format() const { return *m_format; }

private:
    // From which byte of the buffer on bytes came at a time.
    struct Mark
    {
        int from;
        qint64 microseconds;
    };

    enum Step { Found, Passed, Waits };

    Step step(LinePiece *piece);
    Step stepCandidate(LinePiece *piece);
    Step take(LinePiece::Kind kind, int size, LinePiece *piece);
    Step takeRun(LinePiece *piece);
    bool hasRun() const { return m_runFrom < m_front; }
    void pass(int count);
    void fill(LinePiece::Kind kind, int from, int size, LinePiece *piece) const;
    qint64 timeOf(int at) const;

    const FrameFormat *m_format;
    qint64 m_patience;
    QByteArray m_buffer;
    std::deque<Mark> m_marks;
    int m_front = 0;    // the byte to look at; what lies before m_runFrom is done with
    int m_runFrom = 0;  // bytes from here to the front were passed over and belong to one piece
    int m_rejected = 0; // bytes left of a candidate that turned out bad: no news in them but a whole package
    bool m_isRunOver = false; // what was passed over ends where a bad candidate did
    int m_stale = 0;          // bytes left that came too long ago to begin a package that is not whole by now
};

#endif // LINEFRAMER_H
