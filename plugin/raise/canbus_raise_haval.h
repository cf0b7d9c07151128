#ifndef CANBUS_RAISE_HAVAL_H
#define CANBUS_RAISE_HAVAL_H

#include "raiseadapter.h"

#include "climatenews.h"

class QTime;

/// Raise decoder in a Haval, CAN-bus type 11: wheel and panel keys, steering angle, rear radar, doors and climate.
/// Lights, gear and the right-hand camera are told as values. Sets the car's clock when the box has spoken, and
/// whenever the minute changes.
class CanBus_Raise_Haval : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Haval();

    CommandTable commands() const override;
    void onInited() override;

    /// Item, hour and minute as the car's clock takes them; there is no form with twelve hours.
    static QByteArray clockData(const QTime &time);

public Q_SLOTS:
    void onRecvMcuProtocol(const QByteArray &byteArray) override;

private Q_SLOTS:
    void onClockTimer();

private:
    void onClimate(const PackageView &d);
    void onSteeringAngle(const PackageView &d);

    AirConditionDlg m_climate;
    ClimateNews m_climateNews;
    QTimer *m_clockTimer;
    QByteArray m_clockSent; // empty until the box has spoken
};

#endif // CANBUS_RAISE_HAVAL_H
