#ifndef LINEWORDS_H
#define LINEWORDS_H

#include "linestatus.h"

#include <QColor>

/// How the line's health is shown on the desk.
namespace LineWords {

/// Green while the unit and the box talk, amber for what may pass by itself, red for what somebody has to mend.
QColor colour(const LineStatus &status);

/// "12 packages/s · 1 bad · 24 bytes skipped · answered in 3.2 ms": what there is to count. Empty before the first
/// byte.
QString counts(const LineStatus &status);

/// "3.2 s ago", "never".
QString age(const LineStatus &status);

/// "3.2 ms", "none yet".
QString acknowledgement(const LineStatus &status);

} // namespace LineWords

#endif // LINEWORDS_H
