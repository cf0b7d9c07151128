#ifndef KEPTFILTERS_H
#define KEPTFILTERS_H

#include <QVariantMap>

/// The inspector's filters that somebody has kept under names, for this and later runs.
namespace KeptFilters {

/// Words by name; empty when there are none.
QVariantMap all();
/// Keeps \a words under \a name, in place of others.
void keep(const QString &name, const QString &words);
/// Forgets one filter with these \a words, if there is any.
void forget(const QString &words);

} // namespace KeptFilters

#endif // KEPTFILTERS_H
