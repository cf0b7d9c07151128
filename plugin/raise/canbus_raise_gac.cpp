#include "canbus_raise_gac.h"

#include <QTimer>

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
