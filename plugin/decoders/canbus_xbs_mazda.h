#ifndef CANBUS_XBS_MAZDA_H
#define CANBUS_XBS_MAZDA_H

#include "raise/raiseadapter.h"

/// XBS decoder in a Mazda, CAN-bus type 5; it speaks the Raise frame.
class CanBus_XBS_Mazda : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_XBS_Mazda();

    void onInited() override;
};

#endif // CANBUS_XBS_MAZDA_H
