#include "vwkeptreports.h"

#include "vwcommands.h"
#include "vwreports.h"
#include "vwtripdata.h"

namespace Vw {
namespace {

bool isKept(const PackageView &d)
{
    switch (d.command()) {
    case StartStopReply:
        return startStopReport(d).valid;
    case ReportsReply:
        return vehicleReports(d).valid;
    case ConsumersReply:
        return consumersReport(d).valid;
    case TyreStatesReply:
        return tyreStates(d).valid;
    case TyreWarningReply:
        return tyreWarning(d).valid;
    case TripReply:
        return tripValue(d).kind == TripValue::Consumption;
    default:
        return false;
    }
}

bool isCounter(const ServiceReading &reading)
{
    return reading.form != ServiceReading::Absent && reading.form != ServiceReading::Text;
}

} // namespace

void KeptReports::take(const PackageView &package)
{
    if (package.command() == ServiceReply) {
        const ServiceReading reading = serviceReading(package);
        if (isCounter(reading)) {
            m_overdue.insert(reading.item, reading.form == ServiceReading::Overdue);
        }
        return;
    }
    if (!isKept(package)) {
        return;
    }
    for (int i = m_reports.size() - 1; i >= 0; --i) {
        if (quint8(m_reports.at(i).bytes.at(0)) == package.command()) {
            m_reports.removeAt(i);
        }
    }
    Report report;
    report.bytes = QByteArray(1, char(package.command())) + package.bytes();
    report.since.start();
    m_reports.append(report);
}

qint64 KeptReports::age(quint8 command) const
{
    for (int i = 0; i < m_reports.size(); ++i) {
        if (quint8(m_reports.at(i).bytes.at(0)) == command) {
            return m_reports.at(i).since.elapsed();
        }
    }
    return -1;
}

bool KeptReports::isServiceOverdue() const
{
    return !m_overdue.keys(true).isEmpty();
}

} // namespace Vw
