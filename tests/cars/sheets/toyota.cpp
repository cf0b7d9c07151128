// What the box of a Toyota, CAN-bus type 9, makes the unit do.

#include "carsheet.h"

using namespace Expect;

namespace {

CarVectors keysAndEvents()
{
    return {
        {"wheel key held", "", "20 84 02", held(0x01000083, 1)},
        {"wheel key released, also one that was never pressed", "", "20 84 00 | 20 09 00",
         released(0x01000083, 1) + released(0x01100004, 1)},
        {"wheel key in an unknown phase counts as pressed", "", "20 09 03", pressed(0x01100004, 1)},
        {"knob codes of other cars are no keys", "", "20 74 03 | 20 75 03", {}},

        {"steering below one degree is cut", "", "29 00 00 | 29 09 00 | 29 0a 00", angles({0, 0, -1})},
        {"steering ignores the high half of d1", "", "29 7c 01 | 29 7c f1", angles({-40, -40})},
        {"steering largest of the first direction", "", "29 ff 07", angles({-215})},
        {"quirk_toyota_angle_sign ends of the other direction", "", "29 00 08 | 29 ff 0f",
         angles({-215, -431})},

        {"radar 1D has outer sensors only", "", "1d 03 05 05 01", radar(0x5019, "04000001")},
        {"radar 1E past the last level", "", "1e 01 02 03 04 | 1e 05 00 06 ff",
         radar(0x501A, "01020405") + radar(0x501A, "06000000")},

        {"status bit by bit, without data the checksum", "", "24 40 | 24 80 | 24 10 | 24 20 | 24 0f | 24",
         status({1, 2, 4, 8, 0, 7})},

        {"360 view shown, also by the checksum",
         "",
         "32 0c | 32",
         {"event(401,25,51001,0,513)", "event(401,25,51001,0,513)"}},
        {"360 view left", "", "32 04", {"event(401,25,51003,0,0)"}},
        {"360 view not valid", "", "32 fb", {}},

        {"version and unknown command end in no call", "", "30 31 2e 30 | 7f 01 02", {}},
        {"one byte short", "", "20 01 | 29 7c | 1d 03 05 05 | 1e 01 02 03 | 28 80 00 08", {}},
    };
}

CarVectors climateRows()
{
    return {
        {"climate all on", "28 00 00 00 00 00", "28 ea f3 08 20 00",
         climate(
             "on(true) ac(true) auto(true) wind(7) fan(3) circ(1) defrost() temp(21.5°C,16.0°C) show(true)")},
        {"climate all off", "28 80 00 00 00 00", "28 00 00 00 00 00",
         climate("on(false) ac(false) auto(false) wind(0) fan(0) circ(0) temp(LO,LO) show(true)")},
        {"climate weak auto and the bits that are not used", "28 00 00 00 00 00", "28 15 0f 1d 1e de",
         climate("on(false) ac(false) auto(true) wind(0) fan(7) circ(0) temp(32.0°C,) show(true)")},
        {"climate circulation chosen by the car, windscreen", "28 00 00 00 00 00", "28 a0 80 01 1f 20",
         climate("on(true) ac(false) auto(false) wind(4) fan(0) circ(255) temp(18.0°C,HI) show(true)")},
        {"climate in Fahrenheit, face", "28 00 00 00 00 00", "28 80 42 48 ff 01",
         climate("on(true) ac(false) auto(false) wind(2) fan(2) circ(0) temp(72°F,HI) show(true)")},
        {"climate repeated shows the display once", "28 00 00 00 00 00 | 28 80 21 01 01 00",
         "28 80 21 01 01 00",
         climate("on(true) ac(false) auto(false) wind(1) fan(1) circ(0) temp(18.0°C,18.0°C)")},
        {"climate with d4 alone changed does not show the display", "28 80 21 01 01 00", "28 80 21 01 01 20",
         climate("on(true) ac(false) auto(false) wind(1) fan(1) circ(255) temp(18.0°C,18.0°C)")},
        {"climate repeated with the display bit shows it again", "28 80 31 01 01 00", "28 80 31 01 01 00",
         climate("on(true) ac(false) auto(false) wind(1) fan(1) circ(0) temp(18.0°C,18.0°C) show(true)")},
        // The checksums are 43 (Fahrenheit) and 3b (circulation chosen by the car, Fahrenheit).
        {"quirk_toyota_climate_n4 takes the checksum for d4", "28 00 00 00 00 00", "28 80 00 08 08",
         climate("on(true) ac(false) auto(false) wind(0) fan(0) circ(0) temp(8°F,8°F) show(true)")},
        {"quirk_toyota_climate_n4 with another checksum", "28 00 00 00 00 00",
         "28 80 00 18 00 | 28 80 00 18 00",
         climate("on(true) ac(false) auto(false) wind(0) fan(0) circ(255) temp(24°F,LO) show(true) on(true) "
                 "ac(false) auto(false) wind(0) fan(0) circ(255) temp(24°F,LO)")},
    };
}

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseToyota;
    s.startUp = "81 01|81 01|81 01";
    s.timerInterval = 200;
    s.keys = {{0x20, 1,
               "1000072=01,81 1000070=02,82 1000083=03,84,14 1000082=04,83,13 100117e=07,88 1100008=08 "
               "1100004=09 1100005=0a 1000061=15 1000005=16 1000102=85 10000c5=86",
               nullptr}};
    const Codes five = {{1, 1}, {2, 2}, {3, 4}, {4, 5}, {5, 6}};
    s.radar = {{0x1D, 0x5019, "0--3", five, 0}, {0x1E, 0x501A, "0123", five, 0}};
    s.temperatures = {
        {"28 80 00 LL RR 00",
         {{0, 0, 0, 0, "LO"},
          {1, 29, 18.0, 0.5, "°C"},
          {0x1F, 0x1F, 0, 0, "HI"},
          {0x20, 0x23, 16.0, 0.5, "°C"}}},
        {"28 80 00 LL RR 01", {{0, 0, 0, 0, "LO"}, {1, 254, 1, 1, "°F"}, {255, 255, 0, 0, "HI"}}}};
    s.modePackage = "99 MM" + QByteArray(" 00").repeated(20);
    s.modeCodes = "0000040504040104000700000004000700070700";
    s.vectors = keysAndEvents() + climateRows();
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
