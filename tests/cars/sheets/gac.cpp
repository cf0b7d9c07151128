// The box of a GAC, CAN-bus type 12: its packages are acknowledged, no more.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseGac;
    s.startUp = "81 01|81 01";
    s.timerInterval = 30000;
    s.timerRuns = true;
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
