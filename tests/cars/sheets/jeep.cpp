// What the box of a Jeep, CAN-bus type 15, makes the unit do.

#include "carsheet.h"

using namespace Expect;

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseJeep;
    s.startUp = "81 01|81 01|81 01|84 01";
    s.timerInterval = 200;
    s.keys = {{0x01, 1,
               "1000072=11 1000070=12 100117e=15,1a 1100008=17 1100004=18 1100005=19 1000083=1c 1000082=1d",
               nullptr},
              {0x04, 0, "100010e=01 1000071=02,03 1000070=05 1000072=06 1000082=07 1000083=08 10000b7=09,0a",
               nullptr}};
    s.vectors = {
        {"wheel key held", "", "01 1d 02", held(0x01000082, 1)},
        {"wheel key released that was never pressed", "", "01 19 00", released(0x01100005, 1)},
        {"panel key held", "", "04 05 02", held(0x01000070, 0)},
        {"panel key released that was never pressed", "", "04 0a 00", released(0x010000B7, 0)},
        {"one byte short", "", "01 11 | 04 01", {}},
        {"version and what the other panel cars report end in no call",
         "",
         "30 31 2e 30 | 02 01 01 | 03 80 01 05 05 00 00 00 | 22 01 02 03 04 | 23 01 02 03 04 | 24 f0 | 26 00 "
         "10",
         {}},
    };
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
