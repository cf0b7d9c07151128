#ifndef CANBUSTYPE_H
#define CANBUSTYPE_H

/// The decoder box that is fitted, as the framework's tag 0x10008 stores it. Any other number selects none.
enum CanBusType : unsigned int {
    CanBusTypeNone = 0,
    CanBusTypeLiHangJmcE200N = 1,
    CanBusTypeHuidaZd = 2,
    CanBusTypeRaiseVolkswagen = 3,
    CanBusTypeXinHang = 4,
    CanBusTypeXbsMazda = 5,
    CanBusTypeXinRi = 6,
    CanBusTypeRaiseHonda = 7,
    CanBusTypeRaiseNissan = 8,
    CanBusTypeRaiseToyota = 9,
    CanBusTypeRaiseGm = 10,
    CanBusTypeRaiseHaval = 11,
    CanBusTypeRaiseGac = 12,
    CanBusTypeRaiseVenucia = 13,
    CanBusTypeRaiseRenault = 14,
    CanBusTypeRaiseJeep = 15
};

#endif // CANBUSTYPE_H
