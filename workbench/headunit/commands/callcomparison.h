#ifndef CALLCOMPARISON_H
#define CALLCOMPARISON_H

#include "linecomparison.h"

#include <QString>

/// What two decoders make of the same package. Each is tried on it in a fresh unit whose box has said what it says at
/// start, so that nothing but the package can be the reason: what came before it on a line has a line of its own where
/// it differs.
namespace CallComparison {

/// Adds a difference of kind "calls" to \a result for each command towards the unit of which packages that \a first and
/// \a second both hold have other effects with the decoder of type \a types[0] than with that of \a types[1]. Both types
/// have a virtual box. Runs \a plugin in children of this process, in which there must be no application object. False,
/// with one sentence in \a error, when it does not run.
bool add(const LineTraffic &first, const LineTraffic &second, const int types[2], const QString &plugin,
         QVector<LineComparison::Difference> *result, QString *error);

} // namespace CallComparison

#endif // CALLCOMPARISON_H
