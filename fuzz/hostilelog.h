#ifndef HOSTILELOG_H
#define HOSTILELOG_H

#include <QByteArray>

/// A file that may be anything, read as a log of a serial line.
namespace HostileLog {

/// Reads \a file, with a pattern for its lines or not, writes what was read in every format, and reads that again. Ends
/// the program when the bench's own format does not give back what it was given, or a record is none. The number of
/// records.
int read(const QByteArray &file, bool withPattern);

} // namespace HostileLog

#endif // HOSTILELOG_H
