#ifndef GACSPEAKER_H
#define GACSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a GAC; one for all models, so it tells what any of them has.
class GacSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit GacSpeaker(SimulatedCar *car, QObject *parent = nullptr);

    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;

private:
    void addGacReports();
    void addGacKeys();
    void addBars(const QString &side, quint8 command);
    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
    QString takeClock(const BoxPackage &package);
    QString takeSetting(int item, int value);
};

#endif // GACSPEAKER_H
