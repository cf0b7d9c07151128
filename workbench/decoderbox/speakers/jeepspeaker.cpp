#include "jeepspeaker.h"

JeepSpeaker::JeepSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addKeys(BoxKey::Wheel, 0x01,
            {{17, "volume_up"},
             {18, "volume_down"},
             {21, "mode"},
             {23, "phone"},
             {24, "call"},
             {25, "hangup"},
             {26, "mode_2"},
             {28, "next"},
             {29, "previous"}});
    addKeys(BoxKey::Panel, 0x04,
            {{1, "panel_1"},
             {2, "panel_mute"},
             {3, "panel_mute_2"},
             {5, "panel_volume_down"},
             {6, "panel_volume_up"},
             {7, "panel_previous"},
             {8, "panel_next"},
             {9, "panel_power"},
             {10, "panel_power_2"}});

    addCommand(0x84, 1,
               [this](const BoxPackage &package) { return observe("command 0x84", hex(package.d(0))); });
}
