#ifndef PROBETEXT_H
#define PROBETEXT_H

#include "bitprobe.h"

/// What a probe found, for people and for programs.
namespace ProbeText {

/// "d[1].2-0", "d[1]" for a whole byte.
QString bits(const BitProbe::Row &row);

QString plain(const BitProbe &probe);
/// A table.
QString markdown(const BitProbe &probe);
/// An array with an object a row: byte, high, low, effects (call and text), dependsOnState, partner.
QByteArray json(const BitProbe &probe);

} // namespace ProbeText

#endif // PROBETEXT_H
