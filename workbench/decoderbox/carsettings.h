#ifndef CARSETTINGS_H
#define CARSETTINGS_H

#include "carproperty.h"

/// The part of the car's properties that its driver sets in menus, and what the car's own computer tells:
/// driving data, tyres, messages, service. Part of CarProperty::all().
QVector<CarProperty> carSettings();

#endif // CARSETTINGS_H
