#include "timestamp.h"

#include <cctype>
#include <cstring>

namespace {

const qint64 Second = 1000000; // microseconds
const qint64 Day = 86400 * Second;
const qint64 EarliestDate = 100000000 * Second; // numbers from here on count from 1970
const qint64 GuessedGap = 50000;                // between records without times: room for an acknowledgement
const qint64 MostDays = 36500;
const char MonthNames[] = "JanFebMarAprMayJunJulAugSepOctNovDec";

using LogText::Cursor;

// A number of \a fewest to \a most digits, and no more of them behind it.
bool takeNumber(Cursor *cursor, int fewest, int most, int *number)
{
    int count = 0;
    *number = 0;
    for (; count < most && LogText::isDigit(cursor->peek()); ++cursor->at, ++count) {
        *number = *number * 10 + LogText::hexDigit(cursor->peek());
    }
    return count >= fewest && !LogText::isDigit(cursor->peek());
}

// "01:07:20.123", "01:07:20,123", "01:07:20:123", "1:07:20 PM".
bool takeTimeOfDay(Cursor *cursor, qint64 *microseconds)
{
    int hours = 0;
    int minutes = 0;
    if (!takeNumber(cursor, 1, 2, &hours) || !cursor->take(':') || !takeNumber(cursor, 2, 2, &minutes) ||
        !cursor->take(':') || hours > 23 || minutes > 59) {
        return false;
    }
    if (!LogText::takeSeconds(cursor, microseconds) || *microseconds > 60 * Second) {
        return false;
    }
    int thousandths = 0;
    Cursor behind = *cursor;
    if (behind.take(':') && takeNumber(&behind, 3, 3, &thousandths)) {
        *microseconds += qint64(thousandths) * 1000;
        *cursor = behind;
    }
    behind = *cursor;
    behind.skipBlanks();
    const char half = char(behind.peek() & ~0x20);
    if ((half == 'A' || half == 'P') && (behind.peek(1) & ~0x20) == 'M') {
        behind.at += 2;
        *cursor = behind;
        hours = hours % 12 + (half == 'P' ? 12 : 0);
    }
    *microseconds += (hours * 3600 + minutes * 60) * Second;
    return cursor->peek() != ':' || LogText::hexDigit(cursor->peek(1)) < 0; // else they are bytes
}

// "2026-11-22", "2026/11/22", "22.11.2026", "11/22/2026".
bool takeDate(Cursor *cursor, QDate *date)
{
    int numbers[3] = {};
    char sign = '\0';
    for (int i = 0; i < 3; ++i) {
        if (i == 1) {
            sign = cursor->peek();
        }
        if ((i > 0 && (!std::strchr("-/.", sign) || !cursor->take(sign))) ||
            !takeNumber(cursor, 1, 4, &numbers[i])) {
            return false;
        }
    }
    if (numbers[0] > 31) {
        *date = QDate(numbers[0], numbers[1], numbers[2]);
    } else if (sign == '/' && numbers[0] <= 12) {
        *date = QDate(numbers[2], numbers[0], numbers[1]);
    } else {
        *date = QDate(numbers[2], numbers[1], numbers[0]);
    }
    return date->isValid() && date->year() >= 1970 && date->year() <= 5000;
}

// "Z", "+01:00", "-0330": seconds east of Greenwich.
qint64 takeZone(Cursor *cursor)
{
    if (cursor->take('Z')) {
        return 0;
    }
    Cursor begin = *cursor;
    const int sign = begin.take('+') ? 1 : begin.take('-') ? -1 : 0;
    Cursor behind = begin;
    int hours = 0;
    int minutes = 0;
    bool ok = takeNumber(&behind, 4, 4, &minutes);
    if (ok) {
        hours = minutes / 100;
        minutes %= 100;
    } else {
        behind = begin;
        ok = takeNumber(&behind, 2, 2, &hours) && behind.take(':') && takeNumber(&behind, 2, 2, &minutes);
    }
    if (!ok || sign == 0 || hours > 14 || minutes > 59) {
        return 0;
    }
    *cursor = behind;
    return qint64(sign) * (hours * 3600 + minutes * 60);
}

bool takeDateAndTime(Cursor *cursor, TimeStamp *stamp)
{
    QDate date;
    if (!takeDate(cursor, &date)) {
        return false;
    }
    cursor->take('T') || cursor->take(',') || cursor->take('_');
    cursor->skipBlanks();
    if (!takeTimeOfDay(cursor, &stamp->microseconds)) {
        return false;
    }
    stamp->kind = TimeStamp::Date;
    const qint64 days = date.toJulianDay() - QDate(1970, 1, 1).toJulianDay();
    stamp->microseconds += days * Day - takeZone(cursor) * Second;
    return true;
}

// "Nov 22 01:07:20": a date without a year is none.
bool takeSystemTime(Cursor *cursor, TimeStamp *stamp)
{
    const QByteArray month = cursor->word();
    const int found = month.size() == 3 ? int(QByteArray(MonthNames).indexOf(month)) : -1;
    int day = 0;
    cursor->skipBlanks();
    if (found < 0 || found % 3 != 0 || !takeNumber(cursor, 1, 2, &day)) {
        return false;
    }
    cursor->skipBlanks();
    stamp->kind = TimeStamp::TimeOfDay;
    return takeTimeOfDay(cursor, &stamp->microseconds);
}

// The unit behind a number, in microseconds; 0 when there is none.
qint64 takeUnit(Cursor *cursor)
{
    const struct
    {
        const char *name;
        qint64 microseconds;
    } units[] = {{"ms", 1000}, {"us", 1}, {"\xC2\xB5s", 1}, {"sec", Second}, {"s", Second}};
    Cursor behind = *cursor;
    behind.skipBlanks();
    for (const auto &unit : units) {
        const int size = int(std::strlen(unit.name));
        if (behind.rest().startsWith(unit.name) && !std::isalnum(uchar(behind.peek(size)))) {
            behind.at += size;
            *cursor = behind;
            return unit.microseconds;
        }
    }
    return 0;
}

bool takeOffset(Cursor *cursor, bool wholeNumbers, TimeStamp *stamp)
{
    cursor->take('+');
    const char *const begin = cursor->at;
    qint64 digits = 0;
    int count = 0;
    for (; LogText::isDigit(cursor->peek()) && count < 17; ++cursor->at, ++count) {
        digits = digits * 10 + LogText::hexDigit(cursor->peek());
    }
    stamp->kind = TimeStamp::Offset;
    if (count == 0 || LogText::isDigit(cursor->peek())) {
        return false;
    }
    qint64 unit = 0;
    const bool hasPoint = cursor->peek() == '.' || cursor->peek() == ',';
    if (hasPoint && LogText::isDigit(cursor->peek(1))) {
        cursor->at = begin;
        if (!LogText::takeSeconds(cursor, &stamp->microseconds)) {
            return false;
        }
        unit = takeUnit(cursor);
        if (unit != 0) {
            stamp->microseconds =
                unit == Second ? stamp->microseconds : stamp->microseconds / (Second / unit);
        }
    } else {
        unit = takeUnit(cursor);
        if (unit == 0 && !wholeNumbers) {
            return false;
        }
        if (unit == 0) {
            unit = count >= 16 ? 1 : count == 10 ? Second : 1000;
        }
        if (digits > LogText::LatestSecond * (Second / unit)) {
            return false;
        }
        stamp->microseconds = digits * unit;
    }
    if (stamp->microseconds >= EarliestDate) {
        stamp->kind = TimeStamp::Date;
    }
    return stamp->microseconds <= LogText::LatestSecond * Second;
}

} // namespace

bool TimeStamp::take(Cursor *cursor, bool wholeNumbers)
{
    Cursor begin = *cursor;
    begin.skipBlanks();
    const char bracket = begin.peek();
    const char closing = bracket == '(' ? ')' : bracket == '[' ? ']' : '\0';
    if (closing != '\0') {
        ++begin.at;
        begin.skipBlanks();
    }
    TimeStamp stamp;
    Cursor at = begin;
    bool ok = takeDateAndTime(&at, &stamp);
    if (!ok) {
        at = begin;
        stamp.kind = TimeOfDay;
        ok = takeTimeOfDay(&at, &stamp.microseconds);
    }
    if (!ok) {
        at = begin;
        ok = takeSystemTime(&at, &stamp);
    }
    if (!ok) {
        at = begin;
        ok = takeOffset(&at, wholeNumbers || closing != '\0', &stamp);
    }
    const bool runsOn = std::isalnum(uchar(at.peek())); // "12.5A" is none
    at.skipBlanks();
    if (!ok || runsOn || (closing != '\0' && !at.take(closing))) {
        return false;
    }
    while (at.peek() != '\0' && std::strchr(":,;| \t", at.peek())) {
        ++at.at;
    }
    *this = stamp;
    *cursor = at;
    return true;
}

qint64 LogClock::at(const TimeStamp &stamp)
{
    if (stamp.kind == TimeStamp::Missing) {
        m_last += hasTimes() || m_isFirst ? 0 : GuessedGap;
        m_isFirst = false;
        return m_last;
    }
    if (stamp.kind != m_kind) {
        changeTo(stamp);
    }
    qint64 time = stamp.microseconds + m_days * Day;
    if (stamp.kind == TimeStamp::TimeOfDay && time < m_latest - Day / 2 && m_days < MostDays) {
        ++m_days;
        time += Day;
    }
    m_latest = time;
    m_last = time - m_base;
    m_isFirst = false;
    return m_last;
}

// Another kind of time goes on from the last record. The first one begins the log: a date at its whole second, so that
// what else was logged in that second fits in.
void LogClock::changeTo(const TimeStamp &stamp)
{
    m_kind = stamp.kind;
    m_days = 0;
    m_latest = stamp.microseconds;
    m_base = stamp.kind == TimeStamp::Offset ? 0 : stamp.microseconds - m_last;
    if (stamp.kind != TimeStamp::Date) {
        return;
    }
    if (!m_start.isValid()) {
        m_base -= m_base % Second;
        m_start = QDateTime::fromMSecsSinceEpoch(m_base / 1000, Qt::UTC);
    } else {
        m_base = m_start.toMSecsSinceEpoch() * 1000;
    }
}
