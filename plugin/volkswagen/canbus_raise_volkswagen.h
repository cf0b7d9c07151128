#ifndef CANBUS_RAISE_VOLKSWAGEN_H
#define CANBUS_RAISE_VOLKSWAGEN_H

#include "raise/raiseadapter.h"

/// Raise decoder in a Volkswagen, CAN-bus type 3.
class CanBus_Raise_Volkswagen : public RaiseAdapter
{
    Q_OBJECT
};

#endif // CANBUS_RAISE_VOLKSWAGEN_H
