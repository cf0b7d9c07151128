#include "vwreports.h"

#include "vwsettingstable.h"

namespace Vw {
namespace {

const int MaximumStartStopTexts = 6;
const int MaximumReports = 7;
const int MaximumConsumers = 3;
const int DistanceScale = 100;
const int MaximumVehicleNumber = 32; // characters; a vehicle number has 17

// Sub-types that count something; the ones that end in 1 count a distance.
bool isCounter(quint8 subType)
{
    return subType == 0x10 || subType == 0x11 || subType == 0x20 || subType == 0x21;
}

// d[1..]: printable ASCII up to the first NUL
QString vehicleNumber(const PackageView &d)
{
    QString number;
    for (int i = 1; i < d.n() && d.d(i) != 0 && number.size() < MaximumVehicleNumber; ++i) {
        if (d.d(i) >= 0x20 && d.d(i) < 0x7F) {
            number += QLatin1Char(char(d.d(i)));
        }
    }
    return number.trimmed();
}

ServiceReading::Form counterForm(int code)
{
    if (code == 1) {
        return ServiceReading::Count;
    }
    return code == 2 ? ServiceReading::Overdue : ServiceReading::Unknown;
}

} // namespace

// d[0] sub-type; d[1]: 6..4 unit of a distance (0 km), 2..0 form; d[2..3] count
ServiceReading serviceReading(const PackageView &d)
{
    ServiceReading reading = {ServiceReading::Absent, d.d(0), 0, nullptr, QString()};
    if (d.d(0) == VehicleNumberItem && d.n() >= 2) {
        reading.form = ServiceReading::Text;
        reading.text = vehicleNumber(d);
    } else if (isCounter(d.d(0)) && d.n() >= 4) {
        const bool distance = d.bit(0, 0);
        reading.form = counterForm(d.bits(1, 2, 0));
        reading.count = d.u16le(2) * (distance ? DistanceScale : 1);
        if (!distance) {
            reading.unit = QT_TR_NOOP("days");
        } else {
            reading.unit = d.bits(1, 6, 4) != 0 ? QT_TR_NOOP("mi") : QT_TR_NOOP("km");
        }
    }
    return reading;
}

// d[0] number of texts; d[1..6] the texts; d[7]: 7..1 unknown, 0 active
StartStopReport startStopReport(const PackageView &d)
{
    StartStopReport report = {d.n() >= 8, d.bit(7, 0), QList<int>()};
    for (int i = 0; i < qMin<int>(d.d(0), MaximumStartStopTexts); ++i) {
        report.texts.append(d.d(1 + i));
    }
    return report;
}

// d[0..1] number of reports; then two bytes each
NumbersReport vehicleReports(const PackageView &d)
{
    NumbersReport report = {d.n() >= 2, QList<int>()};
    const int count = qMin(qMin<int>(d.u16le(0), MaximumReports), (d.n() - 2) / 2);
    for (int i = 0; i < count; ++i) {
        report.numbers.append(d.u16le(2 + 2 * i));
    }
    return report;
}

// d[0] number of consumers; d[1..3] the consumers
NumbersReport consumersReport(const PackageView &d)
{
    NumbersReport report = {d.n() >= 4, QList<int>()};
    for (int i = 0; i < qMin<int>(d.d(0), MaximumConsumers); ++i) {
        report.numbers.append(d.d(1 + i));
    }
    return report;
}

} // namespace Vw
