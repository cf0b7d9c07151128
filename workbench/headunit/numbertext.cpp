#include "numbertext.h"

namespace {

bool isHexadecimal(const QString &text)
{
    return text.startsWith("0x", Qt::CaseInsensitive);
}

} // namespace

bool NumberText::read(const QString &text, quint32 *number)
{
    const bool isHex = isHexadecimal(text);
    const QString digits = isHex ? text.mid(2) : text;
    // Qt would take signs and blanks as well.
    if (digits.isEmpty() || !digits.at(0).isLetterOrNumber()) {
        return false;
    }
    bool ok = false;
    const quint32 read = digits.toUInt(&ok, isHex ? 16 : 10);
    if (ok) {
        *number = read;
    }
    return ok;
}

QVariant NumberText::value(const QString &text)
{
    quint32 number = 0;
    return isHexadecimal(text) && read(text, &number) ? QVariant(number) : QVariant(text);
}
