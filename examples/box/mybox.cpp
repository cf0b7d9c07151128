#include "mybox.h"

MyBox::MyBox(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    // Its doors, in the Toyota box's package 0x24: said after the unit's ready, and whenever one moves.
    addReport({"doors", 0x24, {"doors."}, doors, true});
    addKeys(BoxKey::Wheel, 0x20, {{1, "volume_up"}, {2, "volume_down"}});
}

extern "C" Q_DECL_EXPORT BoxSpeaker *createBoxSpeaker(SimulatedCar *car)
{
    return new MyBox(car);
}
