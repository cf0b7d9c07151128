#ifndef CANBUS_LIHANG_JMCE200N_H
#define CANBUS_LIHANG_JMCE200N_H

#include "silentadapter.h"

/// LiHang decoder in a JMC E200N, CAN-bus type 1.
class CanBus_LiHang_JMCE200N : public SilentAdapter
{
    Q_OBJECT

public:
    CanBus_LiHang_JMCE200N() : SilentAdapter(38400) {}
};

#endif // CANBUS_LIHANG_JMCE200N_H
