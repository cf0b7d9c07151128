#ifndef CANBUS_RAISE_GM_H
#define CANBUS_RAISE_GM_H

#include "raiseadapter.h"

/// Raise decoder in a GM, CAN-bus type 10.
class CanBus_Raise_GM : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_GM();

    void onInited() override;
};

#endif // CANBUS_RAISE_GM_H
