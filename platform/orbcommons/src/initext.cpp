#include "initext.h"

#include <QCryptographicHash>
#include <QStringList>

namespace {

const char HeadLine[] =
    "; Kept by the head unit. Remove this line and the last one to edit the file by hand.\n";
const char ChecksumMark[] = "; sha1=";
const int ChecksumDigits = 40;

QByteArray checksumLine(const QByteArray &content)
{
    return ChecksumMark + QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex() + '\n';
}

QString hexEscape(QChar c)
{
    return QString("\\u%1").arg(uint(c.unicode()), 4, 16, QChar('0'));
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f;
}

/// \a special: characters that mean something else where the text is going to stand.
QString escaped(const QString &text, const QString &special)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool trimmedAway = c.isSpace() && (i == 0 || i == text.size() - 1);
        if (c == QChar('\\')) {
            result += "\\\\";
        } else if (isControl(c) || special.contains(c) || trimmedAway) {
            result += hexEscape(c);
        } else {
            result += c;
        }
    }
    return result;
}

QString unescaped(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        bool isHex = false;
        const QString next = text.mid(i + 1, 1);
        const uint code = text.mid(i + 2, 4).toUInt(&isHex, 16);
        if (text.at(i) == QChar('\\') && next == "\\") {
            result += QChar('\\');
            i += 1;
        } else if (text.at(i) == QChar('\\') && next == "u" && isHex && i + 5 < text.size()) {
            result += QChar(ushort(code));
            i += 5;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

/// Whether \a line may be \a own after some damage: half of it or more, though moved by a few places.
bool resembles(const QByteArray &line, const QByteArray &own)
{
    const int mostShift = 8;
    for (int shift = -mostShift; shift <= mostShift; ++shift) {
        int same = 0;
        for (int i = qMax(0, -shift); i < own.size() && i + shift < line.size(); ++i) {
            same += line.at(i + shift) == own.at(i);
        }
        if (same * 2 >= own.size()) {
            return true;
        }
    }
    return false;
}

/// The same for a checksum's line, of which the sum itself is anything.
bool resemblesChecksum(const QByteArray &line)
{
    int digits = 0;
    for (int i = 0; i < line.size(); ++i) {
        const char c = line.at(i);
        digits += (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
    }
    // Some of its digits may be gone, but no line by hand has so many and little else.
    const bool isHash = digits * 4 >= ChecksumDigits * 3 && digits * 4 >= int(line.size()) * 3;
    return isHash || resembles(line.left(int(sizeof ChecksumMark) - 1), ChecksumMark);
}

/// Whether a file that bears our first or last line, or what is left of them, is as it was written.
bool isWhole(const QByteArray &bytes)
{
    const QByteArray head(HeadLine);
    if (head.startsWith(bytes)) {
        return false;
    }
    const int lastLine = int(bytes.lastIndexOf('\n', bytes.size() - 2)) + 1;
    if (!resembles(bytes.left(head.size()), head) && !resemblesChecksum(bytes.mid(lastLine))) {
        return true;
    }
    return bytes.startsWith(head) && bytes.mid(lastLine) == checksumLine(bytes.left(lastLine));
}

/// One line without blanks at its ends; false when it means nothing.
bool readLine(const QString &line, QString *section, IniText::Sections *sections)
{
    if (line.isEmpty() || line.startsWith(';') || line.startsWith('#')) {
        return true;
    }
    if (line.startsWith('[') && line.endsWith(']')) {
        *section = unescaped(line.mid(1, line.size() - 2).trimmed());
        return true;
    }
    const int equals = int(line.indexOf('='));
    if (equals <= 0) {
        return false;
    }
    QString value = line.mid(equals + 1).trimmed();
    if (value.size() > 1 && value.startsWith('"') && value.endsWith('"')) {
        value = value.mid(1, value.size() - 2);
    }
    (*sections)[*section].insert(unescaped(line.left(equals).trimmed()), unescaped(value));
    return true;
}

} // namespace

QByteArray IniText::write(const Sections &sections)
{
    QByteArray bytes(HeadLine);
    for (Sections::const_iterator s = sections.constBegin(); s != sections.constEnd(); ++s) {
        // The section without a name sorts first, where it needs no heading.
        if (!s.key().isEmpty()) {
            bytes += '[' + escaped(s.key(), "[]").toUtf8() + "]\n";
        }
        for (Section::const_iterator v = s.value().constBegin(); v != s.value().constEnd(); ++v) {
            bytes += escaped(v.key(), "=[;#").toUtf8() + '=' + escaped(v.value(), "\"").toUtf8() + '\n';
        }
    }
    return bytes + checksumLine(bytes);
}

bool IniText::read(const QByteArray &bytes, Sections *sections)
{
    if (!isWhole(bytes)) {
        return false;
    }
    // A mark that some editors put before the text.
    const QByteArray utf8 = bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes;
    const QString text = QString::fromUtf8(utf8.constData(), int(utf8.size()));
    if (text.toUtf8() != utf8) {
        return false;
    }
    Sections found;
    QString section;
    const QStringList lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        for (int k = 0; k < line.size(); ++k) {
            if (isControl(line.at(k)) && line.at(k) != QChar('\t')) {
                return false;
            }
        }
        if (!readLine(line, &section, &found)) {
            return false;
        }
    }
    *sections = found;
    return true;
}
