#ifndef HOSTILECOMMAND_H
#define HOSTILECOMMAND_H

#include <QByteArray>

/// Any bytes as the words behind `headunit` or `decoderbox`, with a zero byte between two.
///
/// A sub-command goes as far as it gets without its application object: `convert` to its end, the others to where the
/// plug-in would be loaded, a port listened to, or a process started. A box is opened, on a pseudo-terminal. All that is
/// done in a temporary folder that holds a log, a drive and a script; no word has a slash, so nothing else is opened or
/// written, and each reading finds the folder as the first did.
namespace HostileCommand {

/// The first word names the sub-command. Ends the program when a wrong usage has no reason.
void readHeadUnit(const QByteArray &words);

void readDecoderBox(const QByteArray &words);

} // namespace HostileCommand

#endif // HOSTILECOMMAND_H
