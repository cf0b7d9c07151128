// Raise decoder box in a Haval, CAN-bus type 11.

#include "canbus_raise_haval.h"

#include "adapterfactory.h"

#include <QTimer>

CANBUS_ADAPTER(CanBusTypeRaiseHaval, CanBus_Raise_Haval)

CanBus_Raise_Haval::CanBus_Raise_Haval()
{
    setReadyTimer();
}

void CanBus_Raise_Haval::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
}
