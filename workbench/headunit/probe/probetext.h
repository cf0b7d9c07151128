#ifndef PROBETEXT_H
#define PROBETEXT_H

#include "packageprobe.h"

/// What a probe found, for people and for programs.
namespace ProbeText {

/// "d[1].2-0", "d[1]" for a whole byte.
QString bits(const PackageProbe::Row &row);

QString plain(const PackageProbe &probe);
/// A table.
QString markdown(const PackageProbe &probe);
/// An array with an object a row: byte, high, low, effects (call and text), dependsOnState, partner.
QByteArray json(const PackageProbe &probe);

} // namespace ProbeText

#endif // PROBETEXT_H
