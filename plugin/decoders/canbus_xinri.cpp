// XinRi decoder box in an electric car, CAN-bus type 6.

#include "canbus_xinri.h"

#include "adapterfactory.h"

#include <QTimer>

CANBUS_ADAPTER(CanBusTypeXinRi, CanBus_XinRi)

CanBus_XinRi::CanBus_XinRi()
{
    setReadyTimer();
}

void CanBus_XinRi::onInited()
{
    sendReady(1);
    periodicTimer()->start();
}

void CanBus_XinRi::onOtherPackage(const PackageView &)
{
    periodicTimer()->stop();
}
