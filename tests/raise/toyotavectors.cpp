#include "carvectors.h"

using namespace Expect;

namespace {

CarVectors keysAndEvents()
{
    return {
        {"wheel key pressed", "", "20 01 01", pressed(0x01000072, 1)},
        {"wheel key held", "", "20 84 02", held(0x01000083, 1)},
        {"wheel key released", "", "20 84 00", released(0x01000083, 1)},
        {"wheel key released that was never pressed", "", "20 09 00", released(0x01100004, 1)},
        {"wheel key in an unknown phase counts as pressed", "", "20 09 03", pressed(0x01100004, 1)},
        {"knob codes of other cars are no keys", "", "20 74 03 | 20 75 03", {}},
        {"wheel key one byte short", "", "20 01", {}},

        {"steering straight ahead", "", "29 00 00", angle(0)},
        {"steering below one degree is cut", "", "29 09 00", angle(0)},
        {"steering first degree", "", "29 0a 00", angle(-1)},
        {"steering 380 units", "", "29 7c 01", angle(-40)},
        {"steering ignores the high half of d1", "", "29 7c f1", angle(-40)},
        {"steering largest of the first direction", "", "29 ff 07", angle(-215)},
        {"quirk_toyota_angle_sign smallest of the other direction", "", "29 00 08", angle(-215)},
        {"quirk_toyota_angle_sign largest of the other direction", "", "29 ff 0f", angle(-431)},
        {"steering one byte short", "", "29 7c", {}},

        {"radar 1D has outer sensors only", "", "1d 03 05 05 01", radar(0x5019, "04000001")},
        {"radar 1D one byte short", "", "1d 03 05 05", {}},
        {"radar 1E", "", "1e 01 02 03 04", radar(0x501A, "01020405")},
        {"radar 1E past the last level", "", "1e 05 00 06 ff", radar(0x501A, "06000000")},
        {"radar 1E one byte short", "", "1e 01 02 03", {}},

        {"status bit 6", "", "24 40", status(1)},
        {"status bit 7", "", "24 80", status(2)},
        {"status bit 4", "", "24 10", status(4)},
        {"status bit 5", "", "24 20", status(8)},
        {"status low half is not used", "", "24 0f", status(0)},
        {"status without data reads the checksum", "", "24", status(7)},

        {"360 view shown", "", "32 0c", {"event(401,25,51001,0,513)"}},
        {"360 view left", "", "32 04", {"event(401,25,51003,0,0)"}},
        {"360 view not valid", "", "32 fb", {}},
        {"360 view without data reads the checksum", "", "32", {"event(401,25,51001,0,513)"}},

        {"version ends in no call", "", "30 31 2e 30", {}},
        {"unknown command", "", "7f 01 02", {}},
        {"longest package", "", "7f 01", {}},
    };
}

CarVectors climateRows()
{
    return {
        {"climate all on", "28 00 00 00 00 00", "28 ea f3 08 20 00",
         climate("setAirConditionEnable(true) setACEnable(true) setAutoModeEnable(true) setWindDirectEx(7) "
                 "setAirVolume(3) setCirculationMode(1) setDefrostingMode() setTemperature(21.5°C,16.0°C) "
                 "setVisible(true)")},
        {"climate all off", "28 80 00 00 00 00", "28 00 00 00 00 00",
         climate("setAirConditionEnable(false) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(0) setTemperature(LO,LO) "
                 "setVisible(true)")},
        {"climate weak auto and the bits that are not used", "28 00 00 00 00 00", "28 15 0f 1d 1e de",
         climate("setAirConditionEnable(false) setACEnable(false) setAutoModeEnable(true) "
                 "setWindDirectEx(0) setAirVolume(7) setCirculationMode(0) setTemperature(32.0°C,) "
                 "setVisible(true)")},
        {"climate circulation chosen by the car, windscreen", "28 00 00 00 00 00", "28 a0 80 01 1f 20",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(4) setAirVolume(0) setCirculationMode(255) setTemperature(18.0°C,HI) "
                 "setVisible(true)")},
        {"climate in Fahrenheit, face", "28 00 00 00 00 00", "28 80 42 48 ff 01",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(2) setAirVolume(2) setCirculationMode(0) setTemperature(72°F,HI) "
                 "setVisible(true)")},
        {"climate repeated shows the display once", "28 00 00 00 00 00 | 28 80 21 01 01 00",
         "28 80 21 01 01 00",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(1) setAirVolume(1) setCirculationMode(0) setTemperature(18.0°C,18.0°C)")},
        {"climate with d4 alone changed does not show the display", "28 80 21 01 01 00", "28 80 21 01 01 20",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(1) setAirVolume(1) setCirculationMode(255) "
                 "setTemperature(18.0°C,18.0°C)")},
        {"climate repeated with the display bit shows it again", "28 80 31 01 01 00", "28 80 31 01 01 00",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(1) setAirVolume(1) setCirculationMode(0) setTemperature(18.0°C,18.0°C) "
                 "setVisible(true)")},
        // The checksums are 43 (Fahrenheit) and 3b (circulation chosen by the car, Fahrenheit).
        {"quirk_toyota_climate_n4 takes the checksum for d4", "28 00 00 00 00 00", "28 80 00 08 08",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(0) setTemperature(8°F,8°F) "
                 "setVisible(true)")},
        {"quirk_toyota_climate_n4 with another checksum", "28 00 00 00 00 00",
         "28 80 00 18 00 | 28 80 00 18 00",
         climate("setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(255) setTemperature(24°F,LO) "
                 "setVisible(true) "
                 "setAirConditionEnable(true) setACEnable(false) setAutoModeEnable(false) "
                 "setWindDirectEx(0) setAirVolume(0) setCirculationMode(255) setTemperature(24°F,LO)")},
        {"climate one byte short", "", "28 80 00 08", {}},
    };
}

} // namespace

CarVectors toyotaVectors()
{
    return keysAndEvents() + climateRows();
}
