#ifndef PORTHOLDER_H
#define PORTHOLDER_H

#include <QStringList>

/// Who else has a serial device open, and who may open it.
namespace PortHolder {

/// "minicom (1234)" for each process but this one that has the device at \a port, or what it links to, open. A
/// process that holds the far end of a pseudo-terminal, as a virtual box does, is no one else. Only processes that
/// this user may look at are seen.
QStringList processesAt(const QString &port);

/// The group whose members may read and write the device at \a port; empty when there is none.
QString groupOf(const QString &port);

} // namespace PortHolder

#endif // PORTHOLDER_H
