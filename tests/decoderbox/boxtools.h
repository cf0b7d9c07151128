#ifndef BOXTOOLS_H
#define BOXTOOLS_H

#include "decoderbox.h"

#include <memory>

/// A box of the CAN-bus type \a type without a terminal; fails the program when there is none.
std::unique_ptr<DecoderBox> makeBox(int type);

/// Makes changes like "climate.left 21.5; climate.ac on" to the car.
void change(DecoderBox *box, const QString &changes);

#endif // BOXTOOLS_H
