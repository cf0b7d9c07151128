#ifndef VENUCIASPEAKER_H
#define VENUCIASPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Venucia; one for both models, so it tells climate and cameras.
class VenuciaSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit VenuciaSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    static QByteArray climate(const SimulatedCar &car);
    static QByteArray camera(const SimulatedCar &car);
    QString takeRequest(const BoxPackage &package);
    QString takeSetting(int item, bool on);
};

#endif // VENUCIASPEAKER_H
