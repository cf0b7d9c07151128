#ifndef JEEPSPEAKER_H
#define JEEPSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Jeep: it reports keys alone.
class JeepSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit JeepSpeaker(SimulatedCar *car, QObject *parent = nullptr);
};

#endif // JEEPSPEAKER_H
