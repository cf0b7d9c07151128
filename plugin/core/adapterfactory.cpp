#include "canbusadapter.h"

#include "decoders/canbus_huida_zd.h"
#include "decoders/canbus_lihang_jmce200n.h"
#include "decoders/canbus_xbs_mazda.h"
#include "decoders/canbus_xinri.h"
#include "raise/canbus_raise_gac.h"
#include "raise/canbus_raise_gm.h"
#include "raise/canbus_raise_haval.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_jeep.h"
#include "raise/canbus_raise_nissan.h"
#include "raise/canbus_raise_renault.h"
#include "raise/canbus_raise_toyota.h"
#include "raise/canbus_raise_venucia.h"
#include "volkswagen/canbus_raise_volkswagen.h"
#include "xinhang/canbus_xinhang.h"

// The one place that knows every decoder: a new car adds its include, its number and its line.

CanBusAdapter *CanBusAdapter::createAdapter(CanBusType type)
{
    switch (type) {
    case CanBusTypeLiHangJmcE200N:
        return new CanBus_LiHang_JMCE200N;
    case CanBusTypeHuidaZd:
        return new CanBus_Huida_ZD;
    case CanBusTypeRaiseVolkswagen:
        return new CanBus_Raise_Volkswagen;
    case CanBusTypeXinHang:
        return new CanBus_XinHang;
    case CanBusTypeXbsMazda:
        return new CanBus_XBS_Mazda;
    case CanBusTypeXinRi:
        return new CanBus_XinRi;
    case CanBusTypeRaiseHonda:
        return new CanBus_Raise_Honda;
    case CanBusTypeRaiseNissan:
        return new CanBus_Raise_Nissan;
    case CanBusTypeRaiseToyota:
        return new CanBus_Raise_Toyota;
    case CanBusTypeRaiseGm:
        return new CanBus_Raise_GM;
    case CanBusTypeRaiseHaval:
        return new CanBus_Raise_Haval;
    case CanBusTypeRaiseGac:
        return new CanBus_Raise_GAC;
    case CanBusTypeRaiseVenucia:
        return new CanBus_Raise_Venucia;
    case CanBusTypeRaiseRenault:
        return new CanBus_Raise_Renault;
    case CanBusTypeRaiseJeep:
        return new CanBus_Raise_Jeep;
    case CanBusTypeNone:
        break;
    }
    return nullptr;
}
