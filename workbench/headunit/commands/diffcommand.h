#ifndef DIFFCOMMAND_H
#define DIFFCOMMAND_H

#include <QStringList>

/// `headunit diff A B`: how two boxes of one type differ. See Command::run.
int diffCommand(const QStringList &words);

#endif // DIFFCOMMAND_H
