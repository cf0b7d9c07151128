#ifndef KEYPLAYER_H
#define KEYPLAYER_H

#include "adapterfixture.h"

class KeyRedefAdapter;

/// Plays a head unit's keys against a key set, time included, and returns the keys that it simulates.
namespace KeyPlayer {

/// \a script: steps "TIME CODE p|h|r" (press, held, release), code in hexadecimal, apart by bars; a step
/// "call W" sets the status word and "front N" the application in front, both in hexadecimal.
QStringList play(KeyRedefAdapter *keys, const QByteArray &script);

} // namespace KeyPlayer

#endif // KEYPLAYER_H
