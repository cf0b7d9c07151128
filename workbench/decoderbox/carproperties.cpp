// What the simulated car has: one row per property, grouped as a panel shows them.

#include "carproperty.h"
#include "carsettings.h"

namespace {

const int None = 0;

} // namespace

const QVector<CarProperty> &CarProperty::all()
{
    static const QVector<CarProperty> properties =
        QVector<CarProperty>{
            // name, kind, minimum, maximum, step, unit, choices, initial
            {"climate.power", Switch, None, None, None, "", {}, "on"},
            {"climate.ac", Switch, None, None, None, "", {}, "off"},
            {"climate.auto", Switch, None, None, None, "", {}, "off"},
            {"climate.circulation", Choice, None, None, None, "", {"out", "in", "auto"}, "out"},
            {"climate.left", Temperature, 15.0, 32.0, 0.5, "°C", {}, "21"},
            {"climate.right", Temperature, 15.0, 32.0, 0.5, "°C", {}, "21"},
            // What the car's own display shows; the car thinks in °C either way.
            {"climate.unit", Choice, None, None, None, "", {"C", "F"}, "C"},
            {"climate.fan", Integer, 0, 7, 1, "", {}, "2"},
            {"climate.fan_auto", Switch, None, None, None, "", {}, "off"},
            {"climate.to_window", Switch, None, None, None, "", {}, "off"},
            {"climate.to_face", Switch, None, None, None, "", {}, "on"},
            {"climate.to_feet", Switch, None, None, None, "", {}, "off"},
            {"climate.defrost", Switch, None, None, None, "", {}, "off"},
            // The car asks for its climate screen with every package that says so ...
            {"climate.show", Switch, None, None, None, "", {}, "off"},
            // ... or tells whether the screen is up.
            {"climate.screen", Switch, None, None, None, "", {}, "off"},

            {"doors.front_left", Switch, None, None, None, "", {}, "off"},
            {"doors.front_right", Switch, None, None, None, "", {}, "off"},
            {"doors.rear_left", Switch, None, None, None, "", {}, "off"},
            {"doors.rear_right", Switch, None, None, None, "", {}, "off"},

            {"radar.front.1", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.front.2", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.front.3", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.front.4", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.rear.1", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.rear.2", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.rear.3", Integer, 0, 6, 1, "", {}, "0"},
            {"radar.rear.4", Integer, 0, 6, 1, "", {}, "0"},

            {"steering.angle", Integer, -540, 540, 10, "°", {}, "0"},
            {"gear.reverse", Switch, None, None, None, "", {}, "off"},
            {"indicator.right", Switch, None, None, None, "", {}, "off"},
            {"light.illumination", Switch, None, None, None, "", {}, "off"},
            // Which picture the car's display shows: the factory's or the unit's.
            {"screen.factory", Switch, None, None, None, "", {}, "off"},
            {"camera.view360", Switch, None, None, None, "", {}, "off"},

            {"box.version", Text, None, 32, None, "", {}, "VB 1.00.00"},
            {"box.car_type", Integer, 0, 65535, 1, "", {}, "1"},
            // The greatest distance that each radar sensor knows, front left to front right, rear left to
            // rear right.
            {"box.radar_maxima", NumberList, 0, 255, 8, "", {}, "7,7,7,7,7,7,7,7"},
            // How the box misbehaves in a firmware update.
            {"firmware.fault",
             Choice,
             None,
             None,
             None,
             "",
             {"none", "twice", "backwards", "beyond", "stop"},
             "none"},
        } +
        carSettings();
    return properties;
}
