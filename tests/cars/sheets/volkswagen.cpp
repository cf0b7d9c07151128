// What the box of a Volkswagen, CAN-bus type 3, makes the unit do. What it hands on to the screens is tested in
// tests/volkswagen.

#include "adapterfixture.h"
#include "carsheet.h"

using namespace Expect;

namespace {

enum Key {
    VolumeDown = 0x01000070,
    VolumeUp = 0x01000072,
    Previous = 0x01000082,
    Next = 0x01000083,
    Rewind = 0x010000C5,
    Forward = 0x01000102,
    Call = 0x01100004,
    Hangup = 0x01100005
};

// The release by a code of its own.
QStringList let(int key)
{
    return released(key, 0);
}

QStringList tap(int key)
{
    return TestSupport::taps(key, 1, 1);
}

// The first package of a row forgets what the row before left held.
CarVectors keyRows()
{
    return {
        {"wheel key and its release", "20 09 00", "20 01 01 | 20 00 00",
         pressed(VolumeUp, 1) + let(VolumeUp)},
        {"wheel key held", "20 09 00", "20 02 01 | 20 02 02 | 20 00 00",
         pressed(VolumeDown, 1) + held(VolumeDown, 1) + let(VolumeDown)},
        {"wheel: state 0 is a release, an unknown one a press", "20 09 00", "20 03 00 | 20 03 07",
         released(Next, 1) + pressed(Next, 1)},
        {"wheel: an unknown key forgets the held one", "", "20 01 01 | 20 09 01 | 20 ff 01 | 20 00 00",
         pressed(VolumeUp, 1)},
        {"wheel: a release comes once", "", "20 01 01 | 20 00 00 | 20 00 00",
         pressed(VolumeUp, 1) + let(VolumeUp)},
        {"wheel: no data bytes", "20 09 00", "20", {}},

        {"function keys that tap", "2f 00", "2f 01 | 2f 02 | 2f 11 | 2f 12",
         tap(Previous) + tap(Next) + tap(Call) + tap(Hangup)},
        {"forward goes down and comes up", "2f 00", "2f 03 | 2f 05 | 2f 05",
         pressed(Forward, 1) + let(Forward)},
        {"rewind goes down and comes up", "2f 00", "2f 04 | 2f 05", pressed(Rewind, 1) + let(Rewind)},
        {"function release without a key", "2f 00", "2f 05", {}},
        {"quirk_vw_release_taps_again", "2f 00", "2f 01 | 2f 05 | 2f 05",
         tap(Previous) + tap(Previous) + tap(Previous)},
        {"other function codes forget the held key", "",
         "2f 03 | 2f 06 | 2f 05 | 2f 03 | 2f 10 | 2f 05 | 2f 03 | 2f 13 | 2f 05 | 2f 03 | 2f 00 | 2f 05 | "
         "2f 03 | 2f ff | 2f 05",
         pressed(Forward, 1) + pressed(Forward, 1) + pressed(Forward, 1) + pressed(Forward, 1) +
             pressed(Forward, 1)},
    };
}

QStringList calls(const char *text)
{
    return TestSupport::words("AirConditionDlg.", QString::fromUtf8(text));
}

CarVectors climateRows()
{
    return {
        {"climate: all set", "", "21 ff e7 01 1e 20 00 00 00",
         calls("setAirConditionEnable(true) setACEnable(true) setWindDirectEx(7) setAirVolume(7) "
               "setCirculationMode(255) setAutoModeEnable(true) setWindDirect(255) setDefrostingMode() "
               "setTemperature(16.0°C,30.5°C) setVisible(true)")},
        {"climate: fan at rest switches it off", "", "21 80 80 02 03 00 00 00 00",
         calls("setAirConditionEnable(true) setACEnable(false) setWindDirectEx(4) setAirVolume(0) "
               "setAirConditionEnable(false) setCirculationMode(0) setAutoModeEnable(false) "
               "setTemperature(16.5°C,17.0°C) setVisible(true)")},
        {"climate: weak auto, face, recirculation, Fahrenheit", "", "21 30 41 01 1e 01 00 00 00",
         calls("setAirConditionEnable(false) setACEnable(false) setWindDirectEx(2) setAirVolume(1) "
               "setCirculationMode(1) setAutoModeEnable(true) setWindDirect(255) "
               "setTemperature(60°F,89°F) setVisible(true)")},
        {"climate: feet, the other bits mean nothing", "", "21 05 3a 00 1f de 00 00 00",
         calls("setAirConditionEnable(false) setACEnable(false) setWindDirectEx(1) setAirVolume(2) "
               "setCirculationMode(0) setAutoModeEnable(false) setTemperature(LO,HI) setVisible(true)")},
    };
}

CarSheet sheet()
{
    CarSheet s;
    s.type = CanBusTypeRaiseVolkswagen;
    s.startUp = "81 00|81 01";
    s.keys = {{0x20, 1,
               "1000072=01 1000070=02 1000083=03 1000082=04 10000ff=05 1000071=06 100117e=07 1100008=08",
               nullptr}};
    s.temperatures = {
        {"21 80 01 LL RR 00 00 00 00", {{0, 0, 0, 0, "LO"}, {1, 30, 16.0, 0.5, "°C"}, {31, 255, 0, 0, "HI"}}},
        {"21 80 01 LL RR 01 00 00 00", {{0, 0, 0, 0, "LO"}, {1, 30, 60, 1, "°F"}, {31, 255, 0, 0, "HI"}}}};
    s.settingCommand = "c6";
    s.requestCommand = "90";
    s.vectors =
        keyRows() + climateRows() +
        CarVectors{
            {"status bit by bit", "", "24 40 | 24 80 | 24 10 | 24 20 | 24 0f", status({1, 2, 4, 8, 0})},
            {"radar 22 rounds up: a tenth outside, 1/27.5 inside", "",
             "22 00 00 00 00 00 00 | 22 01 01 01 01 00 00 | 22 0a 1b 1c 0b 00 00 | 22 ff ff ff ff 00 00",
             radar(0x501A, "00000000") + radar(0x501A, "01010101") + radar(0x501A, "01010202") +
                 radar(0x501A, "1a0a0a1a")},
            {"radar 23 rounds up: a tenth outside, a twentieth inside", "",
             "23 14 14 15 15 00 00 | 23 64 64 65 65 ff ff | 23 ff ff ff ff 00 00",
             radar(0x5019, "02010203") + radar(0x5019, "0a05060b") + radar(0x5019, "1a0d0d1a")},
            {"unknown commands do nothing", "", "30 01 02 | ff | 00 00", {}},
        };
    return s;
}

const CarSheetEntry Entry(sheet, __FILE__);

} // namespace
