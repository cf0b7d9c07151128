#ifndef HONDASPEAKER_H
#define HONDASPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Honda. The unit sets the car's clock through it.
class HondaSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit HondaSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
    QString takeSetting(const BoxPackage &package);
};

#endif // HONDASPEAKER_H
