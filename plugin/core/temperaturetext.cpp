#include "temperaturetext.h"

QString TemperatureText::low()
{
    return QLatin1String("LO");
}

QString TemperatureText::high()
{
    return QLatin1String("HI");
}

QString TemperatureText::celsius(double degrees)
{
    return QString::number(degrees, 'f', 1) + QString::fromUtf8("°C");
}

QString TemperatureText::fahrenheit(int degrees)
{
    return QString::number(degrees) + QString::fromUtf8("°F");
}

QString TemperatureText::step(int step, int most)
{
    return step >= 1 && step <= most ? QString::number(step) : QString();
}
