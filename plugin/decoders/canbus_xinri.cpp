#include "canbus_xinri.h"

#include <QTimer>

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
