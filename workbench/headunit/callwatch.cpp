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

CallWatch::Call CallWatch::Call::of(const QString &object, const QString &call, const QVariantList &args)
{
    Call result = {object, call, {}};
    for (const QVariant &arg : args) {
        result.args << textOf(arg);
    }
    return result;
}

CallWatch::Call CallWatch::Call::of(const QString &call, const OrbEvent &event)
{
    Call result = {"OrbApplication", call, {}};
    const QJsonObject members = QJsonDocument::fromJson(JsonText::fromEvent(event)).object();
    for (const char *key : {"source", "id", "type", "param", "param2", "bytes", "string", "variant"}) {
        if (members.contains(QLatin1String(key))) {
            result.args << QString("%1=%2").arg(QLatin1String(key),
                                                textOf(members.value(QLatin1String(key)).toVariant()));
        }
    }
    return result;
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
    keep(Call::of(object, call, args));
}

void CallWatch::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
    keep(Call::of(call, event));
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
