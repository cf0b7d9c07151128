#include "orbcommons.h"

#include "orbhost_p.h"
#include "orbtrace.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace {

struct OwnTitle
{
    unsigned int appId;
    const char *title;
};

/// Titles of the framework's own applications.
const OwnTitle OwnTitles[] = {
    {1, QT_TRANSLATE_NOOP("OrbCommons", "Radio")},
    {2, QT_TRANSLATE_NOOP("OrbCommons", "Music")},
    {3, QT_TRANSLATE_NOOP("OrbCommons", "Video")},
    {4, QT_TRANSLATE_NOOP("OrbCommons", "Phone")},
    {5, QT_TRANSLATE_NOOP("OrbCommons", "Navigation")},
    {6, QT_TRANSLATE_NOOP("OrbCommons", "Settings")},
    {204, QT_TRANSLATE_NOOP("OrbCommons", "CAN information")},
};

void registerTitle(const char *call, unsigned int appId, const QString &title)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("OrbCommons", call, QVariantList() << appId << title);
    }
    OrbHostPrivate::get()->setAppTitle(appId, title);
}

} // namespace

void AppendAppTitle(unsigned int appId, const QString &title)
{
    registerTitle("AppendAppTitle", appId, title);
}

void TranslateAppTitle(unsigned int appId, const QString &title)
{
    registerTitle("TranslateAppTitle", appId, title);
}

QString AppTitleFromAppId(unsigned int appId)
{
    const QHash<unsigned int, QString> &titles = OrbHostPrivate::get()->titles;
    if (titles.contains(appId)) {
        return titles.value(appId);
    }
    for (size_t i = 0; i < sizeof OwnTitles / sizeof OwnTitles[0]; ++i) {
        if (OwnTitles[i].appId == appId) {
            return QCoreApplication::translate("OrbCommons", OwnTitles[i].title);
        }
    }
    return QString();
}

quint64 GetTickCountMs()
{
    const OrbHostPrivate *host = OrbHostPrivate::get();
    if (host->tickHeld) {
        return host->heldTick;
    }
    // Counted from the machine's start, not from the first call: a difference to 0, the value of a time that
    // was never taken, has to be large.
    QElapsedTimer timer;
    timer.start();
    return quint64(timer.msecsSinceReference());
}
