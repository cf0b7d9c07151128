#ifndef CANBUS_XBS_MAZDA_H
#define CANBUS_XBS_MAZDA_H

#include "raise/raiseadapter.h"

/// XBS decoder in a Mazda, CAN-bus type 5; it speaks the Raise frame: wheel keys and knob, doors, steering
/// angle and radar.
class CanBus_XBS_Mazda : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_XBS_Mazda();

    CommandTable commands() const override;
    void onInited() override;

private:
    void onDoors(const PackageView &d);
    void onMazdaVersion(const PackageView &d);
};

#endif // CANBUS_XBS_MAZDA_H
