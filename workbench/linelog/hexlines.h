#ifndef HEXLINES_H
#define HEXLINES_H

#include "linelogwriter.h"
#include "textlogreader.h"
#include "timestamp.h"

#include <QRegularExpression>

/// Reads lines of bytes as HexLine knows them, with comments between them. What the bench's own header and states say
/// is understood in comments.
class HexLinesReader : public TextLogReader
{
public:
    using TextLogReader::TextLogReader;

protected:
    Outcome take(const QByteArray &line, LineRecord *record) override;

    /// Puts the time of \a stamp into \a record.
    void setTime(const TimeStamp &stamp, LineRecord *record);

private:
    void takeComment(const QByteArray &text);

    LogClock m_clock;
    bool m_isInHeader = false;
};

/// Reads lines as a regular expression takes them apart.
class PatternReader : public HexLinesReader
{
public:
    /// \a pattern is valid and has the group "hex"; the groups "time" and "dir" may be missing.
    PatternReader(std::unique_ptr<QIODevice> device, const QRegularExpression &pattern)
        : HexLinesReader(std::move(device)), m_pattern(pattern)
    {}

protected:
    Outcome take(const QByteArray &line, LineRecord *record) override;

private:
    QRegularExpression m_pattern;
};

/// Writes "12.345678 < 2E 81 01 01 7C", which HexLinesReader reads as it was.
class HexLinesWriter : public LineLogWriter
{
public:
    explicit HexLinesWriter(std::unique_ptr<QIODevice> device) : LineLogWriter(std::move(device)) {}

protected:
    void putHeader(const LineLogHeader &header) override;
    void putRecord(const LineRecord &record) override;
};

#endif // HEXLINES_H
