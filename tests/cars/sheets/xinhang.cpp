// What the XinHang box, CAN-bus type 4, makes the unit do. Keys, screens, settings and updates depend on the car
// and on what the unit shows; their tests stand in tests/xinhang.

#include "adapterfixture.h"
#include "carsheet.h"

using namespace Expect;

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeXinHang;
    s.baudRate = 115200;
    s.timeout = 500;
    s.timerInterval = 500;
    s.timerRuns = true;
    s.vectors = {
        {"keys before the car type is known", "", "03 01 0d | 0b 01 0d", {}},
        {"status: doors", "01 00 00 00 00 | 01 00 00 00 01", "01 00 f5 00 00", status({5})},
        {"radar and steering", "09 07 07 07 07 07 07 07 07", "02 85 00 01 02 03 04 05 06 07",
         radar(0x5018, "0001020304050606") + angles({5})},
        {"maximums of the radar", "", "09 01 02 03 04 05 06 07 00", {}},
        {"touch", "", "04 01 03 ff 02 57", {"OrbApplication.simulateMouse(2,1023,599)"}},
        {"version without a call, update without a file",
         "",
         "05 31 | 08 03",
         {"ProtocolUtils.writeDatas(f00386030076)"}},
        {"application", "", "0c 00", {"event(401,25,51003,0,0)"}},
        {"cursor", "", "87 00", TestSupport::taps(0x01000013)},
        {"car type",
         "",
         "0a 00 02",
         {"ProtocolUtils.writeDatas(f0038200007d)", "dispatchOrbEvent(401,12,51007,20510,0)",
          "dispatchOrbEvent(401,12,51007,20509,0)"}},
    };
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
