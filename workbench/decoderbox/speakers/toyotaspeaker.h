#ifndef TOYOTASPEAKER_H
#define TOYOTASPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Toyota.
class ToyotaSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit ToyotaSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
    static QByteArray steeringAngle(const SimulatedCar &car);
    static QByteArray view360(const SimulatedCar &car);
};

#endif // TOYOTASPEAKER_H
