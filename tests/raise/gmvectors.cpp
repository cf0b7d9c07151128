#include "carvectors.h"

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

} // namespace

CarVectors gmVectors()
{
    return keysAndEvents() + climateRows() + CarVectors{airDistribution()};
}
