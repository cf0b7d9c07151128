#ifndef VOLKSWAGENDRIVINGDATA_H
#define VOLKSWAGENDRIVINGDATA_H

#include "simulatedcar.h"

/// The layouts of the Volkswagen box's driving data and service data. The car counts in metric units; the box
/// sends what the car's display shows, in the units that are set.
namespace VolkswagenDrivingData {

/// The six data bytes of each kind of driving data; \a subType is the first of them.
QByteArray range(const SimulatedCar &car, quint8 subType);
QByteArray distance(const SimulatedCar &car, quint8 subType, const QString &property);
QByteArray consumption(const SimulatedCar &car, quint8 subType, const QString &property);
QByteArray speed(const SimulatedCar &car, quint8 subType, const QString &property);
QByteArray time(const SimulatedCar &car, quint8 subType, const QString &property);

/// What is left until a service, or by how much it is overdue when the property is negative.
QByteArray serviceDays(const SimulatedCar &car, quint8 subType, const QString &property);
QByteArray serviceDistance(const SimulatedCar &car, quint8 subType, const QString &property);

} // namespace VolkswagenDrivingData

#endif // VOLKSWAGENDRIVINGDATA_H
