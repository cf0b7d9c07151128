#ifndef CANBUS_RAISE_TOYOTA_H
#define CANBUS_RAISE_TOYOTA_H

#include "raiseadapter.h"

#include "airconditiondlg.h"

/// Raise decoder in a Toyota, CAN-bus type 9: wheel keys, steering angle, two radar groups, status bits,
/// climate, and the trigger of the 360-degree view. Tells the car which source plays.
class CanBus_Raise_Toyota : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Toyota();

    CommandTable commands() const override;
    void onInited() override;

    /// Switches the car's own (OEM) sound on or off.
    void enableOEMSound(bool on);

private:
    void greetBox() override;
    void startOEMSound();
    void onSteeringAngle(const PackageView &d);
    void onClimate(const PackageView &d);
    void on360View(const PackageView &d);

    AirConditionDlg m_climate;
    QByteArray m_lastClimate; // d[0..3] of the climate package that showed the dialog last
    const bool m_enableOemSound;
};

#endif // CANBUS_RAISE_TOYOTA_H
