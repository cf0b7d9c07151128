#ifndef TIMESTAMP_H
#define TIMESTAMP_H

#include "logtext.h"

#include <QDateTime>

/// A time as a line of some log begins with it.
struct TimeStamp
{
    enum Kind {
        Missing,
        Offset,    ///< since some start: "12.345", "[12.345678]", "12345 ms", "+0.5s"
        TimeOfDay, ///< "01:07:20.123", "01:07:20:123", "1:07:20 PM"
        Date       ///< "2026-11-22T01:07:20.123Z", "22.11.2026 01:07:20", "1795309640.123"
    };

    Kind kind = Missing;
    qint64 microseconds = 0; ///< since the start, midnight, or 1970

    /// Takes a time in any common form, in brackets or not, with what parts it from the rest of the line. False, with
    /// the cursor where it was, when there is none. Numbers without a point or a unit are milliseconds, or seconds or
    /// smaller units since 1970 where they are long enough; they count only with \a wholeNumbers, since they may as well
    /// be bytes.
    bool take(LogText::Cursor *cursor, bool wholeNumbers);
};

/// Turns time stamps into the time since a log's start.
class LogClock
{
public:
    /// Microseconds for a record with \a stamp. One without goes with the record before, or, when no record has had
    /// one, 50 ms behind it. Times of day go on past midnight.
    qint64 at(const TimeStamp &stamp);

    /// The date at 0, once a stamp had one; what has no time zone counts as UTC.
    QDateTime start() const { return m_start; }
    /// Says that \a start is the date at 0, before the first record.
    void setStart(const QDateTime &start) { m_start = start; }
    /// Whether a stamp had a time.
    bool hasTimes() const { return m_kind != TimeStamp::Missing; }

private:
    void changeTo(const TimeStamp &stamp);

    TimeStamp::Kind m_kind = TimeStamp::Missing;
    qint64 m_base = 0;   // of the stamp that stands for 0
    qint64 m_latest = 0; // stamp, with days added
    qint64 m_days = 0;   // that went over midnight
    qint64 m_last = 0;   // of the records
    bool m_isFirst = true;
    QDateTime m_start;
};

#endif // TIMESTAMP_H
