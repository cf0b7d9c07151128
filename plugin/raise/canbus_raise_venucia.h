#ifndef CANBUS_RAISE_VENUCIA_H
#define CANBUS_RAISE_VENUCIA_H

#include "raisesyncadapter.h"

#include "climatenews.h"

/// Raise decoder in a Venucia, CAN-bus type 13: keys of wheel and panel, climate, and the trigger of the surround
/// cameras. Camera picture and camera settings are told as values. The car knows no clock and shows no sources.
class CanBus_Raise_Venucia : public RaiseSyncAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Venucia();

    CommandTable commands() const override;
    void onInited() override;

private:
    void greetBox() override;
    void onClimate(const PackageView &d);
    void onCamera(const PackageView &d);

    AirConditionDlg m_climate;
    ClimateNews m_climateNews;
    int m_cameraState; // as the box told it last
};

#endif // CANBUS_RAISE_VENUCIA_H
