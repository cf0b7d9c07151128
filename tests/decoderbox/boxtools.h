#ifndef BOXTOOLS_H
#define BOXTOOLS_H

#include "decoderbox.h"

#include <memory>

/// A box of the CAN-bus type \a type without a terminal; fails the program when there is none.
std::unique_ptr<DecoderBox> makeBox(int type);

/// Makes changes like "climate.left 21.5; climate.ac on" to the car.
void change(DecoderBox *box, const QString &changes);

/// Command and data of the report called \a meaning in hex, "28 80 42 07 07 00".
QByteArray reportData(const DecoderBox &box, const QString &meaning);

/// Command and data of what the box sends for a key, in hex; empty for nothing.
QByteArray keyData(const DecoderBox &box, const QString &key, BoxSpeaker::KeyState state);

#endif
