#include "mazdaspeaker.h"

namespace {

// This box tells four distances apart; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 1, 2, 2, 3, 3, 4};

} // namespace

MazdaSpeaker::MazdaSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x7F, parent)
{
    addReport({"doors", 0x02, {"doors."}, doorByte, true});
    addReport({"steering",
               0x07,
               {"steering.angle"},
               [](const SimulatedCar &c) { return littleEndian16(steering(c, 4608)); },
               true});
    addReport({"radar", 0x08, {"radar.front.", "radar.rear."}, sixSensors, true});

    addKeys(BoxKey::Wheel, 0x01,
            {{0x01, "volume_up"},
             {0x02, "volume_down"},
             {0x03, "next"},
             {0x04, "previous"},
             {0x08, "mute"},
             {0x09, "voice"},
             {0x0A, "call"},
             {0x0B, "hangup"}});
    addKeys(BoxKey::Panel, 0x01,
            {{0x20, "panel_20"},
             {0x21, "panel_home"},
             {0x22, "panel_voice"},
             {0x23, "panel_mode"},
             {0x24, "panel_up"},
             {0x25, "panel_down"},
             {0x26, "panel_left"},
             {0x27, "panel_right"},
             {0x28, "panel_enter"},
             {0x29, "panel_29"},
             {0x2A, "panel_back"}});
    addKeys(BoxKey::Knob, 0x01,
            {{0xF0, "volume_knob_up"},
             {0xF1, "volume_knob_down"},
             {0xF2, "tune_knob_right"},
             {0xF3, "tune_knob_left"}});

    addCommand(0x84, 2, [this](const BoxPackage &package) {
        return observe("setting " + hex(package.d(0)), hex(package.d(1)));
    });
}

// 7 front left, 6 front right, 5 rear left, 4 rear right
QByteArray MazdaSpeaker::doorByte(const SimulatedCar &car)
{
    return bytes({bit(car.flag("doors.front_left"), 7) | bit(car.flag("doors.front_right"), 6) |
                  bit(car.flag("doors.rear_left"), 5) | bit(car.flag("doors.rear_right"), 4)});
}

// d0: not used
// d1 to d3: front left, middle, right; d4 to d6: rear left, middle, right
QByteArray MazdaSpeaker::sixSensors(const SimulatedCar &car)
{
    QByteArray result(1, '\0');
    for (const QString &side : {QString("front"), QString("rear")}) {
        result += char(RadarLevels[car.number("radar." + side + ".1")]);
        result += char(RadarLevels[nearerOf(car, side, 2, 3)]);
        result += char(RadarLevels[car.number("radar." + side + ".4")]);
    }
    return result;
}
