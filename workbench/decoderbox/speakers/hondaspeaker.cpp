#include "hondaspeaker.h"

namespace {

const quint8 ClockItem = 0x50;

// This box tells four distances apart; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 1, 2, 2, 3, 3, 4};

} // namespace

HondaSpeaker::HondaSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addReport({"climate",
               0x21,
               {"climate.power", "climate.ac", "climate.auto", "climate.circulation", "climate.left",
                "climate.right", "climate.unit", "climate.fan", "climate.to_window", "climate.to_face",
                "climate.to_feet", "climate.defrost", "climate.show", "climate.screen"},
               climate,
               true});
    addReport({"steering",
               0x29,
               {"steering.angle"},
               [](const SimulatedCar &c) { return littleEndian16(steering(c, 4608)); },
               true});
    addRadar("rear", 0x22, RadarLevels);
    addRadar("front", 0x23, RadarLevels);
    addReport({"doors", 0x24, {"doors."}, doors, true});

    addKeys(BoxKey::Wheel, 0x20,
            {{1, "volume_up"},
             {2, "volume_down"},
             {3, "next"},
             {4, "previous"},
             {7, "mode"},
             {8, "voice"},
             {9, "call"},
             {10, "hangup"},
             {19, "previous_2"},
             {20, "next_2"},
             {22, "enter"},
             {23, "mute"},
             {24, "mode_2"}});
    addKeys(BoxKey::Panel, 0x20,
            {{32, "panel_volume_up"},
             {33, "panel_volume_down"},
             {34, "panel_rewind"},
             {35, "panel_forward"},
             {36, "panel_rewind_2"},
             {37, "panel_forward_2"},
             {38, "panel_next"},
             {39, "panel_previous"},
             {48, "panel_mute"},
             {0x81, "panel_volume_up_2"},
             {0x82, "panel_volume_down_2"},
             {0x86, "panel_mute_2"}});

    addCommand(0x82, 1, [this](const BoxPackage &package) { return observe("mode", hex(package.d(0))); });
    addCommand(0xC6, 2, [this](const BoxPackage &package) { return takeSetting(package); });
}

// d0: 7 power, 6 A/C, 5 air recirculates, 3 automatic
// d1: 7 to window, 6 to face, 5 to feet, 4 show the climate screen, 2..0 fan
// d2, d3: left and right temperature
// d4: 7 defrost, 6 the climate screen is up, 0 Celsius
// d5 to d8: not used
QByteArray HondaSpeaker::climate(const SimulatedCar &car)
{
    const int d0 = bit(car.flag("climate.power"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(car.text("climate.circulation") == "in", 5) | bit(car.flag("climate.auto"), 3);
    const int d1 = airFlow(car) | bit(car.flag("climate.show"), 4);
    const int d4 = bit(car.flag("climate.defrost"), 7) | bit(car.flag("climate.screen"), 6) |
                   bit(car.text("climate.unit") == "C", 0);
    return bytes({d0, d1, temperatureCode(car, "climate.left"), temperatureCode(car, "climate.right"), d4, 0,
                  0, 0, 0});
}

quint8 HondaSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind != ClimateTemperature::Degrees) {
        return chosen.kind == ClimateTemperature::Low ? 0 : 0xFF;
    }
    return quint8(car.text("climate.unit") == "F" ? chosen.fahrenheit() : int(chosen.celsius * 2));
}

QString HondaSpeaker::takeSetting(const BoxPackage &package)
{
    if (package.d(0) != ClockItem || package.n() < 4) {
        return observe("setting " + hex(package.d(0)), QString::fromLatin1(package.data.mid(1).toHex(' ')));
    }
    const bool isTwelveHour = package.d(1) & 0x80;
    return observe("clock", QString("%1:%2:%3 %4")
                                .arg(package.d(1) & 0x7F, 2, 10, QChar('0'))
                                .arg(package.d(2), 2, 10, QChar('0'))
                                .arg(package.d(3), 2, 10, QChar('0'))
                                .arg(isTwelveHour ? "12h" : "24h"));
}
