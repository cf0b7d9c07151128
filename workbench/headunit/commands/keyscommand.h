#ifndef KEYSCOMMAND_H
#define KEYSCOMMAND_H

#include <QStringList>

/// `headunit keys`: the keys that were pressed in a log, and tables of them for an adapter. See Command::run.
int keysCommand(const QStringList &words);

#endif // KEYSCOMMAND_H
