#include "canbus_xbs_mazda.h"

#include <QTimer>

CanBus_XBS_Mazda::CanBus_XBS_Mazda()
{
    setPeriodicTimer(200, SLOT(onSendReadyTimer()));
}

void CanBus_XBS_Mazda::onInited()
{
    sendReady(1);
    periodicTimer()->start();
}
