#ifndef RAISEPANELADAPTER_H
#define RAISEPANELADAPTER_H

#include "raiseadapter.h"

#include "airconditiondlg.h"

/// Raise decoders of cars with keys on their own panel, which want to be switched on after the ready
/// handshake.
class RaisePanelAdapter : public RaiseAdapter
{
    Q_OBJECT

public:
    void onInited() override;

protected:
    /// The key groups are static data.
    RaisePanelAdapter(KeySource *wheelKeys, KeySource *panelKeys);

    AirConditionDlg m_climate;
};

#endif // RAISEPANELADAPTER_H
