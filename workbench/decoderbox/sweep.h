#ifndef SWEEP_H
#define SWEEP_H

#include <QStringList>

class DecoderBox;

/// One order of a scenario that stands for many: all that a box can tell of some kind, one thing after the
/// other.
namespace Sweep {

/// The orders, as BoxCommand reads them, that \a what stands for with \a box:
///
///     keys         each key is tapped, each knob turned by no and by 3 clicks
///     properties   each property that means something with the box goes to both ends of its range, through
///     its
///                  choices, and back to where it began
///     NAME, NAME.  the same for one property, for those whose names begin so
///
/// Empty when there is nothing of the kind.
QStringList orders(const DecoderBox &box, const QString &what);

} // namespace Sweep

#endif // SWEEP_H
