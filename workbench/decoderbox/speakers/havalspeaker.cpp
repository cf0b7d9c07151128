#include "havalspeaker.h"

namespace {

const quint8 PanelKey = 0x22;
const quint8 ClockItem = 0x03;
const int MostSteps = 7;

// 4 is nearest; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 4, 3, 3, 2, 2, 1};

// Where the air goes; index: window 4 + face 2 + feet 1.
const quint8 AirWays[8] = {0, 3, 1, 2, 5, 4, 6, 7};

} // namespace

HavalSpeaker::HavalSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x7F, parent)
{
    addReport(
        {"climate",
         0x23,
         {"climate.power", "climate.ac", "climate.auto", "climate.circulation", "climate.left_step",
          "climate.right_step", "climate.fan", "climate.to_window", "climate.to_face", "climate.to_feet",
          "climate.defrost", "climate.rear_defrost", "climate.dual", "outside.temperature"},
         climate,
         true});
    addReport({"steering",
               0x30,
               {"steering.angle"},
               [](const SimulatedCar &c) { return bigEndian16(c.number("steering.angle") * 10); },
               true});
    addRadar("rear", 0x26, RadarLevels);
    addReport(
        {"doors", 0x28, {"doors.", "lids.", "light.on", "gear.reverse", "brake.hand"}, doorsAndGear, true});
    addReport({"right camera",
               0x40,
               {"camera.right"},
               [](const SimulatedCar &c) { return bytes({c.flag("camera.right")}); },
               false});

    addKeys(BoxKey::Wheel, 0x21,
            {{0x01, "volume_up"},
             {0x02, "volume_down"},
             {0x07, "mode"},
             {0x09, "call"},
             {0x0A, "hangup"},
             {0x0B, "cursor_up"},
             {0x0C, "cursor_down"}});
    releaseWithoutKey(0x21);
    // Its volume knob comes as two keys.
    addKeys(BoxKey::Panel, PanelKey,
            {{0x01, "panel_power"},
             {0x07, "panel_band"},
             {0x09, "panel_mute"},
             {0x21, "panel_volume_up"},
             {0x22, "panel_volume_down"},
             {0x29, "panel_previous"},
             {0x30, "panel_next"},
             {0x31, "panel_screen"},
             {0x32, "panel_menu"},
             {0x33, "panel_call"},
             {0x34, "panel_hangup"},
             {0x35, "panel_settings"},
             {0x36, "panel_map"}});

    addCommand(0x83, 2, [this](const BoxPackage &package) { return takeSetting(package); });
}

// The panel does not say that a key is held.
QVector<BoxPackage> HavalSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    return key.command == PanelKey && state == Held ? QVector<BoxPackage>()
                                                    : RaiseSpeaker::keyPackages(key, state);
}

// d0: 7 power, 6 A/C, 5 air recirculates, 3 automatic, 2 two zones, 1 rear defrost, 0 front defrost
// d1 where the air goes, d2 fan, d3 and d4 driver's and passenger's step, d5 half degrees outside from -40
QByteArray HavalSpeaker::climate(const SimulatedCar &car)
{
    const int d0 = bit(car.flag("climate.power"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(car.text("climate.circulation") == "in", 5) | bit(car.flag("climate.auto"), 3) |
                   bit(car.flag("climate.dual"), 2) | bit(car.flag("climate.rear_defrost"), 1) |
                   bit(car.flag("climate.defrost"), 0);
    const int way = bit(car.flag("climate.to_window"), 2) | bit(car.flag("climate.to_face"), 1) |
                    bit(car.flag("climate.to_feet"), 0);
    return bytes(
        {d0, AirWays[way], car.number("climate.fan"), qMin(car.number("climate.left_step"), MostSteps),
         qMin(car.number("climate.right_step"), MostSteps), (car.number("outside.temperature") + 40) * 2});
}

// d1: 7 lights on, 6 reverse gear, 4 hand brake
QByteArray HavalSpeaker::doorsAndGear(const SimulatedCar &car)
{
    return bytes({doorsAndLids(car), bit(car.flag("light.on"), 7) | bit(car.flag("gear.reverse"), 6) |
                                         bit(car.flag("brake.hand"), 4)});
}

QString HavalSpeaker::takeSetting(const BoxPackage &package)
{
    if (package.d(0) != ClockItem) {
        return observe("setting " + hex(package.d(0)), hex(package.d(1)));
    }
    return observe(
        "clock", QString("%1:%2").arg(package.d(1), 2, 10, QChar('0')).arg(package.d(2), 2, 10, QChar('0')));
}
