#ifndef UNITRUN_H
#define UNITRUN_H

#include <QStringList>

struct UnitCommand;

/// Runs the head unit as \a arguments, the program's name first, say: its window or none, until it ends. \a
/// command is the sub-command that has it run, null for none. Answers the program's exit code. To be called
/// once, without an application object.
int runUnit(const QStringList &arguments, const UnitCommand *command = nullptr);

#endif // UNITRUN_H
