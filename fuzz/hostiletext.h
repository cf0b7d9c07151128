#ifndef HOSTILETEXT_H
#define HOSTILETEXT_H

#include <QByteArray>

/// Any bytes as one of the texts that people write for the bench and the unit.
namespace HostileText {

enum Kind { Drive, BoxOrder, Script, Settings, CommandLine, Filter, SubCommand, BoxCommandLine, Kinds };

/// Reads \a text as \a kind, for the box of \a type where that counts, and does what it says where that stays inside the
/// process. Ends the program when a refusal has no reason, or settings that were written read as something else. Needs
/// an OrbApplication, and a settings folder of the test's own.
void read(Kind kind, int type, const QByteArray &text);

} // namespace HostileText

#endif // HOSTILETEXT_H
