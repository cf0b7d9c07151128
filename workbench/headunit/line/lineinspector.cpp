#include "lineinspector.h"

#include "callwatch.h"
#include "headunit.h"
#include "jsontext.h"
#include "serialtap.h"

LineInspector::LineInspector(int type, QObject *parent)
    : QObject(parent), m_inspection(type), m_next(OrbTrace::setListener(this))
{}

LineInspector::~LineInspector()
{
    // Whoever has begun to listen since then stays.
    if (OrbTrace::listener == this) {
        OrbTrace::setListener(m_next);
    }
}

void LineInspector::follow(HeadUnit *unit)
{
    for (const LineRecord &record : unit->lineRecorder()->ring().records()) {
        m_inspection.feed(record);
    }
    connect(unit->lineRecorder(), &LineRecorder::recorded, this, &LineInspector::feed);
    connect(unit, &HeadUnit::keyUsed, this, [this](uint code, int phase) {
        m_inspection.setNow(now());
        m_inspection.unitKey(code, phase);
        begin();
    });
}

void LineInspector::feed(const LineRecord &record)
{
    m_origin = m_origin < 0 ? SerialTap::now() - record.microseconds : m_origin;
    m_inspection.feed(record);
}

void LineInspector::catchUp()
{
    m_inspection.pass(now());
}

qint64 LineInspector::now() const
{
    return m_origin < 0 ? 0 : SerialTap::now() - m_origin;
}

void LineInspector::called(const QString &object, const QString &call, const QVariantList &args)
{
    if (m_next) {
        m_next->called(object, call, args);
    }
    m_inspection.setNow(now());
    if (object == QLatin1String("ProtocolUtils") && call == QLatin1String("recvProtocolData")) {
        m_inspection.taken(args.value(0).toByteArray());
        begin();
    } else if (object != QLatin1String("ProtocolUtils") && object != QLatin1String("desk")) {
        m_inspection.called(CallWatch::Call::of(object, call, args).text());
    } else if (call == QLatin1String("writeDatas") && m_turns > 0) { // else its package tells as much
        m_inspection.called(CallWatch::Call::of(object, call, args).text());
    }
}

void LineInspector::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
    m_inspection.setNow(now());
    m_inspection.called(CallWatch::Call::of(call, event).text());
}

void LineInspector::valueTold(const QString &name, const QVariant &value)
{
    if (m_next) {
        m_next->valueTold(name, value);
    }
    m_inspection.setNow(now());
    m_inspection.called(QString("car.%1 %2").arg(name, QString::fromUtf8(JsonText::fromVariant(value))));
}

// Events that the plug-in posts meanwhile stand between these two, and no timer comes in between.
void LineInspector::begin()
{
    ++m_turns;
    QMetaObject::invokeMethod(this, &LineInspector::endSoon, Qt::QueuedConnection);
}

void LineInspector::endSoon()
{
    QMetaObject::invokeMethod(this, &LineInspector::end, Qt::QueuedConnection);
}

void LineInspector::end()
{
    --m_turns;
    if (m_turns == 0) { // else a later package is under way
        m_inspection.done();
        Q_EMIT settled();
    }
}
