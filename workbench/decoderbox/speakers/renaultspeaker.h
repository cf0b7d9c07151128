#ifndef RENAULTSPEAKER_H
#define RENAULTSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Renault. It repeats its climate all the time.
class RenaultSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit RenaultSpeaker(SimulatedCar *car, QObject *parent = nullptr);

private:
    void addRenaultReports();
    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
    static QByteArray settings(const SimulatedCar &car);
    static QByteArray trip(const SimulatedCar &car);
    QString takeSetting(int item, int value);
};

#endif // RENAULTSPEAKER_H
