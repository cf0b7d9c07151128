#ifndef BOXTOOLS_H
#define BOXTOOLS_H

#include "decoderbox.h"

#include <memory>

/// A box of the CAN-bus type \a type without a terminal; fails the program when there is none.
std::unique_ptr<DecoderBox> makeBox(int type);

/// Makes changes like "climate.left 21.5; climate.ac on" to the car.
void change(DecoderBox *box, const QString &changes);

/// Command and data of the report that \a package is to be, both in hex: "28 80 42 07 07 00". Of reports with
/// the same command the one with the same first byte.
QByteArray reportLike(const DecoderBox &box, const QByteArray &package);

/// Command and data of what the box sends for a key, in hex; empty for nothing.
QByteArray keyData(const DecoderBox &box, const QString &key, BoxSpeaker::KeyState state);

#endif // BOXTOOLS_H
