#ifndef PROPERTYEDITORS_H
#define PROPERTYEDITORS_H

#include <QString>

class QWidget;
class SimulatedCar;
struct CarProperty;

/// Controls for the simulated car: each shows one property, follows when something else changes it, and
/// changes it by hand.
namespace PropertyEditors {

/// "To window" of the property "climate.to_window", in the user's language.
QString title(const QString &name);

/// "Radar front" of the group "radar.front".
QString groupTitle(const QString &group);

/// A control with the property's name on it. The car is not owned and must outlive the control.
QWidget *create(const CarProperty &property, SimulatedCar *car);

/// A narrow upright slider for one of several alike; whole numbers only.
QWidget *createUpright(const CarProperty &property, SimulatedCar *car);

} // namespace PropertyEditors

#endif
