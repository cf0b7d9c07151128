// Raise decoder box in a Venucia, CAN-bus type 13.

#include "canbus_raise_venucia.h"

#include "adapterfactory.h"
#include "carvalues.h"
#include "keysource.h"
#include "mapping.h"
#include "temperaturetext.h"
#include "unitlink.h"

#include "orbcommons.h"
#include "orbevent.h"

namespace {

// What the unit sends.
enum SentCommand { SettingCommand = 0x83, RequestCommand = 0x90 };

const unsigned int View360App = 513;

// No key is known for VIDEO (0x0A).
const CarKeys::Mapping WheelKeys[] = {
    {0x01, CarKeys::VolumeUp},      {0x02, CarKeys::VolumeDown}, {0x03, CarKeys::MediaNext},
    {0x04, CarKeys::MediaPrevious}, {0x07, CarKeys::ModeSwitch}, {0x08, CarKeys::PhoneKey},
};
const CarKeys::Mapping PanelKeys[] = {
    {0x12, CarKeys::PowerOff}, {0x22, CarKeys::Back}, {0x23, CarKeys::Home},
    {0x25, CarKeys::Music},    {0x26, CarKeys::Home},
};
const CarKeys::Mapping VolumeKnob[] = {{0x20, CarKeys::VolumeUp}, {0x21, CarKeys::VolumeDown}};
const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1},
                              {CarKeys::keyTable(PanelKeys), KeyGroup::Keys, 0},
                              {CarKeys::keyTable(VolumeKnob), KeyGroup::Knobs, 0}};
const KeyRelease Release = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};
KeySource keys(KeyGroups, Release);

// Where the air goes: the box's code and the dialog's bits (4 windscreen, 2 face, 1 feet); any other code is no news.
const quint8 NoDirection = 0xFF;
const ByteMapping WindDirections[] = {{0, 0}, {1, 2}, {2, 3}, {3, 1}, {4, 5}, {5, 4}};
const int WindscreenOnly = 5;

// The car's temperatures are steps, not degrees.
const int MostSteps = 15;

enum CameraState { CameraLeft = 0, CameraEntered = 1 };

const CodeWord CameraPictures[] = {
    {0x00, "no_signal"},      {0x01, "starting"}, {0x03, "rear_and_around"},  {0x04, "rear_and_right"},
    {0x05, "rear_and_left"},  {0x06, "rear"},     {0x07, "front_and_around"}, {0x08, "front_and_right"},
    {0x09, "front_and_left"}, {0x0A, "front"},    {0x0B, "left_mirror"},      {0x0C, "right_mirror"}};

const CarValue Values[] = {
    CarValue::flag(0x21, "climate.ac_max", 0, 7),
    CarValue::flag(0x21, "climate.dual", 0, 2),
    CarValue::flag(0x21, "climate.rear_defrost", 0, 1),
    CarValue::bits(0x60, "camera.view360", 0, 3, 0, OffOn),
    CarValue::words(0x60, "camera.picture", 1, CameraPictures),
    CarValue::flag(0x61, "options.camera.smart_entry", 0, 7),
    CarValue::flag(0x61, "options.camera.first_forward", 0, 6),
    CarValue::flag(0x61, "options.camera.start_animation", 0, 5),
    CarValue::flag(0x61, "options.camera.left_indicator", 0, 3),
    CarValue::flag(0x61, "options.camera.right_indicator", 0, 2),
    CarValue::flag(0x61, "options.camera.steering_wheel", 0, 1),
    CarValue::flag(0x61, "options.camera.forward_gear", 0, 0),
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseVenucia, CanBus_Raise_Venucia)

CanBus_Raise_Venucia::CanBus_Raise_Venucia() : m_cameraState(CameraLeft)
{
    setKeys(&keys);
    setValues(Values);
    setSettingCommand(SettingCommand);
    setRequestCommand(RequestCommand);
    handOnUnknownPackages();
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(1.0, MostSteps);
}

void CanBus_Raise_Venucia::onInited()
{
    RaiseSyncAdapter::onInited();
    AppendAppTitle(View360App, QLatin1String("360"));
}

void CanBus_Raise_Venucia::greetBox()
{
    RaiseSyncAdapter::onInited();
}

RaiseAdapter::CommandTable CanBus_Raise_Venucia::commands() const
{
    typedef CanBus_Raise_Venucia Car;
    static const Command rows[] = {
        {0x20, 2, handler(&Car::onSteeringWheelKey)}, {0x21, 5, handler(&Car::onClimate)},
        {0x30, 0, handler(&Car::onVersion)},          {0x60, 2, handler(&Car::onCamera)},
        {0x61, 1, handler(&Car::onScreenData)},
    };
    return commandTable(rows);
}

void CanBus_Raise_Venucia::onClimate(const PackageView &d)
{
    // d[2] fan speed 0 to 7; without the fan the climate is off
    m_climate.setAirConditionEnable(d.d(2) != 0);
    // d[0]: 7 strongest A/C, 6 A/C, 5..4 circulation, 3 not used, 2 two zones, 1 rear defrosting, 0 not used
    m_climate.setACEnable(d.bit(0, 6));
    m_climate.setAutoModeEnable(false); // the car has none
    // d[1] air distribution
    const quint8 direction = mapByte(WindDirections, d.d(1), NoDirection);
    if (direction != NoDirection) {
        m_climate.setWindDirectEx(direction);
    }
    m_climate.setAirVolume(d.d(2));
    const int circulation = d.bits(0, 5, 4); // 0 fresh air, 1 recirculation, others are reserved
    if (circulation <= 1) {
        m_climate.setCirculationMode(circulation);
    }
    if (d.d(1) == WindscreenOnly) {
        m_climate.setDefrostingMode();
    }
    // d[3] left, d[4] right temperature
    m_climate.setTemperature(TemperatureText::step(d.d(3), MostSteps),
                             TemperatureText::step(d.d(4), MostSteps));
    m_climateNews.show(&m_climate, d.bytes(0, 5), d.d(2) != 0);
}

void CanBus_Raise_Venucia::onCamera(const PackageView &d)
{
    // d[0]: 7..4 unused, 3..0 whether the camera picture is entered; d[1] which picture
    const int state = d.bits(0, 3, 0);
    if (state == m_cameraState) {
        return;
    }
    m_cameraState = state;
    if (state == CameraEntered) {
        UnitLink::requestApp(UnitLink::ShowAppEvent, 0, View360App);
    } else if (state == CameraLeft) {
        UnitLink::requestApp(UnitLink::ReturnEvent);
    }
}
