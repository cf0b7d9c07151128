#include "callwatch.h"

#include "jsontext.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString textOf(const QVariant &value)
{
    return value.userType() == QMetaType::QString      ? value.toString()
           : value.userType() == QMetaType::QByteArray ? QString::fromLatin1(value.toByteArray().toHex())
                                                       : QString::fromUtf8(JsonText::fromVariant(value));
}

} // namespace

QString CallWatch::Call::text() const
{
    return (QStringList(object + '.' + name) + args).join(' ');
}

CallWatch::CallWatch(OrbTraceListener *next, QObject *parent) : QObject(parent), m_next(next)
{
    OrbTrace::setListener(this);
}

CallWatch::~CallWatch()
{
    // Whoever has begun to listen since then stays.
    if (OrbTrace::listener == this) {
        OrbTrace::setListener(m_next);
    }
}

void CallWatch::called(const QString &object, const QString &call, const QVariantList &args)
{
    if (m_next) {
        m_next->called(object, call, args);
    }
    Call kept = {object, call, {}};
    for (const QVariant &arg : args) {
        kept.args << textOf(arg);
    }
    keep(kept);
}

void CallWatch::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
    Call kept = {"OrbApplication", call, {}};
    const QJsonObject members = QJsonDocument::fromJson(JsonText::fromEvent(event)).object();
    for (const char *key : {"source", "id", "type", "param", "param2", "bytes", "string", "variant"}) {
        if (members.contains(QLatin1String(key))) {
            kept.args << QString("%1=%2").arg(QLatin1String(key),
                                              textOf(members.value(QLatin1String(key)).toVariant()));
        }
    }
    keep(kept);
}

void CallWatch::valueTold(const QString &name, const QVariant &value)
{
    if (m_next) {
        m_next->valueTold(name, value);
    }
}

void CallWatch::forget()
{
    m_calls.clear();
    m_hasLost = false;
}

void CallWatch::keep(const Call &call)
{
    if (m_calls.size() == Capacity) {
        m_calls.dequeue();
        m_hasLost = true;
    }
    m_calls.enqueue(call);
    Q_EMIT came(call);
}
