// XBS decoder box in a Mazda, CAN-bus type 5.

#include "canbus_xbs_mazda.h"

#include "adapterfactory.h"
#include "keysource.h"
#include "radargroup.h"
#include "unitlink.h"

#include <QTimer>

namespace {

// What the unit sends.
const unsigned char SettingCommand = 0x84;
const unsigned char Setting14 = 0x14;

const CarKeys::Mapping WheelKeys[] = {
    {0x01, CarKeys::VolumeUp},   {0x02, CarKeys::VolumeDown},
    {0x03, CarKeys::MediaNext},  {0x04, CarKeys::MediaPrevious},
    {0x08, CarKeys::VolumeMute}, {0x09, CarKeys::VoiceDial},
    {0x0A, CarKeys::Call},       {0x0B, CarKeys::Hangup},
    {0x20, CarKeys::Music},      {0x21, CarKeys::Home},
    {0x22, CarKeys::VoiceDial},  {0x23, CarKeys::ModeSwitch},
    {0x24, CarKeys::Up},         {0x25, CarKeys::Down},
    {0x26, CarKeys::Left},       {0x27, CarKeys::Right},
    {0x28, CarKeys::Enter},      {0x29, CarKeys::LaunchH},
    {0x2A, CarKeys::Back},
};

const CarKeys::Mapping Knobs[] = {
    {0xF0, CarKeys::VolumeUp},
    {0xF1, CarKeys::VolumeDown},
    {0xF2, CarKeys::Right},
    {0xF3, CarKeys::Left},
};

const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 0},
                              {CarKeys::keyTable(Knobs), KeyGroup::Knobs, 0}};
KeySource wheelKeys(KeyGroups);

// The box has six sensors, in d[1] to d[6], the unit eight: the middle ones count twice. d[0] is unknown.
const int RadarBytes[] = {1, 2, 2, 3, 4, 5, 5, 6};
RadarGroup radar(UnitLink::Radar5018, byteTable(FourRadarLevels), RadarBytes);

} // namespace

CANBUS_ADAPTER(CanBusTypeXbsMazda, CanBus_XBS_Mazda)

CanBus_XBS_Mazda::CanBus_XBS_Mazda()
{
    setKeys(&wheelKeys);
    setSettingCommand(SettingCommand);
    setReadyTimer();
}

void CanBus_XBS_Mazda::onInited()
{
    sendReady(1);
    periodicTimer()->start();
}

RaiseAdapter::CommandTable CanBus_XBS_Mazda::commands() const
{
    typedef CanBus_XBS_Mazda Car;
    static const Command rows[] = {
        {0x01, 2, handler(&Car::onSteeringWheelKey)},    {0x02, 0, handler(&Car::onDoors)},
        {0x07, 2, handler(&Car::onSignedSteeringAngle)}, {0x08, 7, &radar},
        {0x7F, 0, handler(&Car::onMazdaVersion)},
    };
    return commandTable(rows);
}

void CanBus_XBS_Mazda::onDoors(const PackageView &d)
{
    // d[0]: 7 door bit 0, 6 door bit 1, 5 door bit 2, 4 door bit 3, 3..0 unknown
    const int doors = d.bit(0, 7) | d.bit(0, 6) << 1 | d.bit(0, 5) << 2 | d.bit(0, 4) << 3;
    UnitLink::sendCarData(UnitLink::DoorStatus, static_cast<unsigned int>(doors));
}

void CanBus_XBS_Mazda::onMazdaVersion(const PackageView &d)
{
    onVersion(d);
    writeSettingData(Setting14, 1);
}
