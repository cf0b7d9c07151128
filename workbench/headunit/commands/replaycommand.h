#ifndef REPLAYCOMMAND_H
#define REPLAYCOMMAND_H

#include <QStringList>

/// `headunit replay LOG ...`: the unit as its other options say, on the bytes of a log. See Command::run; what
/// was found is a log that could not be played as it stands.
int replayCommand(const QStringList &words);

#endif // REPLAYCOMMAND_H
