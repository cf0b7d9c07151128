#ifndef RECORDCOMMAND_H
#define RECORDCOMMAND_H

#include <QStringList>

/// `headunit record FILE ...`: the unit as its other options say, with its line in a log. See Command::run.
int recordCommand(const QStringList &words);

#endif // RECORDCOMMAND_H
