#ifndef LOGTEXT_H
#define LOGTEXT_H

#include <QByteArray>

/// Numbers and bytes as logs write them.
namespace LogText {

/// A place in a text, which moves on as it is read.
struct Cursor
{
    const char *at;
    const char *end;

    explicit Cursor(const QByteArray &text) : at(text.constData()), end(text.constData() + text.size()) {}

    bool isAtEnd() const { return at == end; }
    /// The next character; NUL at the end.
    char peek(int ahead = 0) const { return end - at > ahead ? at[ahead] : '\0'; }
    /// Takes \a character if it is the next one.
    bool take(char character);
    void skipBlanks();
    /// Takes what is up to the next blank.
    QByteArray word();
    QByteArray rest() const { return QByteArray(at, int(end - at)); }
};

bool isDigit(char character);
/// Value of a hexadecimal digit of either case, -1 for another character.
int hexDigit(char character);

/// No stamp in a log is later, counted in seconds from its start or from 1970: past the year 5000.
const qint64 LatestSecond = 100000000000;

/// Takes "SECONDS" or "SECONDS.FRACTION" with a point or a comma; digits past the microseconds are dropped. False, with
/// the cursor anywhere, when there is none or it is later than twice the latest: records without a stamp, or with a time
/// of day only, come after the latest stamp.
bool takeSeconds(Cursor *cursor, qint64 *microseconds);

/// Reads all of \a text, pairs of digits with blanks between pairs at will. False, with \a bytes as far as whole, when
/// there is anything else or no pair.
bool readHex(const QByteArray &text, QByteArray *bytes);

/// "12.345678"
QByteArray seconds(qint64 microseconds);

} // namespace LogText

#endif // LOGTEXT_H
