// The box of a Haval, CAN-bus type 11: its packages are acknowledged, no more.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseHaval;
    s.startUp = "81 01|81 01|81 01";
    s.timerInterval = 200;
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
