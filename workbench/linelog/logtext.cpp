#include "logtext.h"

namespace {

const qint64 MicrosecondsPerSecond = 1000000;

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

} // namespace

bool LogText::Cursor::take(char character)
{
    const bool isThere = at != end && *at == character;
    at += isThere ? 1 : 0;
    return isThere;
}

void LogText::Cursor::skipBlanks()
{
    while (at != end && isBlank(*at)) {
        ++at;
    }
}

QByteArray LogText::Cursor::word()
{
    const char *const begin = at;
    while (at != end && !isBlank(*at)) {
        ++at;
    }
    return QByteArray(begin, int(at - begin));
}

bool LogText::isDigit(char character)
{
    return character >= '0' && character <= '9';
}

int LogText::hexDigit(char character)
{
    if (isDigit(character)) {
        return character - '0';
    }
    const char lower = char(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool LogText::takeSeconds(Cursor *cursor, qint64 *microseconds)
{
    if (!isDigit(cursor->peek())) {
        return false;
    }
    qint64 whole = 0;
    for (; isDigit(cursor->peek()); ++cursor->at) {
        whole = whole * 10 + hexDigit(cursor->peek());
        if (whole > 2 * LatestSecond) {
            return false;
        }
    }
    qint64 fraction = 0;
    if ((cursor->peek() == '.' || cursor->peek() == ',') && isDigit(cursor->peek(1))) {
        ++cursor->at;
        qint64 unit = MicrosecondsPerSecond;
        for (; isDigit(cursor->peek()); ++cursor->at) {
            unit /= 10;
            fraction += unit * hexDigit(cursor->peek());
        }
    }
    *microseconds = whole * MicrosecondsPerSecond + fraction;
    return true;
}

bool LogText::readHex(const QByteArray &text, QByteArray *bytes)
{
    bytes->resize(int(text.size()) / 2);
    int count = 0;
    Cursor cursor(text);
    for (cursor.skipBlanks(); !cursor.isAtEnd(); cursor.skipBlanks()) {
        const int high = hexDigit(cursor.peek());
        const int low = hexDigit(cursor.peek(1));
        if (high < 0 || low < 0) {
            break;
        }
        (*bytes)[count++] = char(high << 4 | low);
        cursor.at += 2;
    }
    bytes->truncate(count);
    return cursor.isAtEnd() && count > 0;
}

QByteArray LogText::seconds(qint64 microseconds)
{
    return QByteArray::number(microseconds / MicrosecondsPerSecond) + '.' +
           QByteArray::number(microseconds % MicrosecondsPerSecond).rightJustified(6, '0');
}
