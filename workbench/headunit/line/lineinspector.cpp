#include "lineinspector.h"

#include "callwatch.h"
#include "headunit.h"
#include "jsontext.h"
#include "screenreader.h"
#include "serialtap.h"

#include "orbhost.h"

#include <QWidget>

namespace {

const qint64 Second = 1000000; // microseconds

// Whether a finger could read something that a package changes.
bool isAnythingOpen()
{
    for (const QWidget *window : OrbHost::instance()->windows()) {
        if (window->isVisible()) {
            return true;
        }
    }
    return false;
}

} // namespace

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
        lookAfter();
        m_inspection.setNow(now());
        m_inspection.unitKey(code, phase);
        begin();
    });
}

void LineInspector::readScreens(int perSecond)
{
    m_screens.reset(new ScreenReader);
    m_screensPerSecond = perSecond;
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
    if (m_isDeaf) {
        return;
    }
    m_inspection.setNow(now());
    if (object == QLatin1String("ProtocolUtils") && call == QLatin1String("recvProtocolData")) {
        lookAfter(); // what the package before has changed so far is its own
        m_inspection.taken(args.value(0).toByteArray());
        lookBefore();
        begin();
    } else if ((object != QLatin1String("ProtocolUtils") && object != QLatin1String("desk")) ||
               (call == QLatin1String("writeDatas") && m_turns > 0)) { // else its package tells as much
        m_inspection.called(CallWatch::Call::of(object, call, args).text());
    }
}

void LineInspector::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
    if (m_isDeaf) {
        return;
    }
    m_inspection.setNow(now());
    m_inspection.called(CallWatch::Call::of(call, event).text());
}

void LineInspector::valueTold(const QString &name, const QVariant &value)
{
    if (m_next) {
        m_next->valueTold(name, value);
    }
    if (m_isDeaf) {
        return;
    }
    m_inspection.setNow(now());
    m_inspection.called(QString("car.%1 %2").arg(name, QString::fromUtf8(JsonText::fromVariant(value))));
}

void LineInspector::lookBefore()
{
    const InspectionRow *row = m_inspection.current();
    if (m_screens && row && isWorthALook(*row) && isAnythingOpen()) {
        m_looked = now();
        m_isLooking = true;
        m_screens->remember();
    }
}

bool LineInspector::isWorthALook(const InspectionRow &row) const
{
    return m_screensPerSecond == 0 || (row.isNew() && !m_callers.contains(row.command) &&
                                       now() - m_looked >= Second / m_screensPerSecond);
}

// A package that causes calls is told by those: that they change a screen is no news. Nor will the next of its command
// be asked, most likely.
void LineInspector::lookAfter()
{
    const InspectionRow *row = m_inspection.current();
    if (row && row->kind == InspectionRow::Package && row->calls.isEmpty()) {
        m_callers.remove(row->command);
        const ScreenReader::Texts changes = m_isLooking ? m_screens->changes() : ScreenReader::Texts();
        for (auto at = changes.cbegin(); at != changes.cend(); ++at) {
            m_inspection.called(QString("screen %1 %2").arg(at.key(), at.value()));
        }
    } else if (row && row->kind == InspectionRow::Package) {
        m_callers.insert(row->command);
    }
    m_isLooking = false;
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
        lookAfter();
        m_inspection.done();
        Q_EMIT settled();
    }
}
