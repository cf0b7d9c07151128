// Raise decoder box in a Nissan, CAN-bus type 8.

#include "canbus_raise_nissan.h"

#include "adapterfactory.h"

CANBUS_ADAPTER(CanBusTypeRaiseNissan, CanBus_Raise_Nissan)
