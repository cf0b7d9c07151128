#include "volkswagendrivingdata.h"

#include <cmath>

namespace {

const int Length = 6;
const double MilesPerKilometre = 0.621371;

bool isMiles(const SimulatedCar &car)
{
    return car.text("settings.units.distance") == "mi";
}

// A value as unsigned little-endian bytes, saturated.
QByteArray bytesOf(double value, int count)
{
    const double most = std::pow(256.0, count) - 1;
    quint64 rest = quint64(std::llround(qBound(0.0, value, most)));
    QByteArray result;
    for (int i = 0; i < count; ++i, rest >>= 8) {
        result += char(rest);
    }
    return result;
}

QByteArray data(quint8 subType, const QByteArray &rest)
{
    return (QByteArray(1, char(subType)) + rest).leftJustified(Length, '\0');
}

// 0 L/100km, 1 km/L, 2 miles per imperial gallon, 3 miles per US gallon
int consumptionUnit(const SimulatedCar &car)
{
    static const int units[] = {2, 0, 3, 1}; // index: the choice
    return units[car.choice("settings.units.consumption")];
}

double shownConsumption(int unit, double litresPer100Km)
{
    static const double factors[] = {0, 100.0, 282.481, 235.215};
    if (unit == 0) {
        return litresPer100Km;
    }
    return litresPer100Km > 0 ? factors[unit] / litresPer100Km : 0;
}

int serviceForm(const SimulatedCar &car, int counter)
{
    enum Form { Unknown = 0, Left = 1, Overdue = 2 };
    if (!car.flag("service.known")) {
        return Unknown;
    }
    return counter < 0 ? Overdue : Left;
}

} // namespace

// d1: 0 kilometres; d2, d3: range
QByteArray VolkswagenDrivingData::range(const SimulatedCar &car, quint8 subType)
{
    const double shown = car.number("trip.range") * (isMiles(car) ? MilesPerKilometre : 1);
    return data(subType, QByteArray(1, char(!isMiles(car))) + bytesOf(shown, 2));
}

// d1: 0 kilometres; d2 to d5: tenths
QByteArray VolkswagenDrivingData::distance(const SimulatedCar &car, quint8 subType, const QString &property)
{
    const double shown = car.real(property) * (isMiles(car) ? MilesPerKilometre : 1);
    return data(subType, QByteArray(1, char(!isMiles(car))) + bytesOf(shown * 10, 4));
}

// d1: 1..0 unit; d2, d3: tenths
QByteArray VolkswagenDrivingData::consumption(const SimulatedCar &car, quint8 subType,
                                              const QString &property)
{
    const int unit = consumptionUnit(car);
    return data(subType,
                QByteArray(1, char(unit)) + bytesOf(shownConsumption(unit, car.real(property)) * 10, 2));
}

// d1: 0 miles per hour; d2, d3: tenths
QByteArray VolkswagenDrivingData::speed(const SimulatedCar &car, quint8 subType, const QString &property)
{
    const bool isMph = car.text("settings.units.speed") == "mph";
    const double shown = car.number(property) * (isMph ? MilesPerKilometre : 1);
    return data(subType, QByteArray(1, char(isMph)) + bytesOf(shown * 10, 2));
}

// d1, d2: minutes
QByteArray VolkswagenDrivingData::time(const SimulatedCar &car, quint8 subType, const QString &property)
{
    return data(subType, bytesOf(car.number(property), 2));
}

// d1: 2..0 form; d2, d3: days
QByteArray VolkswagenDrivingData::serviceDays(const SimulatedCar &car, quint8 subType,
                                              const QString &property)
{
    const int days = car.number(property);
    return data(subType, QByteArray(1, char(serviceForm(car, days))) + bytesOf(std::abs(days), 2)).left(4);
}

// d1: 6..4 other than 0 for miles, 2..0 form; d2, d3: hundreds of the unit
QByteArray VolkswagenDrivingData::serviceDistance(const SimulatedCar &car, quint8 subType,
                                                  const QString &property)
{
    const int kilometres = car.number(property);
    const double shown = std::abs(kilometres) * (isMiles(car) ? MilesPerKilometre : 1);
    const int d1 = serviceForm(car, kilometres) | (isMiles(car) ? 1 << 4 : 0);
    return data(subType, QByteArray(1, char(d1)) + bytesOf(shown / 100, 2)).left(4);
}
