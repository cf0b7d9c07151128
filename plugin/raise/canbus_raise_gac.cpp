// Raise decoder box in a GAC, CAN-bus type 12.

#include "canbus_raise_gac.h"

#include "adapterfactory.h"
#include "carvalues.h"
#include "keysource.h"
#include "temperaturetext.h"
#include "unitlink.h"

#include <QTime>
#include <QTimer>

namespace {

// What the unit sends.
enum SentCommand { SettingCommand = 0x83, ClockCommand = 0xC8 };

const CarKeys::Mapping WheelKeys[] = {
    {0x11, CarKeys::ModeSwitch}, {0x12, CarKeys::MediaNext},  {0x13, CarKeys::MediaPrevious},
    {0x14, CarKeys::VolumeUp},   {0x15, CarKeys::VolumeDown}, {0x16, CarKeys::VolumeMute},
    {0x30, CarKeys::Call},       {0x31, CarKeys::Hangup},     {0x32, CarKeys::VoiceDial},
};
// No key is known for ejecting (0x02), navigation (0x0A), parking (0x27) and scanning (0x28).
const CarKeys::Mapping PanelKeys[] = {
    {0x01, CarKeys::PowerOff}, {0x03, CarKeys::Home},          {0x04, CarKeys::ModeSwitch},
    {0x05, CarKeys::Launch0},  {0x06, CarKeys::MediaPrevious}, {0x07, CarKeys::MediaNext},
    {0x08, CarKeys::Launch2},  {0x09, CarKeys::VolumeMute},    {0x0B, CarKeys::Enter},
    {0x21, CarKeys::Digit1},   {0x22, CarKeys::Digit2},        {0x23, CarKeys::Digit3},
    {0x24, CarKeys::Digit4},   {0x25, CarKeys::Digit5},        {0x26, CarKeys::Digit6},
};
const CarKeys::Mapping PanelKnobs[] = {
    {0x10, CarKeys::VolumeUp},
    {0x11, CarKeys::VolumeDown},
    {0x12, CarKeys::Right},
    {0x13, CarKeys::Left},
};
const KeyGroup WheelGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
const KeyGroup PanelGroups[] = {{CarKeys::keyTable(PanelKeys), KeyGroup::Keys, 0},
                                {CarKeys::keyTable(PanelKnobs), KeyGroup::Knobs, 0}};
const KeyRelease Release = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};
KeySource wheelKeys(WheelGroups, Release);
KeySource panelKeys(PanelGroups, Release);

// Sensors of one side. The box sends each state twice, as bars and as centimetres: one of them is enough. Bars count
// from 0, nearest, to one below their number; the unit's levels from 1 to 6.
class BarRadar final : public PackageHandler
{
public:
    explicit BarRadar(UnitLink::CarData event) : m_event(event) {}

    void handle(const PackageView &d) override
    {
        // d[0]: 0 bars, 1 centimetres; d[1] number of bars; d[2]..d[5] sensors from left to right
        if (d.d(0) != 0) {
            return;
        }
        QByteArray levels(4, '\0');
        for (int i = 0; i < levels.size(); ++i) {
            levels[i] = char(level(d.d(2 + i), d.d(1)));
        }
        UnitLink::sendRadarLevels(m_event, levels);
    }

private:
    static int level(int bar, int bars)
    {
        if (bar >= bars) {
            return 0;
        }
        return bars < 2 ? 1 : 1 + 5 * bar / (bars - 1);
    }

    const UnitLink::CarData m_event;
};

BarRadar rearRadar(UnitLink::Radar501A);
BarRadar frontRadar(UnitLink::Radar5019);

const int MostSteps = 7;
const int StraightAhead = 0x1E00; // of the steering angle
const float SteeringLock = 4864.0f;

QString temperatureText(quint8 value, quint8 step)
{
    if (value == 0x01) {
        return TemperatureText::low();
    }
    if (value == 0x39) {
        return TemperatureText::high();
    }
    if (value >= 0x03 && value <= 0x37 && value % 2 == 1) {
        return TemperatureText::celsius(18.5 + (value - 3) / 4.0);
    }
    return TemperatureText::step(step, MostSteps); // a car without degrees
}

const CodeWord Backlights[] = {{0, "darkest"}, {1, "1"}, {2, "2"}, {3, "3"}, {4, "4"},
                               {5, "5"},       {6, "6"}, {7, "7"}, {8, "8"}, {0xFF, "brightest"}};
const CodeWord SurroundPictures[] = {{1, "front_and_around"},
                                     {2, "front_and_right"},
                                     {3, "rear_and_around"},
                                     {4, "parallel_parking"},
                                     {5, "perpendicular_parking"}};
const CodeWord EmergencyCalls[] = {{0, "none"}, {1, "link"}, {2, "sos"}};

// Settings: on is 1 and off 2.
const CodeWord Switches[] = {{1, "on"}, {2, "off"}};
const CodeWord Languages[] = {{1, "chinese"}, {2, "english"}};
const CodeWord Recirculations[] = {{1, "auto"}, {2, "by_hand"}};
const CodeWord Curves[] = {{1, "slow"}, {2, "normal"}, {3, "fast"}};
const CodeWord Volumes[] = {{1, "low"}, {2, "middle"}, {3, "high"}};
const CodeWord SteeringModes[] = {{1, "sport"}, {2, "standard"}, {3, "comfort"}};
const CodeWord UnlockedDoors[] = {{1, "all"}, {2, "front_left"}};
const CodeWord FollowMeLights[] = {{1, "off"}, {2, "dipped"}, {3, "dipped_and_fog"}};

CarValue setting(quint8 item, const char *name)
{
    return CarValue::words(0x52, name, 1, Switches).ofItem(item);
}

template <int Words>
CarValue setting(quint8 item, const char *name, const CodeWord (&words)[Words])
{
    return CarValue::words(0x52, name, 1, words).ofItem(item);
}

CarValue setting(quint8 item, const char *name, int most, double scale = 1)
{
    return CarValue::number(0x52, name, 1, 0, most, scale).ofItem(item);
}

const CarValue Values[] = {
    CarValue::flag(0x10, "climate.rear_defrost", 1, 5),
    CarValue::flag(0x10, "climate.ac_max", 2, 7),
    CarValue::flag(0x10, "climate.dual", 2, 6),
    CarValue::words(0x14, "light.backlight", 0, Backlights),
    CarValue::flag(0x24, "lids.boot", 0, 3),
    CarValue::flag(0x24, "lids.bonnet", 0, 2),
    CarValue::flag(0x24, "light.on", 1, 2),
    CarValue::bits(0x24, "brake.hand", 1, 1, 1, OnOff),
    CarValue::flag(0x24, "gear.reverse", 1, 0),
    CarValue::words(0x40, "camera.surround", 0, SurroundPictures),
    CarValue::words(0x51, "call.emergency", 0, EmergencyCalls),
    setting(0x01, "options.display.language", Languages),
    setting(0x02, "options.climate.auto_compressor"),
    setting(0x03, "options.climate.auto_recirculation", Recirculations),
    setting(0x04, "options.climate.comfort_curve", Curves),
    setting(0x05, "options.seat.auto_heating_driver"),
    setting(0x06, "options.seat.auto_heating_passenger"),
    setting(0x07, "options.assist.speed_limit", 20, 10),
    setting(0x08, "options.display.warning_volume", Volumes),
    setting(0x09, "options.remote.power_time", 30),
    setting(0x0A, "options.remote.start_time", 30),
    setting(0x0B, "options.drive.steering_mode", SteeringModes),
    setting(0x0C, "options.remote.unlock", UnlockedDoors),
    setting(0x0D, "options.opening.speed_lock"),
    setting(0x0E, "options.opening.auto_unlock"),
    setting(0x0F, "options.remote.window_and_roof"),
    setting(0x10, "options.wipers.front_service"),
    setting(0x11, "options.wipers.rear_reversing"),
    setting(0x12, "options.light.follow_me", FollowMeLights),
    setting(0x13, "options.light.turning_fog"),
    setting(0x14, "options.light.daytime"),
    setting(0x15, "options.light.sensor", Volumes),
    setting(0x16, "seat.heating_driver", 3),
    setting(0x17, "seat.heating_passenger", 3),
    setting(0x18, "options.climate.ioniser"),
    setting(0x19, "options.seat.welcome"),
    setting(0x1A, "options.seat.key_position"),
    setting(0x1B, "options.mirrors.fold"),
    setting(0x1C, "options.opening.lock_sound"),
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseGac, CanBus_Raise_GAC)

CanBus_Raise_GAC::CanBus_Raise_GAC()
{
    setKeys(&wheelKeys, &panelKeys);
    setValues(Values);
    setSettingCommand(SettingCommand);
    setClockCommand(ClockCommand);
    handOnUnknownPackages();
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(18.5, 31.5);
    setPeriodicTimer(30000, SLOT(onSendSyncTimer()));
}

void CanBus_Raise_GAC::onInited()
{
    sendReady(2);
    periodicTimer()->start();
    onSendSyncTimer();
}

RaiseAdapter::CommandTable CanBus_Raise_GAC::commands() const
{
    typedef CanBus_Raise_GAC Car;
    static const Command rows[] = {
        {0x10, 5, handler(&Car::onClimate)},
        {0x12, 1, handler(&Car::onWheelKey)},
        {0x14, 1, handler(&Car::onScreenData)},
        {0x24, 1, handler(&Car::onStatus)},
        {0x30, 0, handler(&Car::onVersion)},
        {0x31, 2, handler(&Car::onSteeringAngle)},
        {0x32, 6, &rearRadar},
        {0x33, 6, &frontRadar},
        {0x40, 1, handler(&Car::onScreenData)},
        {0x50, 2, handler(&Car::onPanelKey)},
        {0x51, 1, handler(&Car::onScreenData)},
        {0x52, 2, handler(&Car::onScreenData)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

void CanBus_Raise_GAC::onClimate(const PackageView &d)
{
    // d[2]: 7 strongest A/C, 6 two zones, 5..4 unused, 3..0 fan speed; without the fan the climate is off
    const int fan = d.bits(2, 3, 0);
    m_climate.setAirConditionEnable(fan != 0);
    // d[1]: 7 fresh air, 6 windscreen and defrosting, 5 rear defrosting, 4 feet, 3 face, 2 auto, 1 not used, 0 A/C
    m_climate.setACEnable(d.bit(1, 0));
    m_climate.setAutoModeEnable(d.bit(1, 2));
    m_climate.setWindDirectEx(d.bit(1, 6) << 2 | d.bit(1, 3) << 1 | d.bit(1, 4));
    m_climate.setAirVolume(fan);
    m_climate.setCirculationMode(d.bit(1, 7) ? 0 : 1);
    if (d.bit(1, 6)) {
        m_climate.setDefrostingMode();
    }
    // d[0] step of a car without degrees, d[3] left, d[4] right temperature
    m_climate.setTemperature(temperatureText(d.d(3), d.d(0)), temperatureText(d.d(4), d.d(0)));
    m_climateNews.show(&m_climate, d.bytes(0, 5), fan != 0);
}

void CanBus_Raise_GAC::onWheelKey(const PackageView &d)
{
    // d[0] key; d[1] its state, which not every car tells
    if (d.n() < 2) {
        wheelKeys.report(d.d(0));
    } else {
        onSteeringWheelKey(d);
    }
}

void CanBus_Raise_GAC::onSteeringAngle(const PackageView &d)
{
    // d[0] high byte, d[1] low byte; the locks are where the box has them "about"
    const float angle = float(d.u16be(0) - StraightAhead) / SteeringLock * 40.0f;
    UnitLink::sendSteeringAngle(qBound(-40.0f, angle, 40.0f));
}

// ---------------------------------------------------------------------------------------------- sent

QByteArray CanBus_Raise_GAC::clockData(const QTime &time, bool twelveHours)
{
    const int twelfth = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    const char data[] = {char(time.minute()), char(twelveHours ? twelfth : time.hour()),
                         char(twelveHours ? 0 : 1), char(time.hour() >= 12 ? 1 : 0)};
    return QByteArray(data, sizeof data);
}

void CanBus_Raise_GAC::onSendSyncTimer()
{
    writeBytes(ClockCommand, clockData(QTime::currentTime(), UnitLink::isTwelveHourClock()));
}
