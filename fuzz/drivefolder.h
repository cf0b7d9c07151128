#ifndef DRIVEFOLDER_H
#define DRIVEFOLDER_H

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The files of a drive in a temporary folder of the process: the unit's settings, and disks with firmware of every
/// kind.
class DriveFolder
{
public:
    static constexpr int Disks = 2; ///< that a drive has

    static DriveFolder &instance();

    /// Folder for the unit's settings, empty at first.
    QString settings() const { return m_folder.filePath("settings"); }

    /// Mount points of disk \a kind: firmware of a size that a byte chooses, none, too large, a pipe, a link out of
    /// the disk, a folder in its place, no disk at all.
    QStringList partitions(quint8 kind) const;

    /// Something happens to the firmware of the first disk: gone, shorter, another one of the same size, back.
    void spoil(quint8 how);

    /// Everything as at first, as far as a drive touched it.
    void reset();

private:
    DriveFolder();
    void writeFirmware(const QString &disk, int size);

    QTemporaryDir m_folder;
    QByteArray m_settings; // as the system names it
    bool m_isSpoilt = false;
    int m_changes = 0; // each file has a time of its own, the same in every drive
};

#endif // DRIVEFOLDER_H
