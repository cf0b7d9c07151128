#ifndef VOLKSWAGENSPEAKER_H
#define VOLKSWAGENSPEAKER_H

#include "raisespeaker.h"

/// The Raise box in a Volkswagen. Besides what other boxes report it answers the unit's requests for driving
/// data, settings, service data, start-stop, reports and consumers, and lets the unit change the car's
/// settings; what has changed is sent whether or not the unit asks.
class VolkswagenSpeaker : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit VolkswagenSpeaker(SimulatedCar *car, QObject *parent = nullptr);

    /// Keys on the wheel are all released with one and the same code. Function keys are sent when they are
    /// pressed; the two that seek also tell their release.
    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;

private:
    void addCarReports();
    void addDrivingData();
    void addServiceData();
    void addMessages();
    void addTrip(int page, const QString &trip);
    void addService(quint8 subType, const QString &name, const QString &counter, bool isDistance);
    void addVolkswagenKeys();
    QString takeRequest(const BoxPackage &package);
    QString takeSetting(const BoxPackage &package);
    void carryOutAction(int item);
    bool isAction(int item) const;

    static QByteArray climate(const SimulatedCar &car);
    static quint8 temperatureCode(const SimulatedCar &car, const QString &property);
    static QByteArray tyreWarning(const SimulatedCar &car);
    static QByteArray startStop(const SimulatedCar &car);
    static QByteArray reportCodes(const SimulatedCar &car);
    static QByteArray consumers(const SimulatedCar &car);
};

#endif // VOLKSWAGENSPEAKER_H
