#ifndef TEMPERATURETEXT_H
#define TEMPERATURETEXT_H

#include <QString>

/// Temperatures as the climate display shows them.
namespace TemperatureText {

/// Ends of the car's scale: "LO" and "HI".
QString low();
QString high();

/// One decimal and the unit: "21.5°C".
QString celsius(double degrees);

/// A whole number and the unit: "72°F".
QString fahrenheit(int degrees);

/// The bare number of a car whose temperatures are steps 1 to \a most; empty for any other \a step.
QString step(int step, int most);

} // namespace TemperatureText

#endif // TEMPERATURETEXT_H
