#ifndef NUMBERTEXT_H
#define NUMBERTEXT_H

#include <QString>
#include <QVariant>

/// Numbers as people write them on a command line: decimal, or hexadecimal with 0x.
namespace NumberText {

/// Reads all of \a text; false, with \a number unchanged, when it is none or too large.
bool read(const QString &text, quint32 *number);

/// A setting's value: a hexadecimal number of up to 64 bits becomes a number, anything else stays the text that it is, which
/// reads as a number where it is a decimal one.
QVariant value(const QString &text);

} // namespace NumberText

#endif // NUMBERTEXT_H
