#include "nissanspeaker.h"

namespace {

const quint8 SourceWish = 0x40;
const quint8 CallWish = 0x50;

// 4 is nearest; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 4, 3, 3, 2, 2, 1};

const quint8 ParkingButtons[7] = {0, 1, 2, 3, 4, 5, 0xFF};

// What the unit sets by steps (0x21 up, 0x31 down), by off and on (0, 1), or turns over (1).
enum Way { Steps, Switched, TurnedOver };
struct Setting
{
    int item;
    const char *property;
    Way way;
};
const Setting Settings[] = {
    {0x21, "amplifier.volume", Steps},
    {0x22, "amplifier.bass", Steps},
    {0x23, "amplifier.treble", Steps},
    {0x24, "amplifier.balance", Steps},
    {0x25, "amplifier.fader", Steps},
    {0x26, "amplifier.speed_volume", Steps},
    {0x28, "amplifier.surround", Steps},
    {0x27, "amplifier.centerpoint", Switched},
    {0x29, "amplifier.driver_stage", Switched},
    {0x51, "assist.moving_object", TurnedOver},
    {0x52, "assist.lane_departure", TurnedOver},
    {0x53, "assist.blind_spot", TurnedOver},
};
const int StepUp = 0x21;
const int StepDown = 0x31;

} // namespace

NissanSpeaker::NissanSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addReport({"steering", 0x29, {"steering.angle"}, signAndSizeSteering, true});
    addRadar("rear", 0x22, RadarLevels);
    addRadar("front", 0x23, RadarLevels);
    addReport({"SOS call",
               0x91,
               {"call.sos"},
               [](const SimulatedCar &c) { return bytes({c.flag("call.sos")}); },
               false});
    addReport({"amplifier", 0x93, {"amplifier."}, amplifier, true});
    addReport({"parking picture", 0x94, {"parking_picture."}, parkingPicture, false});
    addReport({"driving aids",
               0x95,
               {"assist."},
               [](const SimulatedCar &c) {
                   return bytes({bit(c.flag("assist.lane_departure"), 7) |
                                 bit(c.flag("assist.blind_spot"), 6) |
                                 bit(c.flag("assist.moving_object"), 5)});
               },
               true});
    addNissanKeys();

    addCommand(0xC8, 3, [this](const BoxPackage &package) { return takeClock(package); });
    addCommand(0xC0, 8, [this](const BoxPackage &package) {
        return observe("mode", hex(package.d(0)) + " format " + hex(package.d(1)));
    });
    addCommand(0x83, 2,
               [this](const BoxPackage &package) { return takeSetting(package.d(0), package.d(1)); });
}

void NissanSpeaker::addNissanKeys()
{
    addKeys(BoxKey::Wheel, 0x20,
            {{0x01, "volume_up"},
             {0x02, "volume_down"},
             {0x03, "cursor_up"},
             {0x04, "cursor_down"},
             {0x07, "mode"},
             {0x09, "call"},
             {0x0A, "hangup"},
             {0x15, "back"},
             {0x16, "enter"},
             {0x87, "rear_seat"}});
    addKeys(BoxKey::Panel, 0x20,
            {{0x60, "panel_up"},
             {0x61, "panel_up_right"},
             {0x62, "panel_right"},
             {0x63, "panel_down_right"},
             {0x64, "panel_down"},
             {0x65, "panel_down_left"},
             {0x66, "panel_left"},
             {0x67, "panel_up_left"},
             {0x70, "panel_enter"},
             {0x71, "panel_back"},
             {0x72, "panel_map"},
             {0x73, "panel_menu"}});
    addKeys(BoxKey::Knob, 0x20, {{0x74, "tune_knob_right"}, {0x75, "tune_knob_left"}});
    releaseWithoutKey(0x20);
    addKeys(BoxKey::Panel, SourceWish,
            {{1, "wish_am"},
             {2, "wish_fm_1"},
             {3, "wish_fm_2"},
             {4, "wish_cd"},
             {5, "wish_usb_1"},
             {6, "wish_usb_2"},
             {7, "wish_bluetooth"},
             {8, "wish_aux"},
             {9, "wish_fm"},
             {0x0A, "wish_usb"}});
    addKeys(BoxKey::Wheel, CallWish, {{1, "wish_answer"}, {2, "wish_refuse"}});
}

// A wish is said once.
QVector<BoxPackage> NissanSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    if (key.command != SourceWish && key.command != CallWish) {
        return RaiseSpeaker::keyPackages(key, state);
    }
    return state == Pressed ? QVector<BoxPackage>{{key.command, bytes({key.code})}} : QVector<BoxPackage>();
}

// d0 volume, d1 bass, d2 treble, d3 balance, d4 fader, d5 speed volume, d6 Centerpoint, d7 surround, d8 driver's stage
QByteArray NissanSpeaker::amplifier(const SimulatedCar &car)
{
    return bytes({car.number("amplifier.volume"), car.number("amplifier.bass"),
                  car.number("amplifier.treble"), car.number("amplifier.balance"),
                  car.number("amplifier.fader"), car.number("amplifier.speed_volume"),
                  car.flag("amplifier.centerpoint"), car.number("amplifier.surround"),
                  car.flag("amplifier.driver_stage")});
}

// d0 buttons
// d1: grey arrows: 7 up, 6 down, 5 left, 4 right, 3 down right, 2 down left
// d2 message, d3 camera
QByteArray NissanSpeaker::parkingPicture(const SimulatedCar &car)
{
    const auto grey = [&car](const char *arrow, int place) {
        return bit(car.flag(QString("parking_picture.grey.") + arrow), place);
    };
    return bytes({ParkingButtons[car.choice("parking_picture.buttons")],
                  grey("up", 7) | grey("down", 6) | grey("left", 5) | grey("right", 4) |
                      grey("down_right", 3) | grey("down_left", 2),
                  car.number("parking_picture.message"),
                  car.text("parking_picture.camera") == "rear" ? 0x80 : 0});
}

QString NissanSpeaker::takeClock(const BoxPackage &package)
{
    return observe("clock", QString("%1:%2 %3")
                                .arg(package.d(1), 2, 10, QChar('0'))
                                .arg(package.d(0), 2, 10, QChar('0'))
                                .arg(package.d(2) == 0 ? "12h" : "24h"));
}

QString NissanSpeaker::takeSetting(int item, int value)
{
    for (const Setting &setting : Settings) {
        if (setting.item != item) {
            continue;
        }
        if (setting.way == Steps && (value == StepUp || value == StepDown)) {
            car()->setValue(setting.property, car()->number(setting.property) + (value == StepUp ? 1 : -1));
        } else if (setting.way == Switched && value <= 1) {
            car()->setValue(setting.property, value == 1);
        } else if (setting.way == TurnedOver && value == 1) {
            car()->setValue(setting.property, !car()->flag(setting.property));
        }
    }
    return observe("setting " + hex(item), hex(value));
}
