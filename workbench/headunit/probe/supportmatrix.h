#ifndef SUPPORTMATRIX_H
#define SUPPORTMATRIX_H

#include <QString>

/// The table of all cars by what they can do, made of the boxes' sheets.
namespace SupportMatrix {

/// The text, Markdown, from the sheets in \a folder: TYPE.md each, "7.md". A type without one has no decoder.
QString text(const QString &folder);

} // namespace SupportMatrix

#endif // SUPPORTMATRIX_H
