#ifndef CANBUS_RAISE_HAVAL_H
#define CANBUS_RAISE_HAVAL_H

#include "raiseadapter.h"

/// Raise decoder in a Haval, CAN-bus type 11. Its commands are not known: packages are acknowledged, no more.
class CanBus_Raise_Haval : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Haval();

    void onInited() override;
};

#endif // CANBUS_RAISE_HAVAL_H
