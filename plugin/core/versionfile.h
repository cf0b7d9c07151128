#ifndef VERSIONFILE_H
#define VERSIONFILE_H

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// The file /tmp/can_version, which a shell command writes. Boxes may repeat their version at line speed and
/// the shell takes 20 ms of the GUI thread: the command runs outside of the read loop, at most ten times a
/// second, the last one always, and not at all while the file holds what it would write. What lies under the
/// file's name and is no plain file of this user's is removed first, or nothing is written.
class VersionFile : public QObject
{
    Q_OBJECT

public:
    /// The process's one, which lives until it ends.
    static VersionFile *instance();

    /// Has \a command run soon, in place of one that still waits.
    void publish(const QByteArray &command);

private Q_SLOTS:
    void write();

private:
    VersionFile();

    bool clearWay();

    QTimer m_timer;
    QElapsedTimer m_sinceWrite;
    QByteArray m_command;
    QByteArray m_writtenCommand; // that wrote m_content last
    QByteArray m_content;
    bool m_isBlocked; // something is in the way, and a line has said so
};

#endif // VERSIONFILE_H
