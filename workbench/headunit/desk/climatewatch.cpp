#include "climatewatch.h"

#include "airconditiondlg.h"
#include "orbhost.h"

ClimateWatch::ClimateWatch(int patience, QObject *parent)
    : QObject(parent), m_next(OrbTrace::setListener(this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(patience);
    connect(&m_timer, &QTimer::timeout, this, &ClimateWatch::hideDisplays);
}

ClimateWatch::~ClimateWatch()
{
    // Whoever has begun to listen since then stays.
    if (OrbTrace::listener == this) {
        OrbTrace::setListener(m_next);
    }
}

void ClimateWatch::called(const QString &object, const QString &call, const QVariantList &args)
{
    if (m_next) {
        m_next->called(object, call, args);
    }
    if (object != QLatin1String("AirConditionDlg")) {
        return;
    }
    const bool isShown = call == QLatin1String("setVisible") && args.value(0).toBool();
    QVariantList &last = m_lastArgs[call];
    if (isShown || last != args) {
        last = args;
        m_timer.start();
    }
}

void ClimateWatch::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
}

void ClimateWatch::valueTold(const QString &name, const QVariant &value)
{
    if (m_next) {
        m_next->valueTold(name, value);
    }
}

void ClimateWatch::hideDisplays()
{
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (qobject_cast<AirConditionDlg *>(window) && window->isVisible()) {
            window->hide();
        }
    }
}
