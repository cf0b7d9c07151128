#ifndef ORBLOG_H
#define ORBLOG_H

#include "linelogwriter.h"
#include "textlogreader.h"

/// The bench's own log, `*.orblog`; docs/line-log.md describes it to the letter.
namespace OrbLog {

/// A record as one line, with its end: "(0.020000) < 2e8101017c\n".
QByteArray line(const LineRecord &record);

/// The header as lines, each with its end.
QByteArray lines(const LineLogHeader &header);

/// Reads a line, without its end, that line() has written, or somebody by hand: digits of either case, blanks between
/// them. False, with \a record anyhow, when it is no record.
bool read(const QByteArray &line, LineRecord *record);

/// Reads a line "# KEY VALUE", without its end, into \a header; false when it is none of the header's.
bool read(const QByteArray &line, LineLogHeader *header);

/// The number behind "# orblog " in the first line of a log; 0 when it is no such line.
int version(const QByteArray &line);

const int Version = 1;

} // namespace OrbLog

class OrbLogReader : public TextLogReader
{
public:
    using TextLogReader::TextLogReader;

protected:
    Outcome take(const QByteArray &line, LineRecord *record) override;

private:
    bool m_isInHeader = true;
};

class OrbLogWriter : public LineLogWriter
{
public:
    explicit OrbLogWriter(std::unique_ptr<QIODevice> device) : LineLogWriter(std::move(device)) {}

protected:
    void putHeader(const LineLogHeader &header) override { put(OrbLog::lines(header)); }
    void putRecord(const LineRecord &record) override { put(OrbLog::line(record)); }
};

#endif // ORBLOG_H
