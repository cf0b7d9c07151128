#ifndef TESTFILES_H
#define TESTFILES_H

#include <QFile>

namespace TestSupport {

/// Whole content of a file; "(no file)" when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// Replaces a file, or ends the program.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

} // namespace TestSupport

#endif // TESTFILES_H
