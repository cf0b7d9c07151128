#ifndef CANBUS_RAISE_GAC_H
#define CANBUS_RAISE_GAC_H

#include "raiseadapter.h"

#include "climatenews.h"

class QTime;

/// Raise decoder in a GAC, CAN-bus type 12: wheel and panel keys, steering angle, two radar groups, doors and climate.
/// Backlight, gear, surround view, emergency calls and settings are told as values. Sets the car's clock every thirty
/// seconds.
class CanBus_Raise_GAC : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_GAC();

    CommandTable commands() const override;
    void onInited() override;

    /// Minute, hour (0 to 23, or 1 to 12), display format and half of the day as the car's clock takes them.
    static QByteArray clockData(const QTime &time, bool twelveHours);

public Q_SLOTS:
    /// Sets the car's clock to the local time.
    void onSendSyncTimer();

private:
    void onClimate(const PackageView &d);
    void onWheelKey(const PackageView &d);
    void onSteeringAngle(const PackageView &d);

    AirConditionDlg m_climate;
    ClimateNews m_climateNews;
};

#endif // CANBUS_RAISE_GAC_H
