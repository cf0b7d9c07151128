// Raise decoder box in a Jeep, CAN-bus type 15.

#include "canbus_raise_jeep.h"

#include "adapterfactory.h"
#include "keysource.h"

namespace {

const CarKeys::Mapping WheelKeys[] = {
    {17, CarKeys::VolumeUp},   {18, CarKeys::VolumeDown}, {21, CarKeys::ModeSwitch},
    {23, CarKeys::PhoneKey},   {24, CarKeys::Call},       {25, CarKeys::Hangup},
    {26, CarKeys::ModeSwitch}, {28, CarKeys::MediaNext},  {29, CarKeys::MediaPrevious},
};

const CarKeys::Mapping PanelKeys[] = {
    {1, CarKeys::LaunchG},    {2, CarKeys::VolumeMute}, {3, CarKeys::VolumeMute},
    {5, CarKeys::VolumeDown}, {6, CarKeys::VolumeUp},   {7, CarKeys::MediaPrevious},
    {8, CarKeys::MediaNext},  {9, CarKeys::PowerOff},   {10, CarKeys::PowerOff},
};

const KeyGroup WheelGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
const KeyGroup PanelGroups[] = {{CarKeys::keyTable(PanelKeys), KeyGroup::Keys, 0}};
KeySource wheelKeys(WheelGroups);
KeySource panelKeys(PanelGroups);

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseJeep, CanBus_Raise_Jeep)

CanBus_Raise_Jeep::CanBus_Raise_Jeep() : RaisePanelAdapter(&wheelKeys, &panelKeys) {}

RaiseAdapter::CommandTable CanBus_Raise_Jeep::commands() const
{
    typedef CanBus_Raise_Jeep Car;
    static const Command rows[] = {
        {0x01, 2, handler(&Car::onSteeringWheelKey)},
        {0x04, 2, handler(&Car::onPanelKey)},
        {0x30, 0, handler(&Car::onVersion)},
    };
    return commandTable(rows);
}
