// What the box of a GM, CAN-bus type 10, makes the unit do.

#include "carsheet.h"

#include "adapterfixture.h"

using namespace Expect;

namespace {

CarVectors keysAndEvents()
{
    return {
        {"wheel key held", "", "01 04 02", held(0x01000083, 1)},
        {"wheel key released that was never pressed", "", "01 07 00", released(0x01000071, 1)},
        {"panel key held", "", "02 34 02", held(0x01000083, 0)},
        {"panel key released that was never pressed", "", "02 54 00", released(0x010000FD, 0)},
        {"panel knob three steps, none and 255", "", "02 17 03 | 02 17 00 | 02 1a ff",
         TestSupport::taps(0x01000072, 3) + TestSupport::taps(0x01000012, 255)},

        {"radar past the last level", "", "22 00 01 02 03 | 23 05 06 09 ff",
         radar(0x501A, "00010203") + radar(0x5019, "05060606")},

        {"steering both ways and to the ends", "", "26 c0 21 | 26 40 de | 26 ff 7f | 26 00 80",
         angles({40, -40, 151, -151})},
        {"steering sixteenths are cut toward zero", "", "26 df 00 | 26 e0 00 | 26 51 fe | 26 50 fe",
         angles({0, 1, -1, -2})},

        {"status, without data the checksum", "", "24 9f | 24", status({6, 7})},

        {"version and unknown command end in no call", "", "30 31 2e 30 | 04 01 01", {}},
        {"one byte short", "", "01 01 | 02 17 | 22 01 02 03 | 23 01 02 03 | 26 00 | 03 80 01 05 05 00", {}},
    };
}

CarVectors climateRows()
{
    return {
        {"climate all on, fan by hand", "", "03 c7 07 01 1c 00 00 00",
         climate("on(true) ac(true) wind(4) circ(0) auto(false) fan(7) temp(17.0°C,30.5°C) show(true)")},
        {"climate recirculation, fan chosen by the car", "", "03 25 f3 00 1e 00 00 01",
         climate("on(false) ac(false) wind(1) circ(1) auto(false) fan(255) temp(LO,HI) show(true)")},
        {"climate circulation chosen by the car, auto", "", "03 a8 01 1d 20 00 00 03",
         climate("on(true) ac(false) wind(0) circ(255) auto(true) temp(16.0°C,15.0°C) show(true)")},
        // The checksums are 6b (auto), 25 (fan chosen by the car) and 64 (neither).
        {"quirk_gm_climate_n6 auto by checksum", "", "03 80 01 05 05 00 00",
         climate("on(true) ac(false) wind(0) circ(0) auto(true) temp(19.0°C,19.0°C) show(true)")},
        {"quirk_gm_climate_n6 fan by checksum", "", "03 c3 03 05 05 00 01",
         climate("on(true) ac(true) wind(1) circ(0) auto(false) fan(255) temp(19.0°C,19.0°C) show(true)")},
        {"quirk_gm_climate_n6 neither by checksum", "", "03 83 03 05 05 00 02",
         climate("on(true) ac(false) wind(1) circ(0) auto(false) fan(3) temp(19.0°C,19.0°C) show(true)")},
    };
}

CarVector airDistribution()
{
    static const char *const calls[16] = {"",         "wind(0) ", "defrost() ", "wind(1) ", "wind(3) ",
                                          "wind(2) ", "wind(6) ", "wind(4) ",   "wind(5) ", "wind(7) "};
    QByteArrayList packages;
    QStringList trace;
    for (int code = 0; code < 16; ++code) {
        // The high half is not used.
        packages << QByteArray("03 00 %").replace("%", QByteArray(1, char(code * 17)).toHex()) +
                        " 00 00 00 00 02";
        const QByteArray call(calls[code]);
        trace << climate("on(false) ac(false) " + call + "circ(0) auto(true) temp(LO,LO) show(true)");
    }
    return {"air distribution, every code", "", packages.join('|'), trace};
}

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseGm;
    s.startUp = "81 01|81 01|81 01|84 01";
    s.timerInterval = 200;
    s.keys = {
        {0x01, 1, "1000072=01 1000070=02 1000082=03 1000083=04 100117e=05 1100008=06 1000071=07", nullptr},
        {0x02, 0,
         "10000b7=01 1000082=02,35 1000083=03,34 10000a4=04 10000a5=05 1000061=06 10000a2=07 10000a6=08,40 "
         "1000071=09 1000005=16 1000086=1b 1000013=1c 1000015=1d 1000010=50,53 100117e=51 10000fd=54",
         "1000072=17 1000070=18 1000014=19 1000012=1a"}};
    const Codes asTheyAre = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
    s.radar = {{0x22, 0x501A, "0123", asTheyAre, 6}, {0x23, 0x5019, "0123", asTheyAre, 6}};
    s.temperatures = {{"03 80 01 LL RR 00 00 02",
                       {{0, 0, 0, 0, "LO"},
                        {1, 28, 17.0, 0.5, "°C"},
                        {0x1D, 0x1D, 16.0, 0, "°C"},
                        {0x1E, 0x1E, 0, 0, "HI"},
                        {0x1F, 0x1F, 16.5, 0, "°C"},
                        {0x20, 0x21, 15.0, 0.5, "°C"},
                        {0x22, 0x22, 31.0, 0, "°C"},
                        {0x23, 0xFF, 0, 0, "--°C"}}}};
    s.vectors = keysAndEvents() + climateRows() + CarVectors{airDistribution()};
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
