#include "drivefolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Of the car types 1 (no number), 2 and 4.
const char *const FileNames[] = {"can_xinhang.bin", "can_xinhang_2.bin", "can_xinhang_4.bin"};

const int FirmwareSizes[] = {300, 0, 1, 128, 129, 4096};
const qint64 TooLarge = qint64(65) * 1024 * 1024;
const qint64 FileTime = 1767225600; // s since 1970

} // namespace

DriveFolder &DriveFolder::instance()
{
    // The process's exit handlers run it away.
    static DriveFolder folder;
    return folder;
}

DriveFolder::DriveFolder()
{
    if (!m_folder.isValid()) {
        qFatal("no temporary folder");
    }
    m_settings = QFile::encodeName(settings());
    int number = 0;
    for (const int size : FirmwareSizes) {
        writeFirmware(QString::number(number++), size);
    }
    for (const char *const kind : {"large", "pipe", "link", "folder", "empty"}) {
        QDir(m_folder.path()).mkpath(kind);
    }
    for (const char *const name : FileNames) {
        const auto path = [&](const char *disk) {
            return QFile::encodeName(m_folder.filePath(QString("%1/%2").arg(disk, name)));
        };
        const int large = ::open(path("large").constData(), O_WRONLY | O_CREAT, 0600);
        const bool isLarge = large >= 0 && ::ftruncate(large, TooLarge) == 0;
        const bool isPiped = ::mkfifo(path("pipe").constData(), 0600) == 0;
        const bool isLinked = ::symlink(path("0").constData(), path("link").constData()) == 0;
        if (!isLarge || !isPiped || !isLinked || ::mkdir(path("folder").constData(), 0700) != 0) {
            qFatal("no disks in %s", qPrintable(m_folder.path()));
        }
        ::close(large);
    }
}

QStringList DriveFolder::partitions(quint8 kind) const
{
    static const QStringList disks = {"0",     "1",    "2",    "3",      "4",     "5",
                                      "large", "pipe", "link", "folder", "empty", "absent"};
    QStringList mounted(m_folder.filePath(disks.at(kind % int(disks.size()))));
    if (kind & 0x80) {
        mounted.prepend(m_folder.filePath("empty"));
    }
    return mounted;
}

void DriveFolder::writeFirmware(const QString &disk, int size)
{
    QDir(m_folder.path()).mkpath(disk);
    for (const char *const name : FileNames) {
        QFile file(m_folder.filePath(disk + '/' + name));
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray(size, char(++m_changes)));
        file.setFileTime(QDateTime::fromSecsSinceEpoch(FileTime + m_changes),
                         QFileDevice::FileModificationTime);
    }
}

void DriveFolder::spoil(quint8 how)
{
    m_isSpoilt = true;
    if (how % 4 == 0) {
        QDir(m_folder.filePath("0")).removeRecursively();
    } else {
        const int sizes[] = {FirmwareSizes[0], FirmwareSizes[0] - 200, FirmwareSizes[0] + 1};
        writeFirmware("0", sizes[how % 4 - 1]);
    }
}

void DriveFolder::reset()
{
    if (::access(m_settings.constData(), F_OK) == 0) {
        QDir(settings()).removeRecursively();
    }
    if (m_isSpoilt) {
        m_changes = 0;
        writeFirmware("0", FirmwareSizes[0]);
        m_isSpoilt = false;
    }
}
