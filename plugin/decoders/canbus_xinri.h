#ifndef CANBUS_XINRI_H
#define CANBUS_XINRI_H

#include "raise/raiseadapter.h"

/// XinRi decoder in an electric car, CAN-bus type 6; it speaks the Raise frame. Its commands are not known:
/// packages are acknowledged, and the first one ends the ready handshake.
class CanBus_XinRi : public RaiseAdapter
{
    Q_OBJECT

public:
    CanBus_XinRi();

    void onInited() override;

protected:
    void onOtherPackage(const PackageView &package) override;
};

#endif // CANBUS_XINRI_H
