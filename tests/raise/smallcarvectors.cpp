// The cars that report little: Jeep and Mazda.

#include "carvectors.h"

#include "adapterfixture.h"

using namespace Expect;

CarVectors jeepVectors()
{
    return {
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
}

CarVectors mazdaVectors()
{
    return {
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
}
