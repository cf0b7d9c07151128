#ifndef CANBUS_RAISE_JEEP_H
#define CANBUS_RAISE_JEEP_H

#include "raisepaneladapter.h"

/// Raise decoder in a Jeep, CAN-bus type 15: wheel and panel keys.
class CanBus_Raise_Jeep : public RaisePanelAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Jeep();

    CommandTable commands() const override;
};

#endif // CANBUS_RAISE_JEEP_H
