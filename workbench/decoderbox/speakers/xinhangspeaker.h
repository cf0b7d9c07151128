#ifndef XINHANGSPEAKER_H
#define XINHANGSPEAKER_H

#include "boxspeaker.h"
#include "firmwarereceiver.h"

/// The XinHang box: a frame of its own, no acknowledgements, touches, switching of the car's screen, firmware
/// updates. It answers every ready with the type of its car, also while it talks.
class XinHangSpeaker : public BoxSpeaker
{
    Q_OBJECT

public:
    explicit XinHangSpeaker(SimulatedCar *car, QObject *parent = nullptr);

    bool usesAcknowledgement() const override { return false; }
    int baudRate() const override { return 115200; }
    bool hasTouch() const override { return true; }
    BoxPackage touchPackage(Touch touch, int x, int y) const override;
    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;

private:
    void addReports();
    void addAllKeys();
    void addCommands();
    QString takeReady(const BoxPackage &package);
    QString takeDisplaySource(const BoxPackage &package);
    QString takeSetting(const BoxPackage &package);

    static QByteArray status(const SimulatedCar &car);
    static QByteArray radarAndSteering(const SimulatedCar &car);
    static QByteArray radarMaxima(const SimulatedCar &car);

    FirmwareReceiver m_firmware;
};

#endif // XINHANGSPEAKER_H
