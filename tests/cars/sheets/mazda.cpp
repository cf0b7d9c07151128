// What the box of a Mazda, CAN-bus type 5, makes the unit do.

#include "adapterfixture.h"
#include "carsheet.h"

using namespace Expect;

namespace {

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeXbsMazda;
    s.startUp = "81 01";
    s.timerInterval = 200;
    s.timerRuns = true;
    s.otherPackage = "02 00";
    s.endsReady = "7f 31";
    s.keys = {{0x01, 0,
               "1000072=01 1000070=02 1000083=03 1000082=04 1000071=08 1100008=09,22 1100004=0a 1100005=0b "
               "10000fd=20 1000010=21 100117e=23 1000013=24 1000015=25 1000012=26 1000014=27 1000005=28 "
               "100010f=29 1000061=2a",
               "1000072=f0 1000070=f1 1000014=f2 1000012=f3"}};
    s.radar = {{0x08, 0x5018, "12234556", {{1, 1}, {2, 2}, {3, 4}, {4, 6}}, 0}};
    s.settingCommand = "84";
    s.vectors = {
        {"wheel key held", "", "01 2a 02", held(0x01000061, 0)},
        {"wheel key released that was never pressed", "", "01 29 00", released(0x0100010F, 0)},
        {"knob three steps, none and 255", "", "01 f0 03 | 01 f1 00 | 01 f3 ff",
         TestSupport::taps(0x01000072, 3) + TestSupport::taps(0x01000012, 255)},
        {"doors bit by bit, without data the checksum", "", "02 80 | 02 40 | 02 20 | 02 10 | 02 0f | 02",
         status({1, 2, 4, 8, 0, 15})},
        {"steering both ways and to the ends", "", "07 00 12 | 07 00 f7 | 07 ff 7f | 07 00 80",
         angles({40, -20, 284, -284})},
        {"radar: middle sensors count twice", "", "08 ff 01 02 03 04 03 02",
         radar(0x5018, "0102020406040402")},
        {"version is answered with a setting", "", "7f 58 42 53", {"ProtocolUtils.writeDatas(2e8402140164)"}},
        {"unknown command", "", "30 31 2e 30", {}},
        {"one byte short", "", "01 01 | 07 00 | 08 00 01 02 03 04 03", {}},
    };
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
