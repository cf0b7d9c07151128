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

KeptReports::Report::Report(const PackageView &package)
    : bytes(QByteArray(1, char(package.command())) + package.bytes())
{
    clock.start();
}

void KeptReports::take(const PackageView &package)
{
    if (package.command() == ServiceReply) {
        const ServiceReading reading = serviceReading(package);
        if (isCounter(reading)) {
            m_overdue.removeAll(reading.item);
        }
        if (reading.form == ServiceReading::Overdue) {
            m_overdue.append(reading.item);
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
    m_reports.append(Report(package));
}

qint64 KeptReports::age(quint8 command) const
{
    for (int i = 0; i < m_reports.size(); ++i) {
        if (quint8(m_reports.at(i).bytes.at(0)) == command) {
            return m_reports.at(i).clock.elapsed();
        }
    }
    return -1;
}

bool KeptReports::isServiceOverdue() const
{
    return !m_overdue.isEmpty();
}

} // namespace Vw
