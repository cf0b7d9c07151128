#ifndef CHILDPROCESS_H
#define CHILDPROCESS_H

#include <QByteArray>

#include <functional>

/// A fork of this process that tries something and tells what came of it.
namespace ChildProcess {

/// Forks, has the child run \a life with a descriptor to write to, and ends it. Waits for that, and puts all that was
/// written into \a told and how the child ended, as waitpid() tells it, into \a status. False when the system gives no
/// process.
bool run(const std::function<void(int)> &life, QByteArray *told, int *status);

/// All that can be read from \a descriptor until its end, or until there is no more of what does not wait.
QByteArray readAll(int descriptor);

/// Writes \a bytes; for a child, which ends here with 1 when nobody reads them.
void writeAll(int descriptor, const QByteArray &bytes);

} // namespace ChildProcess

#endif // CHILDPROCESS_H
