#ifndef HOSTILELINE_H
#define HOSTILELINE_H

#include "canbusadapter.h"

#include <QByteArray>

#include <memory>

/// A line on which anything may come. A program that links this runs no shell: a command that is not a version text
/// quoted as data ends it.
namespace HostileLine {

/// A new adapter with its screens open where it has some, not connected to any device; null for a number that
/// selects none.
std::unique_ptr<CanBusAdapter> adapter(CanBusType type);

/// True when \a command does nothing but write one line of text to the version file.
bool isVersionCommand(const QByteArray &command);

/// \a bytes as they come from the line, through the framer.
void receive(CanBusAdapter *adapter, const QByteArray &bytes, int readSize);

/// A package with a good checksum in the frame of the adapter's box.
QByteArray package(CanBusType type, quint8 command, const QByteArray &data);

/// \a bytes taken as packages: command, number of data bytes, data, and so on. Each reaches the decoder with
/// a good checksum.
void decode(CanBusAdapter *adapter, CanBusType type, const QByteArray &bytes);

} // namespace HostileLine

#endif // HOSTILELINE_H
