#ifndef INITEXT_H
#define INITEXT_H

#include <QByteArray>
#include <QMap>
#include <QString>

/// Text of an ini file that knows whether it is whole. (QSettings neither flushes what it writes nor notices
/// that a file was cut short, and takes a comma for a list.)
///
/// UTF-8, `[section]` and `key=value` lines in alphabetical order, `;` and `#` comments. A backslash is
/// written `\\`, a control character and whatever else a line would lose `\uHHHH`. The first line says that
/// the file is kept by the head unit, the last one bears the checksum of all before it; a file with either
/// must have both right. One with neither was written by hand and needs to parse.
namespace IniText {

typedef QMap<QString, QString> Section;
typedef QMap<QString, Section> Sections; ///< the section without a name holds what stands before the first

QByteArray write(const Sections &sections);

/// False, with \a sections untouched, when \a bytes are not a whole ini file; an empty one is not.
bool read(const QByteArray &bytes, Sections *sections);

} // namespace IniText

#endif // INITEXT_H
