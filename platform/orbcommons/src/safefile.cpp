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

bool writeFlushed(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size() &&
           file.flush() && flushToDisk(file.handle());
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
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    const QByteArray bytes = file.read(limit + 1);
    return bytes.size() > limit ? QByteArray() : bytes;
}
