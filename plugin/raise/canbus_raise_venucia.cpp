// Raise decoder box in a Venucia, CAN-bus type 13.

#include "canbus_raise_venucia.h"

#include "adapterfactory.h"

CANBUS_ADAPTER(CanBusTypeRaiseVenucia, CanBus_Raise_Venucia)
