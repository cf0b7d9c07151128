// Raise decoder box in a Renault, CAN-bus type 14.

#include "canbus_raise_renault.h"

#include "adapterfactory.h"

CANBUS_ADAPTER(CanBusTypeRaiseRenault, CanBus_Raise_Renault)
