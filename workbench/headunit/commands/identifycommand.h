#ifndef IDENTIFYCOMMAND_H
#define IDENTIFYCOMMAND_H

#include <QStringList>

/// `headunit identify LOG|PORT`: which CAN-bus type does what the box says fit? See Command::run; what was
/// found (1) is that it cannot be told.
int identifyCommand(const QStringList &words);

#endif // IDENTIFYCOMMAND_H
