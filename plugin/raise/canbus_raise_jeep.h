#ifndef CANBUS_RAISE_JEEP_H
#define CANBUS_RAISE_JEEP_H

#include "raiseadapter.h"

/// Raise decoder in a Jeep, CAN-bus type 15.
class CanBus_Raise_Jeep : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Jeep();

    void onInited() override;
};

#endif // CANBUS_RAISE_JEEP_H
