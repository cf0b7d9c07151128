#ifndef HAVALSPEAKER_H
#define HAVALSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Haval.
class HavalSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit HavalSpeaker(SimulatedCar *car, QObject *parent = nullptr);

    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;

private:
    static QByteArray climate(const SimulatedCar &car);
    static QByteArray doorsAndGear(const SimulatedCar &car);
    QString takeSetting(const BoxPackage &package);
};

#endif // HAVALSPEAKER_H
