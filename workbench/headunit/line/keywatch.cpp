#include "keywatch.h"

#include "keytext.h"
#include "lineinspector.h"
#include "packagevalues.h"

#include "orbtrace.h"

namespace {

const int LookInterval = 250;     // ms
const qint64 TakingTime = 100000; // microseconds in which the plug-in takes a package

KeyReader readerOf(LineInspector *inspector)
{
    const PackageValues *values = inspector->inspection()->values();
    return values ? KeyReader(values->speaker()) : KeyReader();
}

QVariantList head(const KeyStroke &stroke)
{
    return {KeyText::group(stroke), stroke.command, stroke.code, stroke.name};
}

QVariant list(const QVector<quint32> &keys)
{
    QVariantList list;
    for (const quint32 key : keys) {
        list << key;
    }
    return list;
}

} // namespace

KeyWatch::KeyWatch(LineInspector *inspector, QObject *parent)
    : QObject(parent), m_inspector(inspector), m_tester(readerOf(inspector))
{
    m_timer.setInterval(LookInterval);
    m_timer.start();
    connect(&m_timer, &QTimer::timeout, this, &KeyWatch::look);
    connect(inspector, &LineInspector::settled, this, &KeyWatch::look);
}

qint64 KeyWatch::now() const
{
    return m_inspector->inspection()->now();
}

void KeyWatch::look()
{
    m_inspector->catchUp();
    const Inspection &inspection = *m_inspector->inspection();
    m_next = qMax(m_next, inspection.firstNumber());
    for (; m_inspector->isSettled() && m_next < inspection.endNumber(); ++m_next) {
        const InspectionRow &row = inspection.row(m_next);
        const bool isDue = row.kind != InspectionRow::Package || !row.isTowardsUnit || row.isTaken ||
                           now() - row.microseconds > TakingTime;
        if (!isDue) {
            break;
        }
        m_tester.take(row);
    }
    m_tester.look(now());
    Q_EMIT looked();
}

void KeyWatch::trace(OrbTraceListener *trace)
{
    connect(&m_tester, &KeyTester::pressed, this, [trace](const KeyStroke &stroke) {
        const QVariantList keys{list(stroke.becomes), list(stroke.redefined)};
        trace->called("keys", "pressed", head(stroke) + keys);
    });
    connect(&m_tester, &KeyTester::released, this, [trace](const KeyStroke &stroke) {
        const QVariantList times{stroke.pressed < 0 ? -1 : stroke.downFor(0), stroke.holds,
                                 list(stroke.becomes), list(stroke.redefined)};
        trace->called("keys", "released", head(stroke) + times);
    });
    connect(&m_tester, &KeyTester::turned, this, [trace](const KeyStroke &stroke) {
        trace->called("keys", "turned", head(stroke) + QVariantList{stroke.clicks, list(stroke.becomes)});
    });
    connect(&m_tester, &KeyTester::stuck, this, [trace](const KeyStroke &stroke) {
        trace->called("keys", "stuck", head(stroke) + QVariantList{KeyText::alarm(stroke)});
    });
}
