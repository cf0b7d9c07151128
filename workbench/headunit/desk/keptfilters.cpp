#include "keptfilters.h"

#include "desksettings.h"

namespace {

const char *const FiltersKey = "lineFilters";

} // namespace

QVariantMap KeptFilters::all()
{
    return DeskSettings().value(FiltersKey).toMap();
}

void KeptFilters::keep(const QString &name, const QString &words)
{
    QVariantMap filters = all();
    filters.insert(name, words);
    DeskSettings().setValue(FiltersKey, filters);
}

void KeptFilters::forget(const QString &words)
{
    QVariantMap filters = all();
    filters.remove(filters.key(words));
    DeskSettings().setValue(FiltersKey, filters);
}
