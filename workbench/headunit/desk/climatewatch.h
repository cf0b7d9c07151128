#ifndef CLIMATEWATCH_H
#define CLIMATEWATCH_H

#include "orbtrace.h"

#include <QHash>
#include <QObject>
#include <QTimer>

/// Puts the climate display away when nothing on it has changed for a while. It listens to the framework's
/// calls and hands each on to the listener that was there before; so it must go before that one does.
class ClimateWatch : public QObject, public OrbTraceListener
{
    Q_OBJECT

public:
    /// \a patience: milliseconds without a change.
    explicit ClimateWatch(int patience, QObject *parent = nullptr);
    ~ClimateWatch() override;

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    void valueTold(const QString &name, const QVariant &value) override;

private:
    void hideDisplays();

    OrbTraceListener *m_next;
    QHash<QString, QVariantList> m_lastArgs;
    QTimer m_timer;
};

#endif // CLIMATEWATCH_H
