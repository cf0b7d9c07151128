#include "canbus_raise_haval.h"

#include <QTimer>

CanBus_Raise_Haval::CanBus_Raise_Haval()
{
    setReadyTimer();
}

void CanBus_Raise_Haval::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
}
