#ifndef CHECKCOMMAND_H
#define CHECKCOMMAND_H

#include <QStringList>

/// `headunit check PORT`: what is in order with a serial line and the box behind it, and what to do where it
/// is not. See Command::run.
int checkCommand(const QStringList &words);

/// `headunit --list-ports [--json]`: the machine's serial devices.
int listPorts(bool asJson);

#endif // CHECKCOMMAND_H
