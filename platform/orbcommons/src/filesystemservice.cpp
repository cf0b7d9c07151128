#include "filesystemservice.h"

#include "orbhost_p.h"

QStringList FileSystemService::getDiskPartitionPaths(int disk)
{
    return OrbHostPrivate::get()->diskPartitions.value(disk);
}
