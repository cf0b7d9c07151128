// The box of a XinRi electric car, CAN-bus type 6: any package ends the ready handshake, no more is known.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeXinRi;
    s.startUp = "81 01";
    s.timerInterval = 200;
    s.timerRuns = true;
    s.endsReady = "55 01";
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
