// What the box of a Honda, CAN-bus type 7, makes the unit do.

#include "carsheet.h"

using namespace Expect;

namespace {

// After this the display's bit is no longer the first.
const char Armed[] = "21 00 00 00 00 40 00 00 00 00";

CarVectors climateRows()
{
    return {
        // The display's state is kept for the whole process: these two come first.
        {"climate before the display was ever on", "", "21 00 00 00 00 01 00 00 00 00",
         climate("on(false) ac(false) auto(false) wind(0) fan(0) circ(0) temp(LO,LO)")},
        {"quirk_honda_first_display shows from the second package on", "",
         "21 80 00 01 fe 41 00 00 00 00 | 21 80 00 01 fe 41 00 00 00 00",
         climate("on(true) ac(false) auto(false) wind(0) fan(0) circ(0) temp(0.5°C,127.0°C) on(true) "
                 "ac(false) auto(false) wind(0) fan(0) circ(0) temp(0.5°C,127.0°C) show(true)")},
        {"climate all on, auto hides the air distribution", Armed, "21 e8 f7 2d ff c1 00 00 00 00",
         climate("on(true) ac(true) auto(true) wind(0) fan(7) circ(1) defrost() temp(22.5°C,HI) show(true)")},
        {"climate by hand in Fahrenheit, the box hides the display", Armed, "21 97 e8 48 01 3e ff ff ff ff",
         climate("on(true) ac(false) auto(false) wind(7) fan(0) circ(0) temp(72°F,1°F) show(false)")},
        {"climate with the display bit shows whatever d4 says", Armed, "21 00 51 00 00 00 00 00 00 00",
         climate("on(false) ac(false) auto(false) wind(2) fan(1) circ(0) temp(LO,LO) show(true)")},
    };
}

CarVectors keysAndEvents()
{
    return {
        {"wheel key held", "", "20 26 02", held(0x01000083, 1)},
        {"wheel key released that was never pressed", "", "20 86 00", released(0x01000071, 1)},
        {"radar past the last level", "", "22 01 02 03 04 | 23 05 00 ff 04",
         radar(0x501A, "01020406") + radar(0x5019, "00000006")},
        {"steering both ways and to the ends", "", "29 00 12 | 29 00 ee | 29 ff 7f | 29 00 80",
         angles({40, -40, 284, -284})},
        {"steering is cut toward zero", "", "29 73 00 | 29 74 00 | 29 8d ff | 29 8c ff",
         angles({0, 1, 0, -1})},
        {"status, without data the checksum", "", "24 a0 | 24 50 | 24", status({10, 5, 7})},
        {"version and unknown command end in no call", "", "30 31 2e 30 | 1d 01 02 03 04", {}},
        {"one byte short", "", "20 01 | 21 80 51 00 00 00 00 00 00 | 22 01 02 03 | 23 01 02 03 | 29 00", {}},
    };
}

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseHonda;
    s.startUp = "81 01|81 01|81 01|c6 50";
    s.timerInterval = 10000;
    s.timerRuns = true;
    s.keys = {{0x20, 1,
               "1000072=01,20,81 1000070=02,21,82 1000083=03,14,26 1000082=04,13,27 100117e=07,18 1100008=08 "
               "1100004=09 1100005=0a 1000005=16 1000071=17,30,86 10000c5=22,24 1000102=23,25",
               nullptr}};
    const Codes four = {{1, 1}, {2, 2}, {3, 4}, {4, 6}};
    s.radar = {{0x22, 0x501A, "0123", four, 0}, {0x23, 0x5019, "0123", four, 0}};
    s.temperatures = {{"21 80 00 LL RR 01 00 00 00 00",
                       {{0, 0, 0, 0, "LO"}, {1, 254, 0.5, 0.5, "°C"}, {255, 255, 0, 0, "HI"}}},
                      {"21 80 00 LL RR 00 00 00 00 00",
                       {{0, 0, 0, 0, "LO"}, {1, 254, 1, 1, "°F"}, {255, 255, 0, 0, "HI"}}}};
    s.modePackage = "82 MM";
    s.modeCodes = "0000040607070104000300000007000300030300";
    s.vectors = climateRows() + keysAndEvents();
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
