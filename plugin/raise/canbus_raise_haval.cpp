// Raise decoder box in a Haval, CAN-bus type 11.

#include "canbus_raise_haval.h"

#include "adapterfactory.h"
#include "carvalues.h"
#include "keysource.h"
#include "radargroup.h"
#include "temperaturetext.h"
#include "unitlink.h"

#include <QTime>
#include <QTimer>

namespace {

// What the unit sends.
const quint8 SettingCommand = 0x83;
const quint8 ClockItem = 0x03;
// The unit's own clock may be set at any time.
const int ClockInterval = 1000; // ms

const CarKeys::Mapping WheelKeys[] = {
    {0x01, CarKeys::VolumeUp},  {0x02, CarKeys::VolumeDown}, {0x07, CarKeys::ModeSwitch},
    {0x09, CarKeys::Call},      {0x0A, CarKeys::Hangup},     {0x0B, CarKeys::MediaPrevious},
    {0x0C, CarKeys::MediaNext},
};
// The volume knob (0x21, 0x22) comes as two keys. No key is known for navigation (0x36).
const CarKeys::Mapping PanelKeys[] = {
    {0x01, CarKeys::PowerOff},  {0x07, CarKeys::Launch0},    {0x09, CarKeys::VolumeMute},
    {0x21, CarKeys::VolumeUp},  {0x22, CarKeys::VolumeDown}, {0x29, CarKeys::MediaPrevious},
    {0x30, CarKeys::MediaNext}, {0x31, CarKeys::LaunchG},    {0x32, CarKeys::Home},
    {0x33, CarKeys::Call},      {0x34, CarKeys::Hangup},     {0x35, CarKeys::Launch2},
};
const KeyGroup WheelGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
const KeyGroup PanelGroups[] = {{CarKeys::keyTable(PanelKeys), KeyGroup::Keys, 0}};
const KeyRelease Release = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};
KeySource wheelKeys(WheelGroups, Release);
KeySource panelKeys(PanelGroups, Release);

// Where the air goes: the box's code and the dialog's bits (4 windscreen, 2 face, 1 feet); any other code is no news.
const quint8 NoDirection = 0xFF;
const ByteMapping WindDirections[] = {{1, 2}, {2, 3}, {3, 1}, {4, 5}, {5, 4}, {6, 6}, {7, 7}};

// The car's temperatures are steps, not degrees; 0 is off.
const int MostSteps = 7;

RadarGroup rearRadar(UnitLink::Radar501A, byteTable(FarFirstRadarLevels), FourRadarBytes);

const CarValue Values[] = {
    CarValue::flag(0x23, "climate.dual", 0, 2),
    CarValue::flag(0x23, "climate.rear_defrost", 0, 1),
    CarValue::number(0x23, "outside.temperature", 5, 0, 0xFA, 0.5, -40),
    CarValue::flag(0x28, "lids.boot", 0, 3),
    CarValue::flag(0x28, "lids.bonnet", 0, 2),
    CarValue::flag(0x28, "light.on", 1, 7),
    CarValue::flag(0x28, "gear.reverse", 1, 6),
    CarValue::flag(0x28, "brake.hand", 1, 4),
    CarValue::words(0x40, "camera.right", 0, OffOn),
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseHaval, CanBus_Raise_Haval)

CanBus_Raise_Haval::CanBus_Raise_Haval() : m_clockTimer(new QTimer(this))
{
    setKeys(&wheelKeys, &panelKeys);
    setValues(Values);
    setSettingCommand(SettingCommand);
    handOnUnknownPackages();
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(1.0, MostSteps);
    setReadyTimer();
    m_clockTimer->setSingleShot(true);
    connect(m_clockTimer, SIGNAL(timeout()), this, SLOT(onClockTimer()));
}

void CanBus_Raise_Haval::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
}

RaiseAdapter::CommandTable CanBus_Raise_Haval::commands() const
{
    typedef CanBus_Raise_Haval Car;
    static const Command rows[] = {
        {0x21, 2, handler(&Car::onSteeringWheelKey)}, {0x22, 2, handler(&Car::onPanelKey)},
        {0x23, 5, handler(&Car::onClimate)},          {0x26, 4, &rearRadar},
        {0x28, 1, handler(&Car::onStatus)},           {0x30, 2, handler(&Car::onSteeringAngle)},
        {0x40, 1, handler(&Car::onScreenData)},       {0x7F, 0, handler(&Car::onVersion)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

void CanBus_Raise_Haval::onRecvMcuProtocol(const QByteArray &byteArray)
{
    RaiseAdapter::onRecvMcuProtocol(byteArray);
    if (m_clockSent.isEmpty()) {
        onClockTimer();
    }
}

void CanBus_Raise_Haval::onClimate(const PackageView &d)
{
    // d[0]: 7 on, 6 A/C, 5 recirculation, 4 unused, 3 auto, 2 two zones, 1 rear defrosting, 0 front defrosting
    m_climate.setAirConditionEnable(d.bit(0, 7));
    m_climate.setACEnable(d.bit(0, 6));
    m_climate.setAutoModeEnable(d.bit(0, 3));
    // d[1] air distribution, d[2] fan speed 0 to 8
    const quint8 direction = mapByte(WindDirections, d.d(1), NoDirection);
    if (direction != NoDirection) {
        m_climate.setWindDirectEx(direction);
    }
    m_climate.setAirVolume(d.d(2));
    m_climate.setCirculationMode(d.bit(0, 5));
    if (d.bit(0, 0)) {
        m_climate.setDefrostingMode();
    }
    // d[3] left, d[4] right temperature; d[5] outside temperature, which brings no display up
    m_climate.setTemperature(TemperatureText::step(d.d(3), MostSteps),
                             TemperatureText::step(d.d(4), MostSteps));
    m_climateNews.show(&m_climate, d.bytes(0, 5), d.bit(0, 7));
}

void CanBus_Raise_Haval::onSteeringAngle(const PackageView &d)
{
    // d[0] high byte, d[1] low byte: signed, tenths of a degree at the wheel. The range of 550 degrees is nominal.
    const float angle = float(qint16(d.u16be(0))) / 5500.0f * 40.0f;
    UnitLink::sendSteeringAngle(qBound(-40.0f, angle, 40.0f));
}

// ---------------------------------------------------------------------------------------------- sent

QByteArray CanBus_Raise_Haval::clockData(const QTime &time)
{
    const char data[] = {char(ClockItem), char(time.hour()), char(time.minute())};
    return QByteArray(data, sizeof data);
}

void CanBus_Raise_Haval::onClockTimer()
{
    const QTime now = QTime::currentTime();
    const QByteArray clock = clockData(now);
    if (clock != m_clockSent) {
        m_clockSent = clock;
        writeBytes(SettingCommand, clock);
    }
    m_clockTimer->start(ClockInterval - now.msec());
}
