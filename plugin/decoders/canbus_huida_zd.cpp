// Huida decoder box in a Huida ZD, CAN-bus type 2.

#include "canbus_huida_zd.h"

#include "adapterfactory.h"

CANBUS_ADAPTER(CanBusTypeHuidaZd, CanBus_Huida_ZD)
