#ifndef RAISEPANELADAPTER_H
#define RAISEPANELADAPTER_H

#include "raiseadapter.h"

#include "airconditiondlg.h"

/// Raise decoders that report two groups of keys, the steering wheel's and those of the car's own panel, and
/// that want to be switched on after the ready handshake.
class RaisePanelAdapter : public RaiseAdapter
{
    Q_OBJECT

public:
    void onInited() override;

    /// One key of the panel: \a d[0] code, \a d[1] state (or detents of a knob).
    void processPanelKey(const unsigned char *d);

protected:
    /// The key groups are static data.
    RaisePanelAdapter(KeySource *wheelKeys, KeySource *panelKeys);

    void onPanelKey(const PackageView &d);

    AirConditionDlg m_climate;

private:
    KeySource *const m_panelKeys;
};

#endif // RAISEPANELADAPTER_H
