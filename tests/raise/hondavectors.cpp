#include "carvectors.h"

using namespace Expect;

namespace {

// After this the display's bit is no longer the first.
const char Armed[] = "21 00 00 00 00 40 00 00 00 00";

CarVectors climateRows()
{
    return {
        // The display's state is kept for the whole process: these two come first.
        {"climate before the display was ever on", "", "21 00 00 00 00 01 00 00 00 00",
         climate("setAirConditionEnable(false) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(0) setTemperature(LO,LO)")},
        {"quirk_honda_first_display shows from the second package on", "",
         "21 80 00 01 fe 41 00 00 00 00 | 21 80 00 01 fe 41 00 00 00 00",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(0) setTemperature(0.5°C,127.0°C) "
                 "setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(0) setTemperature(0.5°C,127.0°C) "
                 "setVisible(true)")},
        {"climate all on, auto hides the air distribution", Armed, "21 e8 f7 2d ff c1 00 00 00 00",
         climate("setAirConditionEnable(true) setACEnable(true) setAutoModeEnable(true) "
                 "setWindDirectEx(0) setAirVolume(7) setCirculationMode(1) setDefrostingMode() "
                 "setTemperature(22.5°C,HI) setVisible(true)")},
        {"climate by hand in Fahrenheit, the box hides the display", Armed, "21 97 e8 48 01 3e ff ff ff ff",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(7) setAirVolume(0) setCirculationMode(0) setTemperature(72°F,1°F) "
                 "setVisible(false)")},
        {"climate with the display bit shows whatever d4 says", Armed, "21 00 51 00 00 00 00 00 00 00",
         climate("setAirConditionEnable(false) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(2) setAirVolume(1) setCirculationMode(0) setTemperature(LO,LO) "
                 "setVisible(true)")},
        {"climate one byte short", "", "21 80 51 00 00 00 00 00 00", {}},
    };
}

CarVectors keysAndEvents()
{
    return {
        {"wheel key pressed", "", "20 01 01", pressed(0x01000072, 1)},
        {"wheel key held", "", "20 26 02", held(0x01000083, 1)},
        {"wheel key released that was never pressed", "", "20 86 00", released(0x01000071, 1)},
        {"wheel key one byte short", "", "20 01", {}},

        {"radar 22", "", "22 01 02 03 04", radar(0x501A, "01020406")},
        {"radar 23 past the last level", "", "23 05 00 ff 04", radar(0x5019, "00000006")},
        {"radar 22 one byte short", "", "22 01 02 03", {}},
        {"radar 23 one byte short", "", "23 01 02 03", {}},

        {"steering 40 degrees", "", "29 00 12", angle(40)},
        {"steering -40 degrees", "", "29 00 ee", angle(-40)},
        {"steering largest", "", "29 ff 7f", angle(284)},
        {"steering smallest", "", "29 00 80", angle(-284)},
        {"steering last below one degree", "", "29 73 00", angle(0)},
        {"steering first degree", "", "29 74 00", angle(1)},
        {"steering minus the last below one degree", "", "29 8d ff", angle(0)},
        {"steering minus one degree", "", "29 8c ff", angle(-1)},
        {"steering one byte short", "", "29 00", {}},

        {"status bits 7 and 5", "", "24 a0", status(10)},
        {"status bits 6 and 4", "", "24 50", status(5)},
        {"status without data reads the checksum", "", "24", status(7)},

        {"version ends in no call", "", "30 31 2e 30", {}},
        {"unknown command", "", "1d 01 02 03 04", {}},
    };
}

} // namespace

CarVectors hondaVectors()
{
    return climateRows() + keysAndEvents();
}
