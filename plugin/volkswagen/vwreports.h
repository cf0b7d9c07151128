#ifndef VWREPORTS_H
#define VWREPORTS_H

#include "packageview.h"

#include <QList>
#include <QString>

/// What the box's service and report packages say, as plain values.
namespace Vw {

/// One line of the service page (0x63).
struct ServiceReading
{
    enum Form {
        Absent,  ///< the package is too short, or no reading
        Unknown, ///< the car has no count
        Count,
        Overdue,
        Text ///< the vehicle number
    };
    Form form;
    int item;         ///< the row that the reading belongs to
    int count;        ///< days, or kilometres or miles
    const char *unit; ///< source text (context Vw)
    QString text;
};
ServiceReading serviceReading(const PackageView &d);

/// The start-stop system (0x60): whether it is active, and the numbers of up to six texts. Not valid below 8
/// data bytes.
struct StartStopReport
{
    bool valid;
    bool active;
    QList<int> texts;
};
StartStopReport startStopReport(const PackageView &d);

/// Numbers of up to seven vehicle reports (0x61), as far as the package holds them. Not valid below 2 data
/// bytes.
struct NumbersReport
{
    bool valid;
    QList<int> numbers;
};
NumbersReport vehicleReports(const PackageView &d);

/// Numbers of up to three active convenience consumers (0x62). Not valid below 4 data bytes.
NumbersReport consumersReport(const PackageView &d);

} // namespace Vw

#endif // VWREPORTS_H
