#ifndef CANBUS_RAISE_NISSAN_H
#define CANBUS_RAISE_NISSAN_H

#include "raisesyncadapter.h"

/// Raise decoder in a Nissan, CAN-bus type 8. Its commands are not known: packages are acknowledged, no more.
class CanBus_Raise_Nissan : public RaiseSyncAdapter
{
    Q_OBJECT
};

#endif // CANBUS_RAISE_NISSAN_H
