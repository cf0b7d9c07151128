#include "canbus_raise_jeep.h"

#include <QTimer>

CanBus_Raise_Jeep::CanBus_Raise_Jeep()
{
    setPeriodicTimer(200, SLOT(onSendReadyTimer()));
}

void CanBus_Raise_Jeep::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
    const unsigned char start[] = {0x01};
    writeCanBusData(0x84, start, sizeof start);
}
