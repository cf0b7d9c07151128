#include "orblog.h"

#include "logtext.h"

namespace {

const char Magic[] = "# orblog ";

QString oneLine(const QString &text)
{
    return text.simplified();
}

} // namespace

QByteArray OrbLog::line(const LineRecord &record)
{
    const QByteArray content =
        record.kind == LineRecord::State ? oneLine(record.text).toUtf8() : record.bytes.toHex();
    return '(' + LogText::seconds(record.microseconds) + ") " + record.sign() + ' ' + content + '\n';
}

QByteArray OrbLog::lines(const LineLogHeader &header)
{
    const QString start = header.start.toUTC().toString("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'");
    const struct
    {
        const char *key;
        QString value;
    } rows[] = {{"type", header.type}, {"port", header.port}, {"line", header.settings}, {"start", start}};
    QByteArray lines = Magic + QByteArray::number(Version) + '\n';
    for (const auto &row : rows) {
        if (!row.value.isEmpty()) {
            lines += "# " + QByteArray(row.key) + ' ' + oneLine(row.value).toUtf8() + '\n';
        }
    }
    return lines;
}

bool OrbLog::read(const QByteArray &line, LineRecord *record)
{
    LogText::Cursor cursor(line);
    cursor.skipBlanks();
    if (!cursor.take('(') || !LogText::takeSeconds(&cursor, &record->microseconds) || !cursor.take(')')) {
        return false;
    }
    cursor.skipBlanks();
    const char sign = cursor.peek();
    for (const LineRecord::Kind kind :
         {LineRecord::ToUnit, LineRecord::ToBox, LineRecord::Unframed, LineRecord::State}) {
        record->kind = kind;
        if (record->sign() == sign) {
            ++cursor.at;
            if (kind == LineRecord::State) {
                record->text = QString::fromUtf8(cursor.rest()).trimmed();
                return true;
            }
            return LogText::readHex(cursor.rest(), &record->bytes);
        }
    }
    return false;
}

bool OrbLog::read(const QByteArray &line, LineLogHeader *header)
{
    LogText::Cursor cursor(line);
    if (!cursor.take('#')) {
        return false;
    }
    cursor.skipBlanks();
    const QByteArray key = cursor.word();
    const QString value = QString::fromUtf8(cursor.rest()).simplified();
    if (key == "type") {
        header->type = value;
    } else if (key == "port") {
        header->port = value;
    } else if (key == "line") {
        header->settings = value;
    } else if (key == "start") {
        header->start = QDateTime::fromString(value, Qt::ISODateWithMs).toUTC();
    } else {
        return false;
    }
    return true;
}

int OrbLog::version(const QByteArray &line)
{
    return line.startsWith(Magic) ? line.mid(int(sizeof Magic) - 1).trimmed().toInt() : 0;
}

TextLogReader::Outcome OrbLogReader::take(const QByteArray &line, LineRecord *record)
{
    const QByteArray text = line.trimmed();
    if (text.isEmpty() || text.startsWith('#')) {
        if (m_isInHeader) {
            OrbLog::read(text, &m_header);
        }
        return Comment;
    }
    if (!OrbLog::read(line, record)) {
        return Unread;
    }
    m_isInHeader = false;
    return Record;
}
