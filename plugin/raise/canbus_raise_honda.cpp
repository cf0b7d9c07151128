// Raise decoder box in a Honda, CAN-bus type 7.

#include "canbus_raise_honda.h"

#include "adapterfactory.h"
#include "keysource.h"
#include "radargroup.h"
#include "temperaturetext.h"
#include "unitlink.h"

#include <QTime>

namespace {

// What the unit sends.
enum SentCommand { ModeCommand = 0x82, SettingCommand = 0xC6 };
const int ModeDataLength = 1;
const unsigned char ClockItem = 0x50;
const int TwelveHourMark = 0x80;
const int LongestSetting = 254;

// Keys of the wheel, the range from 32 on with its crossing rows, and the doubles of both.
const CarKeys::Mapping WheelKeys[] = {
    {1, CarKeys::VolumeUp},      {2, CarKeys::VolumeDown},    {3, CarKeys::MediaNext},
    {4, CarKeys::MediaPrevious}, {7, CarKeys::ModeSwitch},    {8, CarKeys::VoiceDial},
    {9, CarKeys::Call},          {10, CarKeys::Hangup},       {19, CarKeys::MediaPrevious},
    {20, CarKeys::MediaNext},    {22, CarKeys::Enter},        {23, CarKeys::VolumeMute},
    {24, CarKeys::ModeSwitch},   {32, CarKeys::VolumeUp},     {33, CarKeys::VolumeDown},
    {34, CarKeys::AudioRewind},  {35, CarKeys::AudioForward}, {36, CarKeys::AudioRewind},
    {37, CarKeys::AudioForward}, {38, CarKeys::MediaNext},    {39, CarKeys::MediaPrevious},
    {48, CarKeys::VolumeMute},   {0x81, CarKeys::VolumeUp},   {0x82, CarKeys::VolumeDown},
    {0x86, CarKeys::VolumeMute},
};

const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
KeySource wheelKeys(KeyGroups);

RadarGroup frontRadar(UnitLink::Radar5019, byteTable(FourRadarLevels), FourRadarBytes);
RadarGroup rearRadar(UnitLink::Radar501A, byteTable(FourRadarLevels), FourRadarBytes);

// Application mode of the unit and source of the car; any other mode is 0.
const ModeCode ModeCodes[] = {{2, 4}, {3, 6},  {4, 7},  {5, 7},  {6, 1}, {7, 4},
                              {9, 3}, {13, 7}, {15, 3}, {17, 3}, {18, 3}};

QString temperatureText(quint8 value, bool celsius)
{
    if (value == 0) {
        return TemperatureText::low();
    }
    if (value == 0xFF) {
        return TemperatureText::high();
    }
    return celsius ? TemperatureText::celsius(value / 2.0) : TemperatureText::fahrenheit(value);
}

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseHonda, CanBus_Raise_Honda)

bool CanBus_Raise_Honda::s_climateShown = false;

CanBus_Raise_Honda::CanBus_Raise_Honda()
{
    setKeys(&wheelKeys);
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(16.0, 29.5);
}

void CanBus_Raise_Honda::onInited()
{
    RaiseSyncAdapter::onInited();
    reportModes(ModeCommand, ModeDataLength, ModeCodes);
}

RaiseAdapter::CommandTable CanBus_Raise_Honda::commands() const
{
    typedef CanBus_Raise_Honda Car;
    static const Command rows[] = {
        {0x20, 2, handler(&Car::onSteeringWheelKey)},
        {0x21, 9, handler(&Car::onClimate)},
        {0x22, 4, &rearRadar},
        {0x23, 4, &frontRadar},
        {0x24, 0, handler(&Car::onStatus)},
        {0x29, 2, handler(&Car::onSignedSteeringAngle)},
        {0x30, 0, handler(&Car::onVersion)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

void CanBus_Raise_Honda::onClimate(const PackageView &d)
{
    // d[0]: 7 on, 6 A/C, 5 recirculation, 4 unknown, 3 auto, 2..0 unknown
    m_climate.setAirConditionEnable(d.bit(0, 7));
    m_climate.setACEnable(d.bit(0, 6));
    const bool automatic = d.bit(0, 3);
    m_climate.setAutoModeEnable(automatic);
    // d[1]: 7 windscreen, 6 face, 5 feet, 4 show the display, 3 unknown, 2..0 fan speed
    m_climate.setWindDirectEx(automatic ? 0 : d.bits(1, 7, 5));
    m_climate.setAirVolume(d.bits(1, 2, 0));
    m_climate.setCirculationMode(d.bit(0, 5));
    // d[4]: 7 defrosting, 6 display on, 5..1 unknown, 0 Celsius
    if (d.bit(4, 7)) {
        m_climate.setDefrostingMode();
    }
    // d[2] left, d[3] right temperature; d[5]..d[8] unknown
    const bool celsius = d.bit(4, 0);
    m_climate.setTemperature(temperatureText(d.d(2), celsius), temperatureText(d.d(3), celsius));
    updateVisibility(d);
}

void CanBus_Raise_Honda::updateVisibility(const PackageView &d)
{
    const bool displayOn = d.bit(4, 6);
    if (d.bit(1, 4)) {
        m_climate.setVisible(true);
    } else if (s_climateShown) {
        m_climate.setVisible(displayOn);
    } else {
        // QUIRK honda-first-display: the first package with the display on shows nothing, and only the ones
        // after it count.
        s_climateShown = displayOn;
    }
}

// ---------------------------------------------------------------------------------------------- sent

void CanBus_Raise_Honda::writeSettingData(unsigned char item, const char *data, unsigned char len)
{
    QByteArray setting(data, qMin<int>(len, LongestSetting));
    setting.prepend(char(item));
    writeCanBusData(SettingCommand, reinterpret_cast<const unsigned char *>(setting.constData()),
                    static_cast<unsigned char>(setting.size()));
}

QByteArray CanBus_Raise_Honda::clockData(const QTime &time, bool twelveHours)
{
    // QUIRK honda-hour-plus-one: the box wants every hour of a 12-hour clock one too high (00:xx as 1).
    const int hour = twelveHours ? TwelveHourMark | (time.hour() % 12 + 1) : time.hour();
    const char data[] = {char(hour), char(time.minute()), char(time.second())};
    return QByteArray(data, sizeof data);
}

void CanBus_Raise_Honda::onSyncTimer()
{
    const QByteArray clock = clockData(QTime::currentTime(), UnitLink::isTwelveHourClock());
    writeSettingData(ClockItem, clock.constData(), static_cast<unsigned char>(clock.size()));
}
