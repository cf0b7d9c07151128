#ifndef CANBUS_RAISE_RENAULT_H
#define CANBUS_RAISE_RENAULT_H

#include "raisesyncadapter.h"

#include "climatenews.h"

/// Raise decoder in a Renault, CAN-bus type 14: wheel keys, steering angle, two radar groups, doors and climate. Trip
/// computer, settings and outside temperature are told as values. Tells the car which source plays; the car knows no
/// clock.
class CanBus_Raise_Renault : public RaiseSyncAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Renault();

    CommandTable commands() const override;
    void onInited() override;

private:
    void onClimate(const PackageView &d);
    void onTrip(const PackageView &d);

    AirConditionDlg m_climate;
    ClimateNews m_climateNews;
};

#endif // CANBUS_RAISE_RENAULT_H
