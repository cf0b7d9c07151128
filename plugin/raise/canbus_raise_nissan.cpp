// Raise decoder box in a Nissan, CAN-bus type 8.

#include "canbus_raise_nissan.h"

#include "adapterfactory.h"
#include "carvalues.h"
#include "keysource.h"
#include "radargroup.h"
#include "unitlink.h"

#include <QTime>

namespace {

// What the unit sends.
enum SentCommand { SettingCommand = 0x83, SourceCommand = 0xC0, ClockCommand = 0xC8 };
const int SourceDataLength = 8;

// The wheel. 0x0A is the one phone key of some cars, which then say with a command of their own what it means.
const CarKeys::Mapping WheelKeys[] = {
    {0x01, CarKeys::VolumeUp},  {0x02, CarKeys::VolumeDown}, {0x03, CarKeys::MediaPrevious},
    {0x04, CarKeys::MediaNext}, {0x07, CarKeys::ModeSwitch}, {0x09, CarKeys::Call},
    {0x0A, CarKeys::Hangup},    {0x15, CarKeys::Back},       {0x16, CarKeys::Enter},
    {0x87, CarKeys::PowerOff}, // of the rear seat
};
// The centre console. No key is known for its diagonals and for MAP (0x72).
const CarKeys::Mapping ConsoleKeys[] = {
    {0x60, CarKeys::Up},    {0x62, CarKeys::Right}, {0x64, CarKeys::Down}, {0x66, CarKeys::Left},
    {0x70, CarKeys::Enter}, {0x71, CarKeys::Back},  {0x73, CarKeys::Home},
};
const CarKeys::Mapping ConsoleKnob[] = {{0x74, CarKeys::Right}, {0x75, CarKeys::Left}};
const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1},
                              {CarKeys::keyTable(ConsoleKeys), KeyGroup::Keys, 0},
                              {CarKeys::keyTable(ConsoleKnob), KeyGroup::Knobs, 0}};
const KeyRelease Release = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};
KeySource keys(KeyGroups, Release);

// Sources that the car asks for; 0 and any other code ask for none.
const CarKeys::Mapping SourceKeys[] = {{1, CarKeys::Launch0}, {2, CarKeys::Launch0}, {3, CarKeys::Launch0},
                                       {4, CarKeys::Launch4}, {5, CarKeys::Music},   {6, CarKeys::Music},
                                       {7, CarKeys::Music},   {8, CarKeys::Launch4}, {9, CarKeys::Launch0},
                                       {0x0A, CarKeys::Music}};
const CarKeys::Mapping CallKeys[] = {{1, CarKeys::Call}, {2, CarKeys::Hangup}};

RadarGroup rearRadar(UnitLink::Radar501A, byteTable(FarFirstRadarLevels), FourRadarBytes);
RadarGroup frontRadar(UnitLink::Radar5019, byteTable(FarFirstRadarLevels), FourRadarBytes);

// Application mode of the unit, and source and text format of the car; any other mode is off. The tuner's own format
// wants a frequency, which is not known here: the car shows 0.00.
const ModeCode ModeCodes[] = {{2, 8}, {3, 0x0B}, {4, 6},  {5, 6},  {6, 1, 1}, {7, 8},
                              {9, 7}, {13, 6},   {15, 7}, {17, 7}, {18, 7}};

const CodeWord ParkingButtons[] = {{0, "none"},   {1, "pa"},     {2, "perpendicular"},  {3, "parallel"},
                                   {4, "arrows"}, {5, "cancel"}, {0xFF, "introduction"}};
const CodeWord ParkingCameras[] = {{0x00, "front"}, {0x80, "rear"}};
const CodeWord ParkingMessages[] = {
    {0x00, "none"},
    {0x01, "be_sure_it_is_safe"},
    {0x02, "assistant_not_available"},
    {0x03, "use_the_indicator_to_change_side"},
    {0x04, "select_forward_gear"},
    {0x05, "space_found_drive_forward"},
    {0x06, "stop_beside_an_empty_space"},
    {0x07, "set_position_with_up_and_down"},
    {0x08, "adjust_position"},
    {0x09, "cancelled"},
    {0x0A, "drive_backwards"},
    {0x0B, "stop_select_reverse"},
    {0x0C, "drive_forwards"},
    {0x0D, "stop_select_forward_gear"},
    {0x0E, "finished"},
    {0x12, "centre_the_wheel"},
    {0x13, "remove_trailer"},
    {0x14, "stability_control_must_be_on"},
    {0x15, "close_door_to_start"},
    {0x16, "system_fault"},
    {0x17, "assistant_fault"},
    {0x18, "too_fast"},
    {0x19, "driver_steered"},
    {0x1A, "trailer_attached"},
    {0x1B, "stability_control_at_work"},
    {0x1C, "door_open_or_belt_off"},
    {0x1D, "time_out"},
    {0x22, "engine_not_active"},
    {0x23, "stability_control_not_active"},
    {0x24, "forward_gear_outside_the_bay"},
    {0x25, "cannot_resume"},
    {0x27, "stop"},
    {0x28, "select_reverse_gear"},
    {0x42, "check_surroundings"},
    {0x43, "stop_beside_the_bay_to_start"},
    {0x45, "reduce_speed"},
    {0x4C, "steering_turns"},
    {0x4D, "forward_with_care"},
    {0x4E, "backward_with_care"},
    {0x4F, "check_obstacle"},
};

const CarValue Values[] = {
    CarValue::flag(0x28, "lids.boot", 0, 3),
    CarValue::flag(0x28, "lids.bonnet", 0, 2),
    CarValue::number(0x28, "outside.temperature", 1, 0, 0xFD, 1, -40),
    CarValue::words(0x91, "call.sos", 0, OffOn),
    CarValue::number(0x93, "amplifier.volume", 0, 0, 40),
    CarValue::number(0x93, "amplifier.bass", 1, -5, 5),
    CarValue::number(0x93, "amplifier.treble", 2, -5, 5),
    CarValue::number(0x93, "amplifier.balance", 3, -5, 5),
    CarValue::number(0x93, "amplifier.fader", 4, -5, 5),
    CarValue::number(0x93, "amplifier.speed_volume", 5, 0, 5),
    CarValue::words(0x93, "amplifier.centerpoint", 6, OffOn),
    CarValue::number(0x93, "amplifier.surround", 7, -5, 5),
    CarValue::words(0x93, "amplifier.driver_stage", 8, OffOn),
    CarValue::words(0x94, "parking_picture.buttons", 0, ParkingButtons),
    CarValue::flag(0x94, "parking_picture.grey.up", 1, 7),
    CarValue::flag(0x94, "parking_picture.grey.down", 1, 6),
    CarValue::flag(0x94, "parking_picture.grey.left", 1, 5),
    CarValue::flag(0x94, "parking_picture.grey.right", 1, 4),
    CarValue::flag(0x94, "parking_picture.grey.down_right", 1, 3),
    CarValue::flag(0x94, "parking_picture.grey.down_left", 1, 2),
    CarValue::words(0x94, "parking_picture.message", 2, ParkingMessages),
    CarValue::words(0x94, "parking_picture.camera", 3, ParkingCameras),
    CarValue::flag(0x95, "assist.lane_departure", 0, 7),
    CarValue::flag(0x95, "assist.blind_spot", 0, 6),
    CarValue::flag(0x95, "assist.moving_object", 0, 5),
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseNissan, CanBus_Raise_Nissan)

CanBus_Raise_Nissan::CanBus_Raise_Nissan()
{
    setKeys(&keys);
    setValues(Values);
    setSettingCommand(SettingCommand);
    setClockCommand(ClockCommand);
    handOnUnknownPackages();
}

void CanBus_Raise_Nissan::onInited()
{
    RaiseSyncAdapter::onInited();
    reportModes(SourceCommand, SourceDataLength, ModeCodes);
}

RaiseAdapter::CommandTable CanBus_Raise_Nissan::commands() const
{
    typedef CanBus_Raise_Nissan Car;
    static const Command rows[] = {
        {0x20, 2, handler(&Car::onSteeringWheelKey)},
        {0x22, 4, &rearRadar},
        {0x23, 4, &frontRadar},
        {0x28, 1, handler(&Car::onStatus)}, // of early boxes
        {0x29, 2, handler(&Car::onSignAndSizeSteeringAngle)},
        {0x30, 0, handler(&Car::onVersion)},
        {0x40, 1, handler(&Car::onSourceRequest)},
        {0x50, 1, handler(&Car::onCallRequest)},
        {0x91, 1, handler(&Car::onScreenData)},
        {0x93, 9, handler(&Car::onScreenData)},
        {0x94, 4, handler(&Car::onScreenData)},
        {0x95, 1, handler(&Car::onScreenData)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

void CanBus_Raise_Nissan::onSourceRequest(const PackageView &d)
{
    // d[0] source
    const unsigned int key = CarKeys::keyFor(SourceKeys, d.d(0));
    if (key != CarKeys::NoKey) {
        CarKeys::tap(key);
    }
}

void CanBus_Raise_Nissan::onCallRequest(const PackageView &d)
{
    // d[0]: 1 answer, 2 refuse
    const unsigned int key = CarKeys::keyFor(CallKeys, d.d(0));
    if (key != CarKeys::NoKey) {
        CarKeys::tap(key, 1);
    }
}

// ---------------------------------------------------------------------------------------------- sent

QByteArray CanBus_Raise_Nissan::clockData(const QTime &time, bool twelveHours)
{
    const char data[] = {char(time.minute()), char(time.hour()), char(twelveHours ? 0 : 1)};
    return QByteArray(data, sizeof data);
}

void CanBus_Raise_Nissan::onSyncTimer()
{
    writeBytes(ClockCommand, clockData(QTime::currentTime(), UnitLink::isTwelveHourClock()));
}
