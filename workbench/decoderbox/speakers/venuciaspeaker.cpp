#include "venuciaspeaker.h"

namespace {

// Where the air goes; index: window 4 + face 2 + feet 1. The box has no code for window and face.
const quint8 AirWays[8] = {0, 3, 1, 2, 5, 4, 5, 4};

// In the order of the property's choices.
const quint8 CameraPictures[] = {0x00, 0x01, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x0C};

struct Setting
{
    int item;
    const char *property;
    int place; // bit of the report
};
const Setting Settings[] = {
    {1, "options.camera.smart_entry", 7},     {2, "options.camera.first_forward", 6},
    {3, "options.camera.start_animation", 5}, {5, "options.camera.left_indicator", 3},
    {6, "options.camera.right_indicator", 2}, {7, "options.camera.steering_wheel", 1},
    {8, "options.camera.forward_gear", 0},
};
const int RestoreItem = 4;

} // namespace

VenuciaSpeaker::VenuciaSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addReport({"climate",
               0x21,
               {"climate.ac", "climate.circulation", "climate.left_step", "climate.right_step", "climate.fan",
                "climate.to_window", "climate.to_face", "climate.to_feet", "climate.rear_defrost",
                "climate.dual", "climate.ac_max"},
               climate,
               true});
    addReport({"camera", 0x60, {"camera.view360", "camera.picture"}, camera, false});
    addReport({"camera settings",
               0x61,
               {"options.camera."},
               [](const SimulatedCar &c) {
                   int byte = 0;
                   for (const Setting &setting : Settings) {
                       byte |= bit(c.flag(setting.property), setting.place);
                   }
                   return bytes({byte, 0});
               },
               false});

    addKeys(BoxKey::Wheel, 0x20,
            {{0x01, "volume_up"},
             {0x02, "volume_down"},
             {0x03, "next"},
             {0x04, "previous"},
             {0x07, "mode"},
             {0x08, "phone"},
             {0x0A, "video"}});
    addKeys(BoxKey::Panel, 0x20,
            {{0x12, "panel_power"},
             {0x22, "panel_back"},
             {0x23, "panel_menu"},
             {0x25, "panel_media"},
             {0x26, "panel_home"}});
    addKeys(BoxKey::Knob, 0x20, {{0x20, "volume_knob_up"}, {0x21, "volume_knob_down"}});
    releaseWithoutKey(0x20);

    addCommand(0x83, 2,
               [this](const BoxPackage &package) { return takeSetting(package.d(0), package.d(1) != 0); });
    addCommand(0x90, 2, [this](const BoxPackage &package) { return takeRequest(package); });
}

// d0: 7 strongest A/C, 6 A/C, 5..4 air: 0 fresh, 1 recirculates, 2 two zones, 1 rear defrost
// d1 where the air goes; d2 fan, without which the climate is off; d3, d4: driver's and passenger's step
QByteArray VenuciaSpeaker::climate(const SimulatedCar &car)
{
    const int d0 = bit(car.flag("climate.ac_max"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(car.text("climate.circulation") == "in", 4) | bit(car.flag("climate.dual"), 2) |
                   bit(car.flag("climate.rear_defrost"), 1);
    const int way = bit(car.flag("climate.to_window"), 2) | bit(car.flag("climate.to_face"), 1) |
                    bit(car.flag("climate.to_feet"), 0);
    return bytes({d0, AirWays[way], qMin(car.number("climate.fan"), 7), car.number("climate.left_step"),
                  car.number("climate.right_step")});
}

// d0: 3..0 the camera picture is entered; d1 which one
QByteArray VenuciaSpeaker::camera(const SimulatedCar &car)
{
    return bytes({car.flag("camera.view360"), CameraPictures[car.choice("camera.picture")]});
}

QString VenuciaSpeaker::takeRequest(const BoxPackage &package)
{
    for (int i = 0; i < reports().size(); ++i) {
        if (reports().at(i).command == package.d(0)) {
            Q_EMIT reportDue(i);
        }
    }
    return "request " + hex(package.d(0));
}

QString VenuciaSpeaker::takeSetting(int item, bool on)
{
    if (item == RestoreItem) {
        car()->reset("options.camera.");
    }
    for (const Setting &setting : Settings) {
        if (setting.item == item) {
            car()->setValue(setting.property, on);
        }
    }
    return observe("setting " + hex(item), hex(on));
}
