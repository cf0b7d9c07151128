#ifndef PROBECOMMAND_H
#define PROBECOMMAND_H

#include <QStringList>

/// `headunit probe`: which bit of a package does what, asked of the real plug-in. See Command::run.
int probeCommand(const QStringList &words);

#endif // PROBECOMMAND_H
