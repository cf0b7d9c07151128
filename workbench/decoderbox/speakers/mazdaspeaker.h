#ifndef MAZDASPEAKER_H
#define MAZDASPEAKER_H

#include "raisespeaker.h"

/// The XBS box in a Mazda, which speaks in the Raise frame.
class MazdaSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit MazdaSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    static QByteArray doorByte(const SimulatedCar &car);
    static QByteArray sixSensors(const SimulatedCar &car);
};

#endif // MAZDASPEAKER_H
