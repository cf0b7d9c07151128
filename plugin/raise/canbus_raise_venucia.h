#ifndef CANBUS_RAISE_VENUCIA_H
#define CANBUS_RAISE_VENUCIA_H

#include "raisesyncadapter.h"

/// Raise decoder in a Venucia, CAN-bus type 13. Its commands are not known: packages are acknowledged, no
/// more.
class CanBus_Raise_Venucia : public RaiseSyncAdapter
{
    Q_OBJECT
};

#endif // CANBUS_RAISE_VENUCIA_H
