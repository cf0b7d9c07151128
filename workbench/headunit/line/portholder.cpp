#include "portholder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <grp.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

const char *const PseudoTerminals = "/dev/pts/";

// "3" of "/dev/pts/3"; empty for what is no pseudo-terminal.
QByteArray pseudoTerminalNumber(const QByteArray &device)
{
    return device.startsWith(PseudoTerminals) ? device.mid(int(qstrlen(PseudoTerminals))) : QByteArray();
}

QByteArray linkTarget(const QByteArray &link)
{
    char target[PATH_MAX];
    const ssize_t size = ::readlink(link.constData(), target, sizeof target);
    return QByteArray(target, int(qMax<ssize_t>(size, 0)));
}

bool isFarEnd(const QByteArray &process, const QByteArray &descriptor, const QByteArray &number)
{
    QFile info(QFile::decodeName(process + "/fdinfo/" + descriptor));
    if (!info.open(QIODevice::ReadOnly)) {
        return false;
    }
    for (const QByteArray &line : info.readAll().split('\n')) {
        if (line.startsWith("tty-index:") && line.mid(10).trimmed() == number) {
            return true;
        }
    }
    return false;
}

// Whether the process in the folder \a process has \a device open, and not the other end of it.
bool holds(const QByteArray &process, const QByteArray &device)
{
    const QByteArray number = pseudoTerminalNumber(device);
    bool isHeld = false;
    const QDir folder(QFile::decodeName(process + "/fd"));
    for (const QString &entry : folder.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)) {
        const QByteArray descriptor = entry.toLatin1();
        const QByteArray target = linkTarget(process + "/fd/" + descriptor);
        if (!number.isEmpty() && target.endsWith("/ptmx") && isFarEnd(process, descriptor, number)) {
            return false;
        }
        isHeld = isHeld || target == device;
    }
    return isHeld;
}

} // namespace

QStringList PortHolder::processesAt(const QString &port)
{
    const QByteArray device = QFile::encodeName(QFileInfo(port).canonicalFilePath());
    QStringList processes;
    if (device.isEmpty()) {
        return processes;
    }
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const qint64 id = name.toLongLong();
        if (id <= 0 || id == QCoreApplication::applicationPid()) {
            continue;
        }
        const QByteArray process = "/proc/" + name.toLatin1();
        if (holds(process, device)) {
            QFile command(QFile::decodeName(process + "/comm"));
            const bool isThere = command.open(QIODevice::ReadOnly);
            processes << QStringLiteral("%1 (%2)").arg(
                isThere ? QString::fromLocal8Bit(command.readAll()).trimmed() : QStringLiteral("?"), name);
        }
    }
    return processes;
}

QString PortHolder::groupOf(const QString &port)
{
    struct stat status = {};
    const bool isOpenToGroup = ::stat(QFile::encodeName(port).constData(), &status) == 0 &&
                               (status.st_mode & (S_IRGRP | S_IWGRP)) == (S_IRGRP | S_IWGRP);
    const group *entry = isOpenToGroup ? ::getgrgid(status.st_gid) : nullptr;
    return entry ? QString::fromLocal8Bit(entry->gr_name) : QString();
}
