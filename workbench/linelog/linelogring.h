#ifndef LINELOGRING_H
#define LINELOGRING_H

#include "linerecord.h"

#include <deque>

/// The last minute of a line, kept in memory: to be saved when something went wrong.
class LineLogRing
{
public:
    static constexpr qint64 Span = 60000000;                      ///< microseconds that are kept
    static constexpr qint64 MostMemory = qint64(4) * 1024 * 1024; ///< bytes that are used, all told

    void setHeader(const LineLogHeader &header) { m_header = header; }
    const LineLogHeader &header() const { return m_header; }

    /// Adds \a record, whose time is not before the last one's; what is older than 60 s, and what there is no room for,
    /// goes.
    void add(const LineRecord &record);
    /// What is kept, oldest first. Times are those that they came with.
    const std::deque<LineRecord> &records() const { return m_records; }
    /// Estimate of the memory in use, in bytes.
    qint64 memory() const { return m_memory; }
    void clear();

    /// Writes what is kept to the file \a path in the bench's own format, whole or not at all: a file of that name is
    /// replaced only by a whole one. False, with one sentence in \a error, when that cannot be done.
    bool save(const QString &path, QString *error) const;

private:
    LineLogHeader m_header;
    std::deque<LineRecord> m_records;
    qint64 m_memory = 0;
};

#endif // LINELOGRING_H
