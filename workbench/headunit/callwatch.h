#ifndef CALLWATCH_H
#define CALLWATCH_H

#include "orbtrace.h"

#include <QObject>
#include <QQueue>
#include <QStringList>

/// What the plug-in has called lately, for scripts that expect something of it. It hands each call on to the
/// next listener.
class CallWatch : public QObject, public OrbTraceListener
{
    Q_OBJECT

public:
    /// Calls that are kept at most; older ones go.
    static constexpr int Capacity = 4096;

    struct Call
    {
        QString object;
        QString name;
        /// As the trace writes them, texts without quotes; of an event "KEY=VALUE" for each of its members.
        QStringList args;

        QString text() const;

        /// A call, or an event, as the trace tells it.
        static Call of(const QString &object, const QString &call, const QVariantList &args);
        static Call of(const QString &call, const OrbEvent &event);
    };

    /// Begins to listen. \a next, null for nobody, must outlive the watch.
    explicit CallWatch(OrbTraceListener *next, QObject *parent = nullptr);
    /// Listens no more.
    ~CallWatch() override;

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    void valueTold(const QString &name, const QVariant &value) override;

    const QQueue<Call> &calls() const { return m_calls; }
    /// Whether calls had to go since forget().
    bool hasLost() const { return m_hasLost; }
    void forget();

Q_SIGNALS:
    /// Before the call takes effect.
    void came(const CallWatch::Call &call);

private:
    void keep(const Call &call);

    OrbTraceListener *m_next;
    QQueue<Call> m_calls;
    bool m_hasLost = false;
};

#endif // CALLWATCH_H
