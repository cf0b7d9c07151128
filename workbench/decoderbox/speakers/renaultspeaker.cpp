#include "renaultspeaker.h"

#include <cmath>

namespace {

const int ClimatePeriod = 1000; // ms; how often the box repeats it is not known

// 4 is nearest; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 4, 3, 3, 2, 2, 1};

// Numbers and choices count from `first`.
struct Setting
{
    int item;
    const char *property;
    int first;
};
const Setting Settings[] = {
    {0x01, "options.parking.front", 0},
    {0x02, "options.parking.rear", 0},
    {0x03, "options.climate.fresh_air_cycle", 0},
    {0x04, "options.climate.ioniser_mode", 0},
    {0x05, "options.climate.ioniser_at_start", 0},
    {0x06, "options.opening.speed_lock", 0},
    {0x07, "options.display.indicator_volume", 1},
    {0x09, "options.light.welcome", 0},
    {0x0A, "options.light.cabin", 0},
    {0x0B, "options.wipers.rear_reversing", 0},
    {0x0C, "options.display.eco", 0},
    {0x0E, "options.display.style", 0},
    {0x0F, "options.display.night_brightness", 0},
    {0x11, "options.assist.blind_spot", 0},
    {0x12, "options.parking.side", 0},
    {0x13, "options.parking.way", 1},
};
const int RequestItem = 0x00;
const int ResetItem = 0x80;
const int FirstUserItem = 0x06;
const int LastUserItem = 0x0C;

QStringList settingNames()
{
    QStringList names;
    for (const Setting &setting : Settings) {
        names << setting.property;
    }
    return names;
}

} // namespace

RenaultSpeaker::RenaultSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x7F, parent)
{
    addRenaultReports();
    addKeys(BoxKey::Wheel, 0x20,
            {{0x01, "volume_up"},
             {0x02, "volume_down"},
             {0x06, "mute"},
             {0x07, "mode"},
             {0x09, "call"},
             {0x0A, "hangup"},
             {0x12, "voice"},
             {0x15, "back"},
             {0x16, "enter"}});
    addKeys(BoxKey::Knob, 0x20, {{0x03, "roller_up"}, {0x04, "roller_down"}});
    releaseWithoutKey(0x20);

    addCommand(0x83, 2,
               [this](const BoxPackage &package) { return takeSetting(package.d(0), package.d(1)); });
    addCommand(0xC0, 1, [this](const BoxPackage &package) {
        return observe("mode", QString::fromLatin1(package.data.toHex(' ')));
    });
}

void RenaultSpeaker::addRenaultReports()
{
    addReport({"climate",
               0x21,
               {"climate.ac", "climate.auto", "climate.circulation", "climate.left", "climate.right",
                "climate.fan", "climate.to_window", "climate.to_face", "climate.to_feet", "climate.defrost",
                "climate.rear_defrost", "climate.dual", "climate.eco", "climate.soft", "climate.fast"},
               climate,
               true,
               ClimatePeriod});
    addRadar("rear", 0x22, RadarLevels);
    addRadar("front", 0x23, RadarLevels);
    addReport({"doors",
               0x28,
               {"doors.", "lids.", "outside.temperature"},
               [](const SimulatedCar &c) {
                   return bytes({doorsAndLids(c), c.number("outside.temperature") + 40});
               },
               true});
    addReport({"steering", 0x30, {"steering.angle"}, signAndSizeSteering, true});
    addReport({"settings", 0x71, settingNames(), settings, false});
    addReport({"trip", 0x81, {"trip.average."}, trip, true});
    addReport({"SOS call",
               0x91,
               {"call.sos"},
               [](const SimulatedCar &c) { return bytes({c.flag("call.sos")}); },
               false});
}

// d0: 7 recirculation is automatic, 6 A/C, 5..4 air: 0 fresh, 1 recirculates, 3 automatic, 2 two zones,
//     1 rear defrost, 0 front defrost
// d1: 7 eco, 6 soft, 5 fast, 2 to feet, 1 to face, 0 to window
// d2 fan, without which the climate is off; d3, d4: driver's and passenger's temperature
QByteArray RenaultSpeaker::climate(const SimulatedCar &car)
{
    const QString circulation = car.text("climate.circulation");
    const int d0 = bit(circulation == "auto", 7) | bit(car.flag("climate.ac"), 6) |
                   bit(circulation == "in", 4) | bit(car.flag("climate.auto"), 3) |
                   bit(car.flag("climate.dual"), 2) | bit(car.flag("climate.rear_defrost"), 1) |
                   bit(car.flag("climate.defrost"), 0);
    const int d1 = bit(car.flag("climate.eco"), 7) | bit(car.flag("climate.soft"), 6) |
                   bit(car.flag("climate.fast"), 5) | bit(car.flag("climate.to_feet"), 2) |
                   bit(car.flag("climate.to_face"), 1) | bit(car.flag("climate.to_window"), 0);
    return bytes({d0, d1, car.number("climate.fan"), temperatureCode(car, "climate.left"),
                  temperatureCode(car, "climate.right")});
}

// A Koleos, which goes from 17.5 to 30.5 degrees.
quint8 RenaultSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind == ClimateTemperature::Low ||
        (chosen.kind != ClimateTemperature::High && chosen.celsius < 17.5)) {
        return 0xFE;
    }
    if (chosen.kind == ClimateTemperature::High || chosen.celsius > 30.5) {
        return 0xFF;
    }
    return quint8(chosen.celsius * 2);
}

// d0: 5..4 parking assistant, 3 blind spot, 2 side, 1 front, 0 rear parking aid
// d1: 3 fresh-air cycle, 2 ioniser at start, 1..0 ioniser
// d2: 7 eco indicator, 6 rear wiper in reverse, 5 cabin light, 4 welcome light, 2 doors lock, 1..0 volume
// d3, d4: not told; d5 cluster style, d6 night brightness
QByteArray RenaultSpeaker::settings(const SimulatedCar &car)
{
    const auto on = [&car](const char *name, int place) {
        return bit(car.flag(QString("options.") + name), place);
    };
    const int d0 = (car.choice("options.parking.way") + 1) << 4 | on("assist.blind_spot", 3) |
                   on("parking.side", 2) | on("parking.front", 1) | on("parking.rear", 0);
    const int d1 = on("climate.fresh_air_cycle", 3) | on("climate.ioniser_at_start", 2) |
                   car.choice("options.climate.ioniser_mode");
    const int d2 = on("display.eco", 7) | on("wipers.rear_reversing", 6) | on("light.cabin", 5) |
                   on("light.welcome", 4) | on("opening.speed_lock", 2) |
                   (car.choice("options.display.indicator_volume") + 1);
    return bytes({d0, d1, d2, 0, 0, car.number("options.display.style"),
                  car.number("options.display.night_brightness")});
}

// In tenths, high byte first: d0, d1 l/100 km; d2, d3 km/h; d4, d5 km and their highest bit in bit 0 of d6
QByteArray RenaultSpeaker::trip(const SimulatedCar &car)
{
    const auto tenths = [&car](const char *name) { return int(std::lround(car.real(name) * 10)); };
    const int distance = tenths("trip.average.distance");
    return bigEndian16(tenths("trip.average.consumption")) + bigEndian16(tenths("trip.average.speed")) +
           bigEndian16(distance) + bytes({distance >> 16, 0});
}

QString RenaultSpeaker::takeSetting(int item, int value)
{
    if (item == RequestItem && value == 1) {
        answerWith(Settings[0].property);
        return "request settings";
    }
    for (const Setting &setting : Settings) {
        const CarProperty &property = *CarProperty::find(setting.property);
        if (item == ResetItem && value == 2 && setting.item >= FirstUserItem &&
            setting.item <= LastUserItem) {
            car()->setValue(setting.property, property.initial);
        } else if (setting.item == item) {
            // Of what is not valid nothing comes.
            car()->setValue(setting.property, property.kind == CarProperty::Choice
                                                  ? QVariant(property.choices.value(value - setting.first))
                                                  : QVariant(value));
        }
    }
    if (item == ResetItem && value == 1) {
        car()->reset("trip.average.");
    }
    return observe("setting " + hex(item), hex(value));
}
