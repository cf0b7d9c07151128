#include "raisesyncadapter.h"

#include <QTimer>

RaiseSyncAdapter::RaiseSyncAdapter()
{
    setPeriodicTimer(10000, SLOT(onSyncTimer()));
}

void RaiseSyncAdapter::onInited()
{
    sendReady(3);
    periodicTimer()->start();
    onSyncTimer();
}

void RaiseSyncAdapter::onSyncTimer() {}
