#ifndef SAFEFILE_H
#define SAFEFILE_H

#include <QByteArray>
#include <QString>

/// Files that survive a power cut.
namespace SafeFile {

/// Replaces the file at \a path by \a bytes: written beside, flushed to the disk, renamed, and the folder
/// flushed. At any moment the file is the old or the new one. Makes the folder when it is not there. False,
/// with one debug line and the old file in place, when that fails.
bool replace(const QString &path, const QByteArray &bytes);

/// Content of the file at \a path; a null array when it cannot be read or is larger than \a limit bytes.
QByteArray read(const QString &path, qint64 limit);

} // namespace SafeFile

#endif // SAFEFILE_H
