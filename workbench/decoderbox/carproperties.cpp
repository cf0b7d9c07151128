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
            // Cars without degrees have steps: as many as their box knows, 0 for none.
            {"climate.left_step", Integer, 0, 15, 1, "", {}, "4"},
            {"climate.right_step", Integer, 0, 15, 1, "", {}, "4"},
            {"climate.scale", Choice, None, None, None, "", {"degrees", "steps"}, "degrees"},
            // What the car's own display shows; the car thinks in °C either way.
            {"climate.unit", Choice, None, None, None, "", {"C", "F"}, "C"},
            {"climate.fan", Integer, 0, 8, 1, "", {}, "2"},
            {"climate.fan_auto", Switch, None, None, None, "", {}, "off"},
            {"climate.to_window", Switch, None, None, None, "", {}, "off"},
            {"climate.to_face", Switch, None, None, None, "", {}, "on"},
            {"climate.to_feet", Switch, None, None, None, "", {}, "off"},
            {"climate.defrost", Switch, None, None, None, "", {}, "off"},
            {"climate.rear_defrost", Switch, None, None, None, "", {}, "off"},
            {"climate.dual", Switch, None, None, None, "", {}, "off"},
            {"climate.ac_max", Switch, None, None, None, "", {}, "off"},
            {"climate.eco", Switch, None, None, None, "", {}, "off"},
            {"climate.soft", Switch, None, None, None, "", {}, "off"},
            {"climate.fast", Switch, None, None, None, "", {}, "off"},
            // The car asks for its climate screen with every package that says so ...
            {"climate.show", Switch, None, None, None, "", {}, "off"},
            // ... or tells whether the screen is up.
            {"climate.screen", Switch, None, None, None, "", {}, "off"},

            {"doors.front_left", Switch, None, None, None, "", {}, "off"},
            {"doors.front_right", Switch, None, None, None, "", {}, "off"},
            {"doors.rear_left", Switch, None, None, None, "", {}, "off"},
            {"doors.rear_right", Switch, None, None, None, "", {}, "off"},

            {"lids.boot", Switch, None, None, None, "", {}, "off"},
            {"lids.bonnet", Switch, None, None, None, "", {}, "off"},
            {"brake.hand", Switch, None, None, None, "", {}, "off"},
            {"outside.temperature", Integer, -40, 85, 1, "°C", {}, "18"},
            {"seat.heating_driver", Integer, 0, 3, 1, "", {}, "0"},
            {"seat.heating_passenger", Integer, 0, 3, 1, "", {}, "0"},

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
            {"light.on", Switch, None, None, None, "", {}, "off"},
            {"light.backlight",
             Choice,
             None,
             None,
             None,
             "",
             {"darkest", "1", "2", "3", "4", "5", "6", "7", "8", "brightest"},
             "brightest"},
            // Which picture the car's display shows: the factory's or the unit's.
            {"screen.factory", Switch, None, None, None, "", {}, "off"},
            {"camera.view360", Switch, None, None, None, "", {}, "off"},

            {"camera.right", Switch, None, None, None, "", {}, "off"},
            // The picture that the car's cameras give, by the car.
            {"camera.surround",
             Choice,
             None,
             None,
             None,
             "",
             {"front_and_around", "front_and_right", "rear_and_around", "parallel_parking",
              "perpendicular_parking"},
             "front_and_around"},
            {"camera.picture",
             Choice,
             None,
             None,
             None,
             "",
             {"no_signal", "starting", "rear_and_around", "rear_and_right", "rear_and_left", "rear",
              "front_and_around", "front_and_right", "front_and_left", "front", "left_mirror",
              "right_mirror"},
             "no_signal"},
            {"call.sos", Switch, None, None, None, "", {}, "off"},
            {"call.emergency", Choice, None, None, None, "", {"none", "link", "sos"}, "none"},

            // Some cars of a make have keys that tell no state.
            {"box.key_form", Choice, None, None, None, "", {"long", "short"}, "long"},
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
