#include "hexline.h"

#include <cctype>
#include <cstring>

namespace {

using LogText::Cursor;

const int MostWords = 4;   // of no meaning that may stand in front of the bytes
const int FewestBytes = 3; // that count as a package when other text goes on behind them
const int DumpWidth = 16;  // bytes in a line of a hex dump
const char CommentSigns[] = "#;/|'\"([<*";
const char Separators[] = " \t,:-{}[]()\"";

// In lower case, with the signs around them taken off.
const struct
{
    const char *word;
    LineRecord::Kind kind;
} Directions[] = {
    {"rx", LineRecord::ToUnit},
    {"tx", LineRecord::ToBox},
    {"in", LineRecord::ToUnit},
    {"out", LineRecord::ToBox},
    {"recv", LineRecord::ToUnit},
    {"send", LineRecord::ToBox},
    {"received", LineRecord::ToUnit},
    {"sent", LineRecord::ToBox},
    {"receive", LineRecord::ToUnit},
    {"read", LineRecord::ToUnit},
    {"write", LineRecord::ToBox},
    {"rcv", LineRecord::ToUnit},
    {"snd", LineRecord::ToBox},
    {"rd", LineRecord::ToUnit},
    {"wr", LineRecord::ToBox},
    {"r", LineRecord::ToUnit},
    {"w", LineRecord::ToBox},
    {"rxd", LineRecord::ToUnit},
    {"txd", LineRecord::ToBox},
    {"t", LineRecord::ToBox},
    {"i", LineRecord::ToUnit},
    {"o", LineRecord::ToBox},
    {"box>unit", LineRecord::ToUnit},
    {"unit>box", LineRecord::ToBox},
    {"box->unit", LineRecord::ToUnit},
    {"unit->box", LineRecord::ToBox},
    {"box", LineRecord::ToUnit},
    {"unit", LineRecord::ToBox},
    {"irp_mj_read", LineRecord::ToUnit},
    {"irp_mj_write", LineRecord::ToBox},
};

bool isOneOf(char character, const char *set)
{
    return character != '\0' && std::strchr(set, character);
}

void skip(Cursor *cursor, const char *set)
{
    while (isOneOf(cursor->peek(), set)) {
        ++cursor->at;
    }
}

int hexDigits(const Cursor &cursor)
{
    int count = 0;
    while (LogText::hexDigit(cursor.peek(count)) >= 0) {
        ++count;
    }
    return count;
}

// "0x2E", "\x2E", "$2E", "2Eh", "2E", "2e2002", "0x5". False when these are no bytes.
bool takeToken(Cursor *cursor, QByteArray *bytes)
{
    Cursor at = *cursor;
    const bool isMarked = at.take('$') || (at.peek() == '0' && (at.peek(1) | 0x20) == 'x') ||
                          (at.peek() == '\\' && at.peek(1) == 'x');
    at.at += isMarked && at.peek(1) != '\0' && (at.peek(1) | 0x20) == 'x' ? 2 : 0;
    const int count = hexDigits(at);
    const char next = at.peek(count);
    const bool isSuffixed = (next == 'h' || next == 'H') && count > 1;
    const char behind = isSuffixed ? at.peek(count + 1) : next;
    const bool runsOn = (std::isalnum(uchar(behind)) || behind == '_' || uchar(behind) > 0x7F) ||
                        (behind == '.' && std::isalnum(uchar(at.peek(count + 1))));
    if (count == 0 || runsOn || (count % 2 != 0 && !(isMarked && count == 1))) {
        return false;
    }
    if (count == 1) {
        *bytes += char(LogText::hexDigit(at.peek()));
    }
    for (int i = 0; i + 1 < count; i += 2) {
        *bytes += char(LogText::hexDigit(at.peek(i)) << 4 | LogText::hexDigit(at.peek(i + 1)));
    }
    at.at += count + (isSuffixed ? 1 : 0);
    *cursor = at;
    return true;
}

// A number at the start of the line that can be no byte: "1234 2E 20", "102: 2E", "1795309640123 RX 2E".
bool beginsWithNumber(const Cursor &line)
{
    int count = 0;
    while (LogText::isDigit(line.peek(count))) {
        ++count;
    }
    Cursor behind = line;
    behind.at += count;
    if (count < 3 || !isOneOf(behind.peek(), " \t,;:")) {
        return false;
    }
    const bool isLabel = behind.peek() == ':' && behind.peek(1) == ' ';
    skip(&behind, " \t,;:");
    const bool isMarked = behind.peek() == '0' && behind.peek(1) == 'x';
    LineRecord::Kind kind = LineRecord::ToUnit;
    return isLabel || count % 2 != 0 || hexDigits(behind) == 2 || isMarked ||
           HexLine::takeDirection(&behind, &kind);
}

// "00000010  2e 20" and "00000010: 2e20".
bool takeDumpOffset(Cursor *cursor, bool *isColumned)
{
    const int count = hexDigits(*cursor);
    if (count < 7 || count > 8 || cursor->peek() != '0') {
        return false;
    }
    *isColumned = cursor->peek(count) == ':';
    if (!*isColumned && (cursor->peek(count) != ' ' || cursor->peek(count + 1) != ' ')) {
        return false;
    }
    cursor->at += count + 1;
    return true;
}

QByteArray takeDumpBytes(Cursor *cursor, bool isColumned)
{
    QByteArray bytes;
    cursor->skipBlanks();
    while (bytes.size() < DumpWidth && takeToken(cursor, &bytes)) {
        if (isColumned && cursor->peek() == ' ' && cursor->peek(1) == ' ') {
            break;
        }
        cursor->skipBlanks();
    }
    return bytes.left(DumpWidth);
}

// Whether what stands behind bytes is no part of them: nothing, a comment, another column.
bool isCleanEnd(const Cursor &cursor, const char *endOfBytes)
{
    const bool isFar = cursor.at - endOfBytes >= 2 || (cursor.at > endOfBytes && *endOfBytes == '\t');
    return cursor.isAtEnd() || isFar || isOneOf(cursor.peek(), CommentSigns);
}

} // namespace

bool HexLine::takeDirection(Cursor *cursor, LineRecord::Kind *kind)
{
    Cursor at = *cursor;
    skip(&at, " \t[(");
    const char *const begin = at.at;
    skip(&at, "<>=-!");
    const QByteArray signs(begin, int(at.at - begin));
    if (!signs.isEmpty()) {
        const bool isLeft = signs.contains('<');
        if (signs == "!") {
            *kind = LineRecord::Unframed;
        } else if (isLeft == signs.contains('>')) {
            return false;
        } else {
            *kind = isLeft ? LineRecord::ToUnit : LineRecord::ToBox;
        }
        *cursor = at;
        return true;
    }
    while (std::isalpha(uchar(at.peek())) || (at.at > begin && isOneOf(at.peek(), "_>-") &&
                                              std::isalpha(uchar(at.peek(at.peek() == '-' ? 2 : 1))))) {
        ++at.at;
    }
    const QByteArray word = QByteArray(begin, int(at.at - begin)).toLower();
    for (const auto &row : Directions) {
        if (word == row.word && !std::isalnum(uchar(at.peek()))) {
            skip(&at, ")]:>=-|, \t");
            *kind = row.kind;
            *cursor = at;
            return true;
        }
    }
    return false;
}

QByteArray HexLine::takeBytes(Cursor *cursor)
{
    QByteArray bytes;
    Cursor at = *cursor;
    skip(&at, Separators);
    while (takeToken(&at, &bytes)) {
        *cursor = at;
        skip(&at, Separators);
    }
    return bytes;
}

bool HexLine::read(const QByteArray &line, TimeStamp *stamp, LineRecord *record)
{
    Cursor cursor(line);
    cursor.skipBlanks();
    bool isColumned = false;
    if (takeDumpOffset(&cursor, &isColumned)) {
        record->bytes = takeDumpBytes(&cursor, isColumned);
        return !record->bytes.isEmpty();
    }
    bool hasDirection = false;
    const bool isNumbered = beginsWithNumber(cursor);
    int words = 0;
    for (; words <= MostWords && !cursor.isAtEnd(); ++words) {
        if (stamp->kind == TimeStamp::Missing) {
            stamp->take(&cursor, isNumbered && words == 0);
        }
        hasDirection = hasDirection || takeDirection(&cursor, &record->kind);
        if (stamp->kind == TimeStamp::Missing) {
            stamp->take(&cursor, false);
        }
        record->bytes = takeBytes(&cursor);
        if (!record->bytes.isEmpty()) {
            break;
        }
        cursor.skipBlanks();
        cursor.word();
    }
    const char *const endOfBytes = cursor.at;
    cursor.skipBlanks();
    const bool isSure = record->bytes.size() >= FewestBytes && (words == 0 || hasDirection);
    skip(&cursor, ",}])");
    return !record->bytes.isEmpty() && (isSure || isCleanEnd(cursor, endOfBytes));
}
