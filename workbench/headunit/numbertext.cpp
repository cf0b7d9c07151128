#include "numbertext.h"

#include <limits>

namespace {

bool isHexadecimal(const QString &text)
{
    return text.startsWith("0x", Qt::CaseInsensitive);
}

bool readWide(const QString &text, quint64 *number)
{
    const bool isHex = isHexadecimal(text);
    const QString digits = isHex ? text.mid(2) : text;
    // Qt would take signs and blanks as well.
    if (digits.isEmpty() || !digits.at(0).isLetterOrNumber()) {
        return false;
    }
    bool ok = false;
    *number = digits.toULongLong(&ok, isHex ? 16 : 10);
    return ok;
}

} // namespace

bool NumberText::read(const QString &text, quint32 *number)
{
    quint64 wide = 0;
    if (!readWide(text, &wide) || wide > std::numeric_limits<quint32>::max()) {
        return false;
    }
    *number = quint32(wide);
    return true;
}

QVariant NumberText::value(const QString &text)
{
    quint64 number = 0;
    if (!isHexadecimal(text) || !readWide(text, &number)) {
        return text;
    }
    const bool isNarrow = number <= std::numeric_limits<quint32>::max();
    return isNarrow ? QVariant(quint32(number)) : QVariant(number);
}
