#ifndef FILESYSTEMSERVICE_H
#define FILESYSTEMSERVICE_H

#include "orbglobal.h"

#include <QStringList>

/// Removable disks as the framework has mounted them.
class ORB_EXPORT FileSystemService
{
public:
    /// Mount points of the partitions of disk number \a disk, in partition order; empty for a disk that is
    /// not there. Each is a folder path without a slash at its end.
    static QStringList getDiskPartitionPaths(int disk);
};

#endif // FILESYSTEMSERVICE_H
