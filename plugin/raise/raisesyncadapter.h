#ifndef RAISESYNCADAPTER_H
#define RAISESYNCADAPTER_H

#include "raiseadapter.h"

/// Raise decoders that the unit synchronises with every ten seconds: three ready packages, then the first
/// synchronisation at once and the timer.
class RaiseSyncAdapter : public RaiseAdapter
{
    Q_OBJECT

public:
    RaiseSyncAdapter();

    void onInited() override;

public Q_SLOTS:
    /// One synchronisation; here nothing is sent.
    virtual void onSyncTimer();
};

#endif // RAISESYNCADAPTER_H
