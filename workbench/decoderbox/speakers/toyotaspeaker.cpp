#include "toyotaspeaker.h"

namespace {

// This box tells five distances apart; index: the car's level, rounded to the nearer one.
const quint8 RadarLevels[7] = {0, 1, 2, 2, 3, 4, 5};

} // namespace

ToyotaSpeaker::ToyotaSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addReport({"climate",
               0x28,
               {"climate.power", "climate.ac", "climate.auto", "climate.circulation", "climate.left",
                "climate.right", "climate.unit", "climate.fan", "climate.to_window", "climate.to_face",
                "climate.to_feet", "climate.defrost", "climate.show"},
               climate,
               true});
    addReport({"steering", 0x29, {"steering.angle"}, steeringAngle, true});
    addRadar("front", 0x1D, RadarLevels);
    addRadar("rear", 0x1E, RadarLevels);
    addReport({"doors", 0x24, {"doors."}, doors, true});
    addReport({"360 view", 0x32, {"camera.view360"}, view360, false});

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
             {21, "back"},
             {22, "enter"}});
    addKeys(BoxKey::Panel, 0x20,
            {{0x81, "panel_volume_up"},
             {0x82, "panel_volume_down"},
             {0x83, "panel_previous"},
             {0x84, "panel_next"},
             {0x85, "panel_forward"},
             {0x86, "panel_rewind"},
             {0x88, "panel_mode"}});

    addCommand(0x84, 2, [this](const BoxPackage &package) {
        return observe("sound " + hex(package.d(0)), hex(package.d(1)));
    });
    addCommand(0x99, 1, [this](const BoxPackage &package) { return observe("mode", hex(package.d(0))); });
}

// d0: 7 power, 6 A/C, 5 air recirculates, 3 automatic, 1 defrost
// d1: 7 to window, 6 to face, 5 to feet, 4 show the climate screen, 2..0 fan
// d2, d3: left and right temperature
// d4: 5 recirculation is automatic, 0 Fahrenheit
QByteArray ToyotaSpeaker::climate(const SimulatedCar &car)
{
    const QString circulation = car.text("climate.circulation");
    const int d0 = bit(car.flag("climate.power"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(circulation == "in", 5) | bit(car.flag("climate.auto"), 3) |
                   bit(car.flag("climate.defrost"), 1);
    const int d1 = airFlow(car) | bit(car.flag("climate.show"), 4);
    const int d4 = bit(circulation == "auto", 5) | bit(car.text("climate.unit") == "F", 0);
    return bytes({d0, d1, temperatureCode(car, "climate.left"), temperatureCode(car, "climate.right"), d4});
}

quint8 ToyotaSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const bool isFahrenheit = car.text("climate.unit") == "F";
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind == ClimateTemperature::High) {
        return isFahrenheit ? 0xFF : 0x1F;
    }
    if (chosen.kind == ClimateTemperature::Low || chosen.celsius < 16.0) {
        return 0;
    }
    if (isFahrenheit) {
        return quint8(chosen.fahrenheit());
    }
    // The codes were first given out from 18 °C; the cold ones came later, behind HI.
    return chosen.celsius < 18.0 ? quint8(0x20 + (chosen.celsius - 16.0) * 2)
                                 : quint8(1 + (chosen.celsius - 18.0) * 2);
}

// Twelve bits, two's complement, positive to the left; 380 is the lock.
QByteArray ToyotaSpeaker::steeringAngle(const SimulatedCar &car)
{
    return littleEndian16(-steering(car, 380) & 0x0FFF);
}

// Bit 2: the car says something about the view; bit 3: show it.
QByteArray ToyotaSpeaker::view360(const SimulatedCar &car)
{
    return bytes({bit(true, 2) | bit(car.flag("camera.view360"), 3)});
}
