#include "carvectors.h"

#include "adapterfixture.h"

using namespace Expect;

namespace {

CarVectors keys()
{
    return {
        {"wheel key pressed", "", "01 01 01", pressed(0x01000072, 1)},
        {"wheel key held", "", "01 04 02", held(0x01000083, 1)},
        {"wheel key released that was never pressed", "", "01 07 00", released(0x01000071, 1)},
        {"wheel phone key without a call", "", "01 06 01", pressed(0x01100008, 1)},
        {"wheel key one byte short", "", "01 01", {}},

        {"panel key pressed", "", "02 50 01", pressed(0x01000010, 0)},
        {"panel key held", "", "02 34 02", held(0x01000083, 0)},
        {"panel key released that was never pressed", "", "02 54 00", released(0x010000FD, 0)},
        {"panel knob three steps", "", "02 17 03", TestSupport::taps(0x01000072, 3)},
        {"panel knob no step", "", "02 17 00", {}},
        {"panel knob 255 steps", "", "02 1a ff", TestSupport::taps(0x01000012, 255)},
        {"panel key one byte short", "", "02 17", {}},
    };
}

CarVectors events()
{
    return {
        {"radar 22", "", "22 00 01 02 03", radar(0x501A, "00010203")},
        {"radar 23 past the last level", "", "23 05 06 09 ff", radar(0x5019, "05060606")},
        {"radar 22 one byte short", "", "22 01 02 03", {}},
        {"radar 23 one byte short", "", "23 01 02 03", {}},

        {"steering 40 degrees", "", "26 c0 21", angle(40)},
        {"steering -40 degrees", "", "26 40 de", angle(-40)},
        {"steering largest", "", "26 ff 7f", angle(151)},
        {"steering smallest", "", "26 00 80", angle(-151)},
        {"steering first degree", "", "26 e0 00", angle(1)},
        {"steering last below one degree", "", "26 df 00", angle(0)},
        {"steering minus two degrees", "", "26 50 fe", angle(-2)},
        {"steering sixteenths are cut toward zero", "", "26 51 fe", angle(-1)},
        {"steering one byte short", "", "26 00", {}},

        {"status bits 7 and 4", "", "24 9f", status(6)},
        {"status without data reads the checksum", "", "24", status(7)},

        {"version ends in no call", "", "30 31 2e 30", {}},
        {"unknown command", "", "04 01 01", {}},
    };
}

CarVectors climateRows()
{
    return {
        {"climate all on, fan by hand", "", "03 c7 07 01 1c 00 00 00",
         climate("setAirConditionEnable(true) setACEnable(true) setWindDirectEx(4) setCirculationMode(0) "
                 "setAutoModeEnable(false) setAirVolume(7) setTemperature(17.0°C,30.5°C) setVisible(true)")},
        {"climate recirculation, fan chosen by the car", "", "03 25 f3 00 1e 00 00 01",
         climate("setAirConditionEnable(false) setACEnable(false) setWindDirectEx(1) setCirculationMode(1) "
                 "setAutoModeEnable(false) setAirVolume(255) setTemperature(LO,HI) setVisible(true)")},
        {"climate circulation chosen by the car, auto", "", "03 a8 01 1d 20 00 00 03",
         climate("setAirConditionEnable(true) setACEnable(false) setWindDirectEx(0) "
                 "setCirculationMode(255) setAutoModeEnable(true) setTemperature(16.0°C,15.0°C) "
                 "setVisible(true)")},
        // The checksums are 6b (auto), 25 (fan chosen by the car) and 64 (neither).
        {"quirk_gm_climate_n6 auto by checksum", "", "03 80 01 05 05 00 00",
         climate("setAirConditionEnable(true) setACEnable(false) setWindDirectEx(0) setCirculationMode(0) "
                 "setAutoModeEnable(true) setTemperature(19.0°C,19.0°C) setVisible(true)")},
        {"quirk_gm_climate_n6 fan by checksum", "", "03 c3 03 05 05 00 01",
         climate("setAirConditionEnable(true) setACEnable(true) setWindDirectEx(1) setCirculationMode(0) "
                 "setAutoModeEnable(false) setAirVolume(255) setTemperature(19.0°C,19.0°C) "
                 "setVisible(true)")},
        {"quirk_gm_climate_n6 neither by checksum", "", "03 83 03 05 05 00 02",
         climate("setAirConditionEnable(true) setACEnable(false) setWindDirectEx(1) setCirculationMode(0) "
                 "setAutoModeEnable(false) setAirVolume(3) setTemperature(19.0°C,19.0°C) setVisible(true)")},
        {"climate one byte short", "", "03 80 01 05 05 00", {}},
    };
}

// Every code of the air distribution.
CarVectors airDistribution()
{
    static const struct
    {
        const char *name;
        const char *package;
        const char *call;
    } rows[] = {
        {"air distribution 0", "03 00 00 00 00 00 00 02", ""},
        {"air distribution 1", "03 00 01 00 00 00 00 02", "setWindDirectEx(0) "},
        {"air distribution 2", "03 00 02 00 00 00 00 02", "setDefrostingMode() "},
        {"air distribution 3", "03 00 03 00 00 00 00 02", "setWindDirectEx(1) "},
        {"air distribution 4", "03 00 04 00 00 00 00 02", "setWindDirectEx(3) "},
        {"air distribution 5", "03 00 05 00 00 00 00 02", "setWindDirectEx(2) "},
        {"air distribution 6", "03 00 06 00 00 00 00 02", "setWindDirectEx(6) "},
        {"air distribution 7", "03 00 07 00 00 00 00 02", "setWindDirectEx(4) "},
        {"air distribution 8", "03 00 08 00 00 00 00 02", "setWindDirectEx(5) "},
        {"air distribution 9", "03 00 09 00 00 00 00 02", "setWindDirectEx(7) "},
        {"air distribution 10", "03 00 0a 00 00 00 00 02", ""},
        {"air distribution 15", "03 00 ff 00 00 00 00 02", ""},
    };
    CarVectors vectors;
    for (const auto &row : rows) {
        const QByteArray calls =
            QByteArray("setAirConditionEnable(false) setACEnable(false) ") + row.call +
            "setCirculationMode(0) setAutoModeEnable(true) setTemperature(LO,LO) setVisible(true)";
        vectors << CarVector{row.name, "", row.package, Expect::climate(calls.constData())};
    }
    return vectors;
}

} // namespace

CarVectors gmVectors()
{
    return keys() + events() + climateRows() + airDistribution();
}
