#include "safefile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool flushToDisk(int descriptor)
{
    int result;
    do {
        result = ::fsync(descriptor);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// A rename is on the disk once its folder is. File systems that cannot flush a folder say EINVAL; they have
/// nothing better to offer, and the file itself is whole.
void flushFolder(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    flushToDisk(descriptor);
    ::close(descriptor);
}

/// The file is made anew: what lies there under its name, a link to somewhere perhaps, is none of ours.
bool writeFlushed(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = QFile::encodeName(path);
    ::unlink(name.constData());
    const int descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        return false;
    }
    bool isWritten = false;
    {
        QFile file;
        isWritten = file.open(descriptor, QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                    file.flush() && flushToDisk(descriptor);
    }
    return ::close(descriptor) == 0 && isWritten;
}

} // namespace

bool SafeFile::replace(const QString &path, const QByteArray &bytes)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString beside = path + ".new";
    if (QDir().mkpath(folder) && writeFlushed(beside, bytes) &&
        ::rename(QFile::encodeName(beside).constData(), QFile::encodeName(path).constData()) == 0) {
        flushFolder(folder);
        return true;
    }
    qDebug("Settings: cannot write %s: %s", qPrintable(path), std::strerror(errno));
    QFile::remove(beside);
    return false;
}

QByteArray SafeFile::read(const QString &path, qint64 limit)
{
    QFile file(path);
    // A pipe of that name would hold up whoever opens it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    const QByteArray bytes = file.read(limit + 1);
    return bytes.size() > limit ? QByteArray() : bytes;
}
