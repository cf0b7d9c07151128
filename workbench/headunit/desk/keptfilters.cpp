#include "keptfilters.h"

#include <QSettings>

namespace {

const char *const FiltersKey = "lineFilters";

QSettings settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("orb-canbus"),
                     QStringLiteral("headunit"));
}

} // namespace

QVariantMap KeptFilters::all()
{
    return settings().value(FiltersKey).toMap();
}

void KeptFilters::keep(const QString &name, const QString &words)
{
    QVariantMap filters = all();
    filters.insert(name, words);
    settings().setValue(FiltersKey, filters);
}

void KeptFilters::forget(const QString &words)
{
    QVariantMap filters = all();
    filters.remove(filters.key(words));
    settings().setValue(FiltersKey, filters);
}
