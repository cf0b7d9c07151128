#ifndef CANBUS_RAISE_RENAULT_H
#define CANBUS_RAISE_RENAULT_H

#include "raisesyncadapter.h"

/// Raise decoder in a Renault, CAN-bus type 14. Its commands are not known: packages are acknowledged, no
/// more.
class CanBus_Raise_Renault : public RaiseSyncAdapter
{
    Q_OBJECT
};

#endif // CANBUS_RAISE_RENAULT_H
