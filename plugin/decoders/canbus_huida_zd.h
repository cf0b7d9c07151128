#ifndef CANBUS_HUIDA_ZD_H
#define CANBUS_HUIDA_ZD_H

#include "silentadapter.h"

/// Huida ZD decoder in an electric car, CAN-bus type 2.
class CanBus_Huida_ZD : public SilentAdapter
{
    Q_OBJECT

public:
    CanBus_Huida_ZD() : SilentAdapter(19200) {}
};

#endif // CANBUS_HUIDA_ZD_H
