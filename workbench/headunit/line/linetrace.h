#ifndef LINETRACE_H
#define LINETRACE_H

#include "linestatus.h"

#include <QElapsedTimer>
#include <QObject>

class LineReporter;
class OrbTraceListener;

/// Writes the line's health into a trace, as rows of the object "line":
///
///     "state" [NAME, TEXT, PORT]                  at the first moment and at each change
///     "counts" [PACKAGES A SECOND, PACKAGES, BAD CHECKSUMS, SKIPPED BYTES, REPETITIONS,
///               AGE OF THE LAST PACKAGE in ms, ACKNOWLEDGEMENT in ms]
///                                               once a second while any of them changes but the age; -1 for none
class LineTrace : public QObject
{
    Q_OBJECT

public:
    /// \a reporter and \a trace are not owned and must outlive it.
    LineTrace(LineReporter *reporter, OrbTraceListener *trace, QObject *parent = nullptr);

private:
    void writeState(const LineStatus &status);
    void writeCounts(const LineStatus &status);

    OrbTraceListener *m_trace;
    LineStatus m_written;
    QElapsedTimer m_sinceCounts;
};

#endif // LINETRACE_H
