#ifndef LINEPACKAGES_H
#define LINEPACKAGES_H

#include "lineframer.h"
#include "linelogcounts.h"
#include "linerecord.h"

#include <QQueue>
#include <QVector>

/// The packages of both directions in the records of a log, in order; for formats that hold packages, not chunks.
class LinePackages
{
public:
    /// A record of one piece, with what it is. An Unframed one is a Skipped piece, a State's has no meaning.
    struct Item
    {
        LineRecord record;
        LinePiece::Kind piece = LinePiece::Skipped;
    };

    /// \a changes, when given, counts chunks that were no single piece; it is not owned.
    explicit LinePackages(const FrameFormat &format, LineLogCounts *changes = nullptr)
        : m_toUnit(format), m_toBox(format), m_changes(changes)
    {}

    /// Takes the next record of the log; what it makes whole is fetched with next().
    void feed(const LineRecord &record);
    /// The log ends: what waits for more waits no longer.
    void finish();
    /// The next piece, with times that never run backwards; false when there is none before more records come.
    bool next(Item *item);

    /// The format of which most packages stand in \a records; Raise when there are none.
    static const FrameFormat &formatOf(const QVector<LineRecord> &records);

    const FrameFormat &format() const { return m_toUnit.format(); }

private:
    void fetch(LineFramer *framer, LineRecord::Kind kind);
    void append(const LineRecord &record, LinePiece::Kind piece);

    LineFramer m_toUnit;
    LineFramer m_toBox;
    LineLogCounts *m_changes;
    QQueue<Item> m_items;
    qint64 m_last = 0;
};

#endif // LINEPACKAGES_H
