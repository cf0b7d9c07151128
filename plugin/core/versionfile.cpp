#include "versionfile.h"

#include <QDebug>
#include <QFile>

#include <cstdlib>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const char Path[] = "/tmp/can_version";
const int WriteInterval = 100; // ms
const int MostContent = 4096;  // more than the longest text, quoted

/// True when there is nothing, or a plain file of this user's that no other name leads to.
bool isOwnFileOrNone()
{
    struct stat entry;
    if (lstat(Path, &entry) != 0) {
        return true;
    }
    return S_ISREG(entry.st_mode) && entry.st_uid == geteuid() && entry.st_nlink == 1;
}

/// Null when there is no file to read.
QByteArray readContent()
{
    QFile file(QString::fromLatin1(Path));
    return isOwnFileOrNone() && file.open(QIODevice::ReadOnly) ? file.read(MostContent) : QByteArray();
}

} // namespace

VersionFile::VersionFile() : m_isBlocked(false)
{
    m_sinceWrite.invalidate();
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(write()));
}

VersionFile *VersionFile::instance()
{
    static VersionFile *const file = new VersionFile;
    return file;
}

void VersionFile::publish(const QByteArray &command)
{
    m_command = command;
    if (!m_timer.isActive()) {
        const qint64 passed = m_sinceWrite.isValid() ? m_sinceWrite.elapsed() : qint64(WriteInterval);
        m_timer.start(int(qBound(qint64(0), WriteInterval - passed, qint64(WriteInterval))));
    }
}

void VersionFile::write()
{
    m_sinceWrite.start();
    if (m_command == m_writtenCommand && !m_content.isEmpty() && readContent() == m_content) {
        return;
    }
    if (!clearWay()) {
        return;
    }
    if (system(m_command.constData()) != 0) {
        qWarning("The decoder's version could not be written to %s", Path);
    }
    m_writtenCommand = m_command;
    m_content = readContent();
}

bool VersionFile::clearWay()
{
    const bool isClear = isOwnFileOrNone() || unlink(Path) == 0;
    if (!isClear && !m_isBlocked) {
        qWarning("The decoder's version is not written: %s is no file of this user's and cannot be removed",
                 Path);
    }
    m_isBlocked = !isClear;
    return isClear;
}
