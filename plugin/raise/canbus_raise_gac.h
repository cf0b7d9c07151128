#ifndef CANBUS_RAISE_GAC_H
#define CANBUS_RAISE_GAC_H

#include "raiseadapter.h"

/// Raise decoder in a GAC, CAN-bus type 12. Its commands are not known: packages are acknowledged, no more.
class CanBus_Raise_GAC : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_GAC();

    void onInited() override;

public Q_SLOTS:
    /// One synchronisation; nothing is known to be sent.
    void onSendSyncTimer();
};

#endif // CANBUS_RAISE_GAC_H
