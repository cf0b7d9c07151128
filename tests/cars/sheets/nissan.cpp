// The box of a Nissan, CAN-bus type 8: its packages are acknowledged, no more.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseNissan;
    s.startUp = "81 01|81 01|81 01";
    s.timerInterval = 10000;
    s.timerRuns = true;
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
