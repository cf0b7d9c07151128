// The box of a JMC E200N, CAN-bus type 1: its frame is not known.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeLiHangJmcE200N;
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
