#ifndef CANBUS_RAISE_HONDA_H
#define CANBUS_RAISE_HONDA_H

#include "raisesyncadapter.h"

/// Raise decoder in a Honda, CAN-bus type 7.
class CanBus_Raise_Honda : public RaiseSyncAdapter
{
    Q_OBJECT
};

#endif // CANBUS_RAISE_HONDA_H
