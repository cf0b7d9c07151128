// Raise decoder box in a Toyota, CAN-bus type 9.

#include "canbus_raise_toyota.h"

#include "adapterfactory.h"
#include "keysource.h"
#include "radargroup.h"
#include "temperaturetext.h"
#include "unitlink.h"

#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"

#include <QTimer>

namespace {

// What the unit sends.
enum SentCommand { OemSoundCommand = 0x84, ModeCommand = 0x99 };
const int ModeDataLength = 21;

const unsigned int View360App = 513;

// Keys of the wheel. The high range crosses: there 0x83 is previous and 0x84 next, the reverse of 3 and 4.
const CarKeys::Mapping WheelKeys[] = {
    {1, CarKeys::VolumeUp},      {2, CarKeys::VolumeDown},      {3, CarKeys::MediaNext},
    {4, CarKeys::MediaPrevious}, {7, CarKeys::ModeSwitch},      {8, CarKeys::VoiceDial},
    {9, CarKeys::Call},          {10, CarKeys::Hangup},         {19, CarKeys::MediaPrevious},
    {20, CarKeys::MediaNext},    {21, CarKeys::Back},           {22, CarKeys::Enter},
    {0x81, CarKeys::VolumeUp},   {0x82, CarKeys::VolumeDown},   {0x83, CarKeys::MediaPrevious},
    {0x84, CarKeys::MediaNext},  {0x85, CarKeys::AudioForward}, {0x86, CarKeys::AudioRewind},
    {0x88, CarKeys::ModeSwitch},
};

const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
KeySource wheelKeys(KeyGroups);

// Distance level of the box (1 nearest) and radar level of the unit; any other level is no obstacle.
const ByteMapping RadarLevels[] = {{1, 1}, {2, 2}, {3, 4}, {4, 5}, {5, 6}};
// In front only the outer sensors exist.
const int FrontBytes[] = {0, RadarGroup::NoSensor, RadarGroup::NoSensor, 3};
RadarGroup frontRadar(UnitLink::Radar5019, byteTable(RadarLevels), FrontBytes);
RadarGroup rearRadar(UnitLink::Radar501A, byteTable(RadarLevels), FourRadarBytes);

// Application mode of the unit and source of the car; any other mode is 0x00.
const ModeCode ModeCodes[] = {{2, 0x04}, {3, 0x05},  {4, 0x04},  {5, 0x04},  {6, 0x01}, {7, 0x04},
                              {9, 0x07}, {13, 0x04}, {15, 0x07}, {17, 0x07}, {18, 0x07}};

QString celsiusText(quint8 value)
{
    if (value >= 1 && value <= 0x1D) {
        return TemperatureText::celsius(18.0 + (value - 1) * 0.5);
    }
    if (value >= 0x20 && value <= 0x23) {
        return TemperatureText::celsius(16.0 + (value - 0x20) * 0.5);
    }
    return value == 0x1F ? TemperatureText::high() : QString();
}

QString temperatureText(quint8 value, bool fahrenheit)
{
    if (value == 0) {
        return TemperatureText::low();
    }
    if (!fahrenheit) {
        return celsiusText(value);
    }
    return value == 0xFF ? TemperatureText::high() : TemperatureText::fahrenheit(value);
}

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseToyota, CanBus_Raise_Toyota)

CanBus_Raise_Toyota::CanBus_Raise_Toyota()
    : m_enableOemSound(OrbApplication::getOrbProductValue(QLatin1String("EnableOEMSound"), 0).toUInt() != 0)
{
    setKeys(&wheelKeys);
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(16.0, 29.5);
    setReadyTimer();
}

void CanBus_Raise_Toyota::onInited()
{
    sendReady(3);
    AppendAppTitle(View360App, QLatin1String("360"));
    periodicTimer()->stop();
    startOEMSound();
    reportModes(ModeCommand, ModeDataLength, ModeCodes);
}

void CanBus_Raise_Toyota::greetBox()
{
    sendReady(3);
    startOEMSound();
}

RaiseAdapter::CommandTable CanBus_Raise_Toyota::commands() const
{
    typedef CanBus_Raise_Toyota Car;
    static const Command rows[] = {
        {0x1D, 4, &frontRadar},
        {0x1E, 4, &rearRadar},
        {0x20, 2, handler(&Car::onSteeringWheelKey)},
        {0x24, 0, handler(&Car::onStatus)},
        // QUIRK toyota-climate-n4: four data bytes are enough, and what is read as d[4] is then the checksum.
        {0x28, 4, handler(&Car::onClimate)},
        {0x29, 2, handler(&Car::onSteeringAngle)},
        {0x30, 0, handler(&Car::onVersion)},
        {0x32, 0, handler(&Car::on360View)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

void CanBus_Raise_Toyota::onClimate(const PackageView &d)
{
    // d[0]: 7 on, 6 A/C, 5 recirculation, 4 auto (weak), 3 auto, 2 unknown, 1 defrosting, 0 unknown
    m_climate.setAirConditionEnable(d.bit(0, 7));
    m_climate.setACEnable(d.bit(0, 6));
    m_climate.setAutoModeEnable(d.bit(0, 3) || d.bit(0, 4));
    // d[1]: 7 windscreen, 6 face, 5 feet, 4 show the display, 3 unknown, 2..0 fan speed
    m_climate.setWindDirectEx(d.bits(1, 7, 5));
    m_climate.setAirVolume(d.bits(1, 2, 0));
    // d[4]: 7..6 unknown, 5 circulation chosen by the car, 4..1 unknown, 0 Fahrenheit
    m_climate.setCirculationMode(d.bit(4, 5) ? 0xFF : d.bit(0, 5));
    if (d.bit(0, 1)) {
        m_climate.setDefrostingMode();
    }
    // d[2] left, d[3] right temperature
    const bool fahrenheit = d.bit(4, 0);
    m_climate.setTemperature(temperatureText(d.d(2), fahrenheit), temperatureText(d.d(3), fahrenheit));

    // d[4] alone does not bring the display up.
    const QByteArray climate = d.bytes(0, 4);
    if (d.bit(1, 4) || climate != m_lastClimate) {
        m_lastClimate = climate;
        m_climate.setVisible(true);
    }
}

void CanBus_Raise_Toyota::onSteeringAngle(const PackageView &d)
{
    // d[0] low byte; d[1]: 7..4 not used, 3 direction and highest bit, 2..0 high bits
    const int raw = d.d(0) | d.bits(1, 3, 0) << 8;
    // QUIRK toyota-angle-sign: either direction gives a negative angle, since the box counts on past the
    // middle: 380 to the right comes as 4096 - 380 with the direction bit set, and is reported as -391 degrees.
    const float angle = d.bit(1, 3) ? (float(-raw) / 380.0f) * 40.0f : (float(raw) / 380.0f) * -40.0f;
    UnitLink::sendSteeringAngle(angle);
}

void CanBus_Raise_Toyota::on360View(const PackageView &d)
{
    // d[0]: 7..4 unknown, 3 shown, 2 valid, 1..0 unknown
    if (!d.bit(0, 2)) {
        return;
    }
    if (d.bit(0, 3)) {
        UnitLink::requestApp(UnitLink::ShowAppEvent, 0, View360App);
    } else {
        UnitLink::requestApp(UnitLink::ReturnEvent);
    }
}

// ---------------------------------------------------------------------------------------------- sent

void CanBus_Raise_Toyota::startOEMSound()
{
    if (m_enableOemSound) {
        enableOEMSound(true);
    }
}

void CanBus_Raise_Toyota::enableOEMSound(bool on)
{
    if (!on) {
        writePair(OemSoundCommand, 0x08, 0x00);
        return;
    }
    writePair(OemSoundCommand, 0x08, 0x01);
    writePair(OemSoundCommand, 0x09, 0x01);
    writePair(OemSoundCommand, 0x07, 0x2A);
}
