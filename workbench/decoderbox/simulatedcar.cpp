#include "simulatedcar.h"

#include <cmath>

int ClimateTemperature::fahrenheit() const
{
    return int(std::lround(celsius * 9.0 / 5.0 + 32.0));
}

SimulatedCar::SimulatedCar(QObject *parent) : QObject(parent)
{
    reset(QString());
}

bool SimulatedCar::has(const QString &name)
{
    return CarProperty::find(name) != nullptr;
}

QVariant SimulatedCar::value(const QString &name) const
{
    return m_values.value(name);
}

QString SimulatedCar::text(const QString &name) const
{
    const CarProperty *property = CarProperty::find(name);
    return property ? property->text(m_values.value(name)) : QString();
}

bool SimulatedCar::flag(const QString &name) const
{
    return value(name).toBool();
}

int SimulatedCar::number(const QString &name) const
{
    return value(name).toInt();
}

double SimulatedCar::real(const QString &name) const
{
    return value(name).toDouble();
}

ClimateTemperature SimulatedCar::temperature(const QString &name) const
{
    const QVariant chosen = value(name);
    if (chosen.toString() == "LO") {
        return {ClimateTemperature::Low, 0};
    }
    if (chosen.toString() == "HI") {
        return {ClimateTemperature::High, 0};
    }
    return {ClimateTemperature::Degrees, chosen.toDouble()};
}

int SimulatedCar::choice(const QString &name) const
{
    const CarProperty *property = CarProperty::find(name);
    return property ? int(property->choices.indexOf(value(name).toString())) : -1;
}

QVector<int> SimulatedCar::numbers(const QString &name) const
{
    QVector<int> result;
    const QString list = value(name).toString();
    if (list.isEmpty()) {
        return result;
    }
    const QStringList parts = list.split(',');
    for (const QString &part : parts) {
        result << part.toInt();
    }
    return result;
}

bool SimulatedCar::setValue(const QString &name, const QVariant &value, QString *error)
{
    QString reason;
    QVariant fitting;
    if (!read(name, value, &fitting, &reason)) {
        if (error) {
            *error = reason;
        }
        return false;
    }
    if (m_values.value(name) != fitting) {
        m_values.insert(name, fitting);
        Q_EMIT changed(name);
    }
    return true;
}

bool SimulatedCar::check(const QString &name, const QVariant &value, QString *error)
{
    QVariant ignored;
    return read(name, value, &ignored, error);
}

void SimulatedCar::reset(const QString &prefix)
{
    for (const CarProperty &property : CarProperty::all()) {
        if (property.name.startsWith(prefix)) {
            setValue(property.name, property.initial);
        }
    }
}

bool SimulatedCar::read(const QString &name, const QVariant &value, QVariant *result, QString *error)
{
    const CarProperty *property = CarProperty::find(name);
    if (!property) {
        *error = QString("unknown property '%1'").arg(name);
        return false;
    }
    return property->read(value, result, error);
}
