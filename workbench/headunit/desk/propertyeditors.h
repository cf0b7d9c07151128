#ifndef PROPERTYEDITORS_H
#define PROPERTYEDITORS_H

class QString;
class QWidget;
class SimulatedCar;
struct CarProperty;

/// Controls for the simulated car: each shows one property, follows when something else changes it, and
/// changes it by hand. What has a scale can be dragged and typed.
namespace PropertyEditors {

/// A control with the property's name on it. The car is not owned and must outlive the control.
QWidget *create(const CarProperty &property, SimulatedCar *car);

/// A narrow upright slider for one of several alike, with \a title below it; whole numbers only.
QWidget *createUpright(const CarProperty &property, const QString &title, SimulatedCar *car);

} // namespace PropertyEditors

#endif // PROPERTYEDITORS_H
