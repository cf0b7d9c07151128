#ifndef GMSPEAKER_H
#define GMSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a GM car.
class GmSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit GmSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
};

#endif // GMSPEAKER_H
