#include "gmspeaker.h"

namespace {

const quint8 RadarLevels[7] = {0, 1, 2, 3, 4, 5, 6};

// Where the air goes; index: window 4 + face 2 + feet 1.
const quint8 AirWays[8] = {1, 3, 5, 4, 7, 8, 6, 9};
const quint8 AirWayDefrost = 2;

} // namespace

GmSpeaker::GmSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addReport({"climate",
               0x03,
               {"climate.power", "climate.ac", "climate.auto", "climate.circulation", "climate.left",
                "climate.right", "climate.fan", "climate.fan_auto", "climate.to_window", "climate.to_face",
                "climate.to_feet", "climate.defrost"},
               climate,
               true});
    addReport({"steering",
               0x26,
               {"steering.angle"},
               [](const SimulatedCar &c) { return littleEndian16(steering(c, 540 * 16)); },
               true});
    addRadar("rear", 0x22, RadarLevels);
    addRadar("front", 0x23, RadarLevels);
    addReport({"doors", 0x24, {"doors."}, doors, true});

    addKeys(BoxKey::Wheel, 0x01,
            {{1, "volume_up"},
             {2, "volume_down"},
             {3, "previous"},
             {4, "next"},
             {5, "mode"},
             {6, "phone"},
             {7, "mute"}});
    addKeys(BoxKey::Panel, 0x02,
            {{1, "panel_power"}, {2, "panel_previous"}, {3, "panel_next"},        {4, "panel_4"},
             {5, "panel_5"},     {6, "panel_back"},     {7, "panel_7"},           {8, "panel_8"},
             {9, "panel_mute"},  {22, "panel_enter"},   {27, "panel_play"},       {28, "panel_up"},
             {29, "panel_down"}, {52, "panel_next_2"},  {53, "panel_previous_2"}, {64, "panel_64"},
             {80, "panel_home"}, {81, "panel_mode"},    {83, "panel_home_2"},     {84, "panel_84"}});
    addKeys(
        BoxKey::Knob, 0x02,
        {{23, "volume_knob_up"}, {24, "volume_knob_down"}, {25, "tune_knob_right"}, {26, "tune_knob_left"}});

    addCommand(0x84, 1,
               [this](const BoxPackage &package) { return observe("command 0x84", hex(package.d(0))); });
}

// d0: 7 power, 6 A/C, 5 air recirculates, 3 recirculation is automatic, 2..0 fan
// d1: 3..0 where the air goes
// d2, d3: left and right temperature
// d4, d5: not used
// d6: 1 automatic, 0 the fan is automatic
QByteArray GmSpeaker::climate(const SimulatedCar &car)
{
    const QString circulation = car.text("climate.circulation");
    const int d0 = bit(car.flag("climate.power"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(circulation == "in", 5) | bit(circulation == "auto", 3) |
                   qMin(car.number("climate.fan"), 7);
    const int way = bit(car.flag("climate.to_window"), 2) | bit(car.flag("climate.to_face"), 1) |
                    bit(car.flag("climate.to_feet"), 0);
    const int d1 = car.flag("climate.defrost") ? AirWayDefrost : AirWays[way];
    const int d6 = bit(car.flag("climate.auto"), 1) | bit(car.flag("climate.fan_auto"), 0);
    return bytes(
        {d0, d1, temperatureCode(car, "climate.left"), temperatureCode(car, "climate.right"), 0, 0, d6});
}

quint8 GmSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind == ClimateTemperature::Low) {
        return 0;
    }
    if (chosen.kind == ClimateTemperature::High || chosen.celsius > 31.0) {
        return 0x1E;
    }
    if (chosen.celsius >= 17.0 && chosen.celsius < 31.0) {
        return quint8(1 + (chosen.celsius - 17.0) * 2);
    }
    // What lies outside 17.0 to 30.5 °C got its codes later, wherever one was free.
    if (chosen.celsius >= 31.0) {
        return 0x22;
    }
    static const quint8 colder[4] = {0x20, 0x21, 0x1D, 0x1F}; // 15.0, 15.5, 16.0, 16.5
    return colder[int((chosen.celsius - 15.0) * 2)];
}
