#ifndef LINERECORD_H
#define LINERECORD_H

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// One entry of a line log: what came or left at once, or what became of the line.
///
/// Each byte of the line stands in a log once, in the order in which it came: what was played to the unit is that of
/// ToUnit and Unframed together.
struct LineRecord
{
    enum Kind : quint8 {
        ToUnit,   ///< '<': bytes from the box
        ToBox,    ///< '>': bytes from the unit
        Unframed, ///< '!': bytes from the box that begin no package and answer none
        State     ///< '#': what became of the line: "opened", "lost: no such device", "back", "silent"
    };

    qint64 microseconds = 0; ///< since the log's start, never less than that of the record before
    Kind kind = ToUnit;
    QByteArray bytes; ///< at least one, but none of State
    QString text;     ///< of State only: one line

    bool isTowardsUnit() const { return kind == ToUnit || kind == Unframed; }
    /// '<', '>', '!' or '#'.
    char sign() const { return "<>!#"[kind]; }

    bool operator==(const LineRecord &other) const
    {
        return microseconds == other.microseconds && kind == other.kind && bytes == other.bytes &&
               text == other.text;
    }
};

/// What a log says about the line as a whole. What is not known is empty.
struct LineLogHeader
{
    QString settings; ///< of the line: "38400 8N1"
    QString type;     ///< CAN-bus type of the unit: "7 CanBus_Raise_Honda"
    QString port;     ///< "/dev/ttyUSB0"
    QDateTime start;  ///< when LineRecord::microseconds was 0; UTC, to the millisecond

    bool operator==(const LineLogHeader &other) const
    {
        return settings == other.settings && type == other.type && port == other.port && start == other.start;
    }
};

#endif // LINERECORD_H
