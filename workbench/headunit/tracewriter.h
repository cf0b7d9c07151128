#ifndef TRACEWRITER_H
#define TRACEWRITER_H

#include "orbtrace.h"

#include <QElapsedTimer>

class LineOutput;

/// Writes what happens as JSON, one object a line:
///
///     {"t": 1.042, "object": "OrbApplication", "call": "simulateKey", "args": [16777330, true, false, 1]}
///
/// Byte arrays are lower-case hexadecimal texts. Values that the car told are rows too, when they are wanted, with null
/// for one that is not known any more:
///
///     {"t": 1.042, "object": "car", "call": "outside.temperature", "args": [23]}
class TraceWriter : public OrbTraceListener
{
public:
    /// \a output is not owned; null swallows everything. `t` counts from here.
    explicit TraceWriter(LineOutput *output, bool withValues = false);

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    void valueTold(const QString &name, const QVariant &value) override;

private:
    void write(const QString &object, const QString &call, const QByteArray &args);

    LineOutput *m_output;
    bool m_withValues;
    QElapsedTimer m_clock;
};

#endif // TRACEWRITER_H
