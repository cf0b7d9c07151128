#ifndef NISSANSPEAKER_H
#define NISSANSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Nissan; one for all models, so it tells what any of them has.
class NissanSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit NissanSpeaker(SimulatedCar *car, QObject *parent = nullptr);

    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;

private:
    void addNissanKeys();
    static QByteArray amplifier(const SimulatedCar &car);
    static QByteArray parkingPicture(const SimulatedCar &car);
    QString takeClock(const BoxPackage &package);
    QString takeSetting(int item, int value);
};

#endif // NISSANSPEAKER_H
