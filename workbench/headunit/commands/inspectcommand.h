#ifndef INSPECTCOMMAND_H
#define INSPECTCOMMAND_H

#include <QStringList>

/// `headunit inspect`: the rows of a log, with the calls that the plug-in makes. See Command::run.
int inspectCommand(const QStringList &words);

#endif // INSPECTCOMMAND_H
