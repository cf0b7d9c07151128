#include "gacspeaker.h"

namespace {

const quint8 WheelKey = 0x12;
const quint8 SettingReport = 0x52;
const int MostSteps = 7;

// Index: the car's level. Bars count from 0, nearest, and four say nothing; centimetres from 25 to 127.
const quint8 Bars = 4;
const quint8 BarLevels[7] = {4, 0, 1, 1, 2, 2, 3};
const quint8 Distances[7] = {0xFF, 0x19, 0x2D, 0x41, 0x55, 0x69, 0x7F};

// The car is 540 degrees from its lock where the box counts 0x1300 from straight ahead.
const int StraightAhead = 0x1E00;
const int SteeringLock = 0x1300;

// What is on is 1 and off 2; choices count from 1.
struct Setting
{
    quint8 item;
    const char *property;
    int unit; // of a number
};
const Setting Settings[] = {
    {0x01, "options.display.language", 1},
    {0x02, "options.climate.auto_compressor", 1},
    {0x03, "options.climate.auto_recirculation", 1},
    {0x04, "options.climate.comfort_curve", 1},
    {0x05, "options.seat.auto_heating_driver", 1},
    {0x06, "options.seat.auto_heating_passenger", 1},
    {0x07, "options.assist.speed_limit", 10},
    {0x08, "options.display.warning_volume", 1},
    {0x09, "options.remote.power_time", 1},
    {0x0A, "options.remote.start_time", 1},
    {0x0B, "options.drive.steering_mode", 1},
    {0x0C, "options.remote.unlock", 1},
    {0x0D, "options.opening.speed_lock", 1},
    {0x0E, "options.opening.auto_unlock", 1},
    {0x0F, "options.remote.window_and_roof", 1},
    {0x10, "options.wipers.front_service", 1},
    {0x11, "options.wipers.rear_reversing", 1},
    {0x12, "options.light.follow_me", 1},
    {0x13, "options.light.turning_fog", 1},
    {0x14, "options.light.daytime", 1},
    {0x15, "options.light.sensor", 1},
    {0x18, "options.climate.ioniser", 1},
    {0x19, "options.seat.welcome", 1},
    {0x1A, "options.seat.key_position", 1},
    {0x1B, "options.mirrors.fold", 1},
    {0x1C, "options.opening.lock_sound", 1},
    // Reported as levels; the unit presses a button.
    {0x16, "seat.heating_driver", 1},
    {0x17, "seat.heating_passenger", 1},
};
const quint8 FirstSeatItem = 0x16;
const quint8 LastSeatItem = 0x17;
const int MostSeatHeat = 3;

quint8 settingCode(const SimulatedCar &car, const Setting &setting)
{
    switch (CarProperty::find(setting.property)->kind) {
    case CarProperty::Switch:
        return car.flag(setting.property) ? 1 : 2;
    case CarProperty::Choice:
        return quint8(car.choice(setting.property) + 1);
    default:
        return quint8(car.number(setting.property) / setting.unit);
    }
}

QVariant settingValue(const Setting &setting, int code)
{
    const CarProperty &property = *CarProperty::find(setting.property);
    switch (property.kind) {
    case CarProperty::Switch:
        return code == 1 || code == 2 ? QVariant(code == 1) : QVariant();
    case CarProperty::Choice:
        return property.choices.value(code - 1);
    default:
        return code * setting.unit;
    }
}

} // namespace

GacSpeaker::GacSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addGacReports();
    addGacKeys();
    addCommand(0xC8, 4, [this](const BoxPackage &package) { return takeClock(package); });
    addCommand(0x83, 2,
               [this](const BoxPackage &package) { return takeSetting(package.d(0), package.d(1)); });
    addProperties({"box.key_form"});
}

void GacSpeaker::addGacReports()
{
    addReport({"climate",
               0x10,
               {"climate.ac", "climate.auto", "climate.circulation", "climate.left", "climate.right",
                "climate.left_step", "climate.scale", "climate.fan", "climate.to_window", "climate.to_face",
                "climate.to_feet", "climate.rear_defrost", "climate.dual", "climate.ac_max"},
               climate,
               true});
    addReport({"backlight",
               0x14,
               {"light.backlight"},
               [](const SimulatedCar &c) {
                   const int step = c.choice("light.backlight");
                   return bytes({step > 8 ? 0xFF : step});
               },
               true});
    addReport({"doors",
               0x24,
               {"doors.", "lids.", "gear.reverse", "brake.hand", "light.on"},
               [](const SimulatedCar &c) {
                   return bytes({doorsAndLids(c), bit(c.flag("gear.reverse"), 0) |
                                                      bit(!c.flag("brake.hand"), 1) |
                                                      bit(c.flag("light.on"), 2)});
               },
               true});
    addReport({"steering",
               0x31,
               {"steering.angle"},
               [](const SimulatedCar &c) { return bigEndian16(StraightAhead + steering(c, SteeringLock)); },
               true});
    addBars("rear", 0x32);
    addReport({"radar rear, distances",
               0x32,
               {"radar.rear."},
               [](const SimulatedCar &c) {
                   QByteArray result = bytes({1, 0});
                   for (int sensor = 1; sensor <= 4; ++sensor) {
                       result += char(Distances[c.number(QString("radar.rear.%1").arg(sensor))]);
                   }
                   return result;
               },
               true});
    addBars("front", 0x33);
    addReport({"surround view",
               0x40,
               {"camera.surround"},
               [](const SimulatedCar &c) { return bytes({c.choice("camera.surround") + 1}); },
               false});
    addReport({"emergency call",
               0x51,
               {"call.emergency"},
               [](const SimulatedCar &c) { return bytes({c.choice("call.emergency")}); },
               false});
    for (const Setting &setting : Settings) {
        addReport({"setting " + hex(setting.item),
                   SettingReport,
                   {setting.property},
                   [setting](const SimulatedCar &c) {
                       return bytes({setting.item, settingCode(c, setting)});
                   },
                   false});
    }
}

void GacSpeaker::addBars(const QString &side, quint8 command)
{
    addReport({"radar " + side,
               command,
               {"radar." + side + '.'},
               [side](const SimulatedCar &c) {
                   QByteArray result = bytes({0, Bars});
                   for (int sensor = 1; sensor <= 4; ++sensor) {
                       result += char(BarLevels[c.number(QString("radar.%1.%2").arg(side).arg(sensor))]);
                   }
                   return result;
               },
               true});
}

void GacSpeaker::addGacKeys()
{
    addKeys(BoxKey::Wheel, WheelKey,
            {{0x11, "mode"},
             {0x12, "next"},
             {0x13, "previous"},
             {0x14, "volume_up"},
             {0x15, "volume_down"},
             {0x16, "mute"},
             {0x30, "call"},
             {0x31, "hangup"},
             {0x32, "voice"}});
    addKeys(BoxKey::Panel, 0x50,
            {{0x01, "panel_power"},
             {0x02, "panel_eject"},
             {0x03, "panel_menu"},
             {0x04, "panel_mode"},
             {0x05, "panel_band"},
             {0x06, "panel_previous"},
             {0x07, "panel_next"},
             {0x08, "panel_settings"},
             {0x09, "panel_mute"},
             {0x0A, "panel_map"},
             {0x0B, "panel_enter"},
             {0x21, "digit_1"},
             {0x22, "digit_2"},
             {0x23, "digit_3"},
             {0x24, "digit_4"},
             {0x25, "digit_5"},
             {0x26, "digit_6"},
             {0x27, "panel_parking"},
             {0x28, "panel_scan"}});
    addKeys(BoxKey::Knob, 0x50,
            {{0x10, "volume_knob_up"},
             {0x11, "volume_knob_down"},
             {0x12, "tune_knob_right"},
             {0x13, "tune_knob_left"}});
}

// The short form tells no state: the code again and again, and 0 when the key comes up.
QVector<BoxPackage> GacSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    if (key.command != WheelKey || car()->text("box.key_form") == "long") {
        return RaiseSpeaker::keyPackages(key, state);
    }
    return {{key.command, bytes({state == Released ? 0 : key.code})}};
}

// d0 step of a car without degrees
// d1: 7 fresh air, 6 to window (and defrost), 5 rear defrost, 4 to feet, 3 to face, 2 automatic, 0 A/C
// d2: 7 strongest A/C, 6 two zones, 3..0 fan, with which the climate is off
// d3, d4: left and right temperature
QByteArray GacSpeaker::climate(const SimulatedCar &car)
{
    const bool hasSteps = car.text("climate.scale") == "steps";
    const int d1 = bit(car.text("climate.circulation") == "out", 7) | bit(car.flag("climate.to_window"), 6) |
                   bit(car.flag("climate.rear_defrost"), 5) | bit(car.flag("climate.to_feet"), 4) |
                   bit(car.flag("climate.to_face"), 3) | bit(car.flag("climate.auto"), 2) |
                   bit(car.flag("climate.ac"), 0);
    const int d2 = bit(car.flag("climate.ac_max"), 7) | bit(car.flag("climate.dual"), 6) |
                   qMin(car.number("climate.fan"), 7);
    return bytes({hasSteps ? qMin(car.number("climate.left_step"), MostSteps) : 0, d1, d2,
                  hasSteps ? 0 : temperatureCode(car, "climate.left"),
                  hasSteps ? 0 : temperatureCode(car, "climate.right")});
}

quint8 GacSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind == ClimateTemperature::Low ||
        (chosen.kind != ClimateTemperature::High && chosen.celsius < 18.5)) {
        return 0x01;
    }
    if (chosen.kind == ClimateTemperature::High || chosen.celsius > 31.5) {
        return 0x39;
    }
    return quint8(3 + (chosen.celsius - 18.5) * 4);
}

QString GacSpeaker::takeClock(const BoxPackage &package)
{
    const bool isTwelveHour = package.d(2) == 0;
    return observe("clock", QString("%1:%2 %3")
                                .arg(package.d(1), 2, 10, QChar('0'))
                                .arg(package.d(0), 2, 10, QChar('0'))
                                .arg(isTwelveHour ? (package.d(3) == 0 ? "am" : "pm") : "24h"));
}

QString GacSpeaker::takeSetting(int item, int value)
{
    for (const Setting &setting : Settings) {
        if (setting.item != item) {
            continue;
        }
        if (item >= FirstSeatItem && item <= LastSeatItem) {
            const int next = (car()->number(setting.property) + 1) % (MostSeatHeat + 1);
            car()->setValue(setting.property, value == 2 ? next : car()->number(setting.property));
        } else {
            car()->setValue(setting.property, settingValue(setting, value));
        }
    }
    return observe("setting " + hex(item), hex(value));
}
