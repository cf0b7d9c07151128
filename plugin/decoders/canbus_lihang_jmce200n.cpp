// LiHang decoder box in a JMC E200N, CAN-bus type 1.

#include "canbus_lihang_jmce200n.h"

#include "adapterfactory.h"

CANBUS_ADAPTER(CanBusTypeLiHangJmcE200N, CanBus_LiHang_JMCE200N)
