// The cars that report little: Jeep and Mazda.

#include "carvectors.h"

#include "adapterfixture.h"

using namespace Expect;

CarVectors jeepVectors()
{
    return {
        {"wheel key pressed", "", "01 11 01", pressed(0x01000072, 1)},
        {"wheel key held", "", "01 1d 02", held(0x01000082, 1)},
        {"wheel key released that was never pressed", "", "01 19 00", released(0x01100005, 1)},
        {"wheel phone key without a call", "", "01 17 01", pressed(0x01100008, 1)},
        {"wheel key one byte short", "", "01 11", {}},

        {"panel key pressed", "", "04 01 01", pressed(0x0100010E, 0)},
        {"panel key held", "", "04 05 02", held(0x01000070, 0)},
        {"panel key released that was never pressed", "", "04 0a 00", released(0x010000B7, 0)},
        {"panel key one byte short", "", "04 01", {}},

        {"version ends in no call", "", "30 31 2e 30", {}},
        {"what the other panel cars report is not known here",
         "",
         "02 01 01 | 03 80 01 05 05 00 00 00 | 22 01 02 03 04 | 23 01 02 03 04 | 24 f0 | 26 00 10",
         {}},
    };
}

CarVectors mazdaVectors()
{
    return {
        {"wheel key pressed", "", "01 01 01", pressed(0x01000072, 0)},
        {"wheel key held", "", "01 2a 02", held(0x01000061, 0)},
        {"wheel key released that was never pressed", "", "01 29 00", released(0x0100010F, 0)},
        {"knob three steps", "", "01 f0 03", TestSupport::taps(0x01000072, 3)},
        {"knob no step", "", "01 f1 00", {}},
        {"knob 255 steps", "", "01 f3 ff", TestSupport::taps(0x01000012, 255)},
        {"wheel key one byte short", "", "01 01", {}},

        {"door bit 7", "", "02 80", status(1)},
        {"door bit 6", "", "02 40", status(2)},
        {"door bit 5", "", "02 20", status(4)},
        {"door bit 4", "", "02 10", status(8)},
        {"doors low half is not used", "", "02 0f", status(0)},
        {"doors without data read the checksum", "", "02", status(15)},

        {"steering 40 degrees", "", "07 00 12", angle(40)},
        {"steering -20 degrees", "", "07 00 f7", angle(-20)},
        {"steering largest", "", "07 ff 7f", angle(284)},
        {"steering smallest", "", "07 00 80", angle(-284)},
        {"steering one byte short", "", "07 00", {}},

        {"radar: middle sensors count twice", "", "08 ff 01 02 03 04 03 02",
         radar(0x5018, "0102020406040402")},
        {"radar past the last level", "", "08 01 05 00 ff 04 06 01", radar(0x5018, "0000000006000001")},
        {"radar one byte short", "", "08 00 01 02 03 04 03", {}},

        {"version is answered with a setting", "", "7f 58 42 53", {"ProtocolUtils.writeDatas(2e8402140164)"}},
        {"unknown command", "", "30 31 2e 30", {}},
    };
}
