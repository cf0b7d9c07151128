#include "linetrace.h"

#include "linereporter.h"

#include "orbtrace.h"

namespace {

const int CountsInterval = 1000 - LineReporter::Interval / 2; // ms; each fourth report

bool haveSameCounts(const LineStatus &one, const LineStatus &other)
{
    return one.packagesPerSecond == other.packagesPerSecond && one.packages == other.packages &&
           one.badChecksums == other.badChecksums && one.skippedBytes == other.skippedBytes &&
           one.repetitions == other.repetitions && one.acknowledgement == other.acknowledgement;
}

} // namespace

LineTrace::LineTrace(LineReporter *reporter, OrbTraceListener *trace, QObject *parent)
    : QObject(parent), m_trace(trace)
{
    m_sinceCounts.start();
    connect(reporter, &LineReporter::stateChanged, this, &LineTrace::writeState);
    connect(reporter, &LineReporter::reported, this, &LineTrace::writeCounts);
}

void LineTrace::writeState(const LineStatus &status)
{
    m_trace->called("line", "state", {QString(status.name()), status.text(), status.port});
}

void LineTrace::writeCounts(const LineStatus &status)
{
    if (m_sinceCounts.elapsed() < CountsInterval || haveSameCounts(status, m_written)) {
        return;
    }
    m_sinceCounts.restart();
    m_written = status;
    const double acknowledgement = status.acknowledgement < 0 ? -1 : double(status.acknowledgement) / 1000;
    m_trace->called("line", "counts",
                    {status.packagesPerSecond, status.packages, status.badChecksums, status.skippedBytes,
                     status.repetitions, status.packageAge, acknowledgement});
}
