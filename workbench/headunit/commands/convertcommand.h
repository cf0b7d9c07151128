#ifndef CONVERTCOMMAND_H
#define CONVERTCOMMAND_H

#include <QStringList>

/// `headunit convert IN OUT`: one log of a serial line becomes another. See Command::run.
int convertCommand(const QStringList &words);

#endif // CONVERTCOMMAND_H
