#include "hexlines.h"

#include "hexline.h"
#include "orblog.h"

namespace {
const char HeaderMark[] = "# hexadecimal lines of an orblog 1";
} // namespace

TextLogReader::Outcome HexLinesReader::take(const QByteArray &line, LineRecord *record)
{
    const QByteArray text = line.trimmed();
    if (text.startsWith('#')) {
        LineRecord state;
        if (OrbLog::read(text.mid(1), &state) && state.kind == LineRecord::State) {
            *record = state;
            return Record;
        }
        takeComment(text);
        return Comment;
    }
    if (text.isEmpty() || text.startsWith(';') || text.startsWith("//") ||
        (text.startsWith("--") && !text.startsWith("-->")) || text.startsWith('*')) {
        return Comment;
    }
    TimeStamp stamp;
    if (!HexLine::read(text, &stamp, record)) {
        return Unread;
    }
    setTime(stamp, record);
    return Record;
}

// People write comments that look like a header's; ours begins with a line that says so.
void HexLinesReader::takeComment(const QByteArray &text)
{
    if (line() == 1) {
        m_isInHeader = text == HeaderMark;
    }
    if (m_isInHeader && OrbLog::read(text, &m_header) && m_header.start.isValid()) {
        m_clock.setStart(m_header.start);
    }
}

void HexLinesReader::setTime(const TimeStamp &stamp, LineRecord *record)
{
    m_isInHeader = false;
    record->microseconds = m_clock.at(stamp);
    m_header.start = m_clock.start();
    m_hasTimes = m_clock.hasTimes();
}

TextLogReader::Outcome PatternReader::take(const QByteArray &line, LineRecord *record)
{
    const QRegularExpressionMatch match = m_pattern.match(QString::fromUtf8(line));
    if (!match.hasMatch()) {
        return line.trimmed().isEmpty() ? Comment : Unread;
    }
    const QByteArray hex = match.captured("hex").toUtf8();
    const QByteArray time = match.captured("time").trimmed().toUtf8();
    const QByteArray direction = match.captured("dir").trimmed().toUtf8();
    LogText::Cursor hexCursor(hex);
    LogText::Cursor timeCursor(time);
    LogText::Cursor directionCursor(direction);
    TimeStamp stamp;
    stamp.take(&timeCursor, true);
    if (!direction.isEmpty() && !HexLine::takeDirection(&directionCursor, &record->kind)) {
        skip("directions that mean nothing, taken as towards the unit");
    }
    record->bytes = HexLine::takeBytes(&hexCursor);
    if (record->bytes.isEmpty()) {
        return Unread;
    }
    setTime(stamp, record);
    return Record;
}

void HexLinesWriter::putHeader(const LineLogHeader &header)
{
    const QByteArray lines = OrbLog::lines(header);
    put(HeaderMark + lines.mid(lines.indexOf('\n')));
}

void HexLinesWriter::putRecord(const LineRecord &record)
{
    if (record.kind == LineRecord::State) {
        put("# " + OrbLog::line(record));
        return;
    }
    put(LogText::seconds(record.microseconds) + ' ' + record.sign() + ' ' +
        record.bytes.toHex(' ').toUpper() + '\n');
}
