#include "canbus_raise_gm.h"

#include <QTimer>

CanBus_Raise_GM::CanBus_Raise_GM()
{
    setPeriodicTimer(200, SLOT(onSendReadyTimer()));
}

void CanBus_Raise_GM::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
    const unsigned char start[] = {0x01};
    writeCanBusData(0x84, start, sizeof start);
}
