#ifndef CANBUS_RAISE_GM_H
#define CANBUS_RAISE_GM_H

#include "raisepaneladapter.h"

/// Raise decoder in a GM, CAN-bus type 10: wheel and panel keys, steering angle, two radar groups, status
/// bits and climate.
class CanBus_Raise_GM : public RaisePanelAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_GM();

    CommandTable commands() const override;

private:
    void onClimate(const PackageView &d);
    void setWindDirection(int code);
    void onSteeringAngle(const PackageView &d);
};

#endif // CANBUS_RAISE_GM_H
