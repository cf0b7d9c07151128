// Raise decoder box in a GAC, CAN-bus type 12.

#include "canbus_raise_gac.h"

#include "adapterfactory.h"

#include <QTimer>

CANBUS_ADAPTER(CanBusTypeRaiseGac, CanBus_Raise_GAC)

CanBus_Raise_GAC::CanBus_Raise_GAC()
{
    setPeriodicTimer(30000, SLOT(onSendSyncTimer()));
}

void CanBus_Raise_GAC::onInited()
{
    sendReady(2);
    periodicTimer()->start();
    onSendSyncTimer();
}

void CanBus_Raise_GAC::onSendSyncTimer() {}
