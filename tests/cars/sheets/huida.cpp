// The box of a Huida ZD, CAN-bus type 2: its frame is not known.

#include "carsheet.h"

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeHuidaZd;
    s.baudRate = 19200;
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
