#include "orbapplication.h"

#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost_p.h"
#include "orbskin.h"
#include "orbtrace.h"
#include "touchinjector.h"

OrbApplication::OrbApplication(int &argc, char **argv) : QApplication(argc, argv)
{
    applyOrbSkin(*this);
}

OrbApplication::~OrbApplication()
{
    OrbHostPrivate::destroy();
}

OrbApplication *OrbApplication::instance()
{
    return qobject_cast<OrbApplication *>(QCoreApplication::instance());
}

QVariant OrbApplication::getTag(AppTagId tag, const QVariant &defaultValue) const
{
    return OrbHostPrivate::get()->tags.value(tag, defaultValue);
}

QVariant OrbApplication::getOrbProductValue(const QString &key, const QVariant &defaultValue)
{
    return OrbHostPrivate::get()->productValues.value(key, defaultValue);
}

QStringList OrbApplication::getFactorySetting(const QString &key)
{
    return OrbHostPrivate::get()->factorySettings.value(key);
}

void OrbApplication::simulateKey(int key, bool press, bool autoRepeat, int last)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("OrbApplication", "simulateKey",
                                   QVariantList() << key << press << autoRepeat << last);
    }
    if (OrbApplication *application = instance()) {
        Q_EMIT application->keySimulated(key, press, autoRepeat, last);
    }
}

void OrbApplication::simulateMouse(int type, int x, int y)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("OrbApplication", "simulateMouse", QVariantList() << type << x << y);
    }
    OrbHostPrivate::get()->touch->inject(type, x, y);
}

void OrbApplication::dispatchOrbEvent(OrbEvent *event)
{
    if (!event) {
        return;
    }
    if (OrbTrace::listener) {
        OrbTrace::listener->eventCalled("dispatchOrbEvent", *event);
    }
    if (int(event->type()) == OrbEventType::AppIcon) {
        OrbHostPrivate::get()->setAppIcons(event->getParam(), event->getStringParam());
    }
    Q_EMIT orbEventDispatched(event);
}

void OrbApplication::addKeyFilter(OrbKeyFilter *filter)
{
    QList<OrbKeyFilter *> &filters = OrbHostPrivate::get()->keyFilters;
    if (filter && !filters.contains(filter)) {
        filters.append(filter);
    }
}

void OrbApplication::removeKeyFilter(OrbKeyFilter *filter)
{
    OrbHostPrivate::get()->keyFilters.removeAll(filter);
}

bool OrbApplication::event(QEvent *event)
{
    // The class is this library's own, whoever built the event: nothing is asked of a plug-in's type information.
    const OrbEvent *orbEvent = dynamic_cast<OrbEvent *>(event);
    if (!orbEvent) {
        return QApplication::event(event);
    }
    if (OrbTrace::listener) {
        OrbTrace::listener->eventCalled("event", *orbEvent);
    }
    Q_EMIT orbEventReceived(orbEvent);
    return true;
}
