#ifndef TRACERECORDER_H
#define TRACERECORDER_H

#include "orbtrace.h"

#include <QStringList>

/// Writes down every call on the framework as one line of text, in order, while it exists:
///     OrbApplication.simulateKey(16777330,true,false,1)
///     AirConditionDlg.setTemperature(21.5°C,LO)
///     dispatchOrbEvent(400,12,51007,20508,0,variant=-40)
///     event(401,25,51001,0,513)
///     ProtocolUtils.writeDatas_direct(ff)
///     value outside.temperature 23
/// Numbers are decimal, byte arrays hexadecimal; an event's line is its source, id, type and parameters, and
/// then "bytes=", "string=" and "variant=" where set. A pointer variant is a key-set registration and shown
/// as its records "[2f00001:ff02bc,...]". Recorders may nest; the inner one alone records.
class TraceRecorder : public OrbTraceListener
{
public:
    TraceRecorder();
    ~TraceRecorder() override;

    /// The lines so far; take() also forgets them.
    const QStringList &lines() const { return m_lines; }
    QStringList take();

    /// The lines so far of one object ("AirConditionDlg") or call ("dispatchOrbEvent").
    QStringList linesOf(const QString &prefix) const;

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    void valueTold(const QString &name, const QVariant &value) override;

private:
    OrbTraceListener *const m_before;
    QStringList m_lines;
};

#endif // TRACERECORDER_H
