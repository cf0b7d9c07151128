#include "carbench.h"

#include "decoders/canbus_xbs_mazda.h"
#include "raise/canbus_raise_gm.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_jeep.h"
#include "raise/canbus_raise_toyota.h"

RaiseAdapter *CarBench::useByName(const QString &name)
{
    if (name == "CanBus_Raise_Toyota") {
        return use<CanBus_Raise_Toyota>();
    }
    if (name == "CanBus_Raise_Honda") {
        return use<CanBus_Raise_Honda>();
    }
    if (name == "CanBus_Raise_GM") {
        return use<CanBus_Raise_GM>();
    }
    if (name == "CanBus_Raise_Jeep") {
        return use<CanBus_Raise_Jeep>();
    }
    return use<CanBus_XBS_Mazda>();
}
