#include "boxlog.h"

#include "logtext.h"

bool BoxLogReader::readLine(const QByteArray &line, LineRecord *record)
{
    LogText::Cursor cursor(line);
    cursor.skipBlanks();
    if (!LogText::takeSeconds(&cursor, &record->microseconds) || cursor.peek() != ' ') {
        return false;
    }
    cursor.skipBlanks();
    const QByteArray direction = cursor.word();
    cursor.skipBlanks();
    if (direction == "box") {
        record->kind = LineRecord::State;
        record->text = QString::fromUtf8(cursor.rest());
        return true;
    }
    record->kind = direction == "unit>box" ? LineRecord::ToBox : LineRecord::ToUnit;
    return (direction == "unit>box" || direction == "box>unit") &&
           LogText::readHex(cursor.word(), &record->bytes);
}

TextLogReader::Outcome BoxLogReader::take(const QByteArray &line, LineRecord *record)
{
    return line.trimmed().isEmpty() ? Comment : readLine(line, record) ? Record : Unread;
}
