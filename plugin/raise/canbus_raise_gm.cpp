// Raise decoder box in a GM, CAN-bus type 10.

#include "canbus_raise_gm.h"

#include "adapterfactory.h"
#include "keysource.h"
#include "radargroup.h"
#include "temperaturetext.h"
#include "unitlink.h"

namespace {

const CarKeys::Mapping WheelKeys[] = {
    {1, CarKeys::VolumeUp},   {2, CarKeys::VolumeDown}, {3, CarKeys::MediaPrevious}, {4, CarKeys::MediaNext},
    {5, CarKeys::ModeSwitch}, {6, CarKeys::PhoneKey},   {7, CarKeys::VolumeMute},
};

const CarKeys::Mapping PanelKeys[] = {
    {1, CarKeys::PowerOff},
    {2, CarKeys::MediaPrevious},
    {3, CarKeys::MediaNext},
    {4, CarKeys::Launch2},
    {5, CarKeys::Launch3},
    {6, CarKeys::Back},
    {7, CarKeys::Launch0},
    {8, CarKeys::Launch4},
    {9, CarKeys::VolumeMute},
    {22, CarKeys::Enter},
    {27, CarKeys::MediaTogglePlayPause},
    {28, CarKeys::Up},
    {29, CarKeys::Down},
    {52, CarKeys::MediaNext},
    {53, CarKeys::MediaPrevious},
    {64, CarKeys::Launch4},
    {80, CarKeys::Home},
    {81, CarKeys::ModeSwitch},
    {83, CarKeys::Home},
    {84, CarKeys::Music},
};

const CarKeys::Mapping PanelKnobs[] = {
    {23, CarKeys::VolumeUp},
    {24, CarKeys::VolumeDown},
    {25, CarKeys::Right},
    {26, CarKeys::Left},
};

const KeyGroup WheelGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
const KeyGroup PanelGroups[] = {{CarKeys::keyTable(PanelKeys), KeyGroup::Keys, 0},
                                {CarKeys::keyTable(PanelKnobs), KeyGroup::Knobs, 0}};
KeySource wheelKeys(WheelGroups);
KeySource panelKeys(PanelGroups);

// The box's distance levels are the unit's, but for what lies beyond.
const ByteMapping RadarLevels[] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
const quint8 FarthestLevel = 6;
RadarGroup frontRadar(UnitLink::Radar5019, byteTable(RadarLevels, FarthestLevel), FourRadarBytes);
RadarGroup rearRadar(UnitLink::Radar501A, byteTable(RadarLevels, FarthestLevel), FourRadarBytes);

// Air distribution of the box and of the dialog (4 windscreen, 2 face, 1 feet); any other code is no news.
const quint8 DefrostingCode = 2;
const quint8 NoDirection = 0xFF;
const ByteMapping WindDirections[] = {{1, 0}, {3, 1}, {4, 3}, {5, 2}, {6, 6}, {7, 4}, {8, 5}, {9, 7}};

// What lies beside the scale of 17.0 to 30.5, out of order. In half degrees.
const ByteMapping SpecialTemperatures[] = {{0x1D, 32}, {0x1F, 33}, {0x20, 30}, {0x21, 31}, {0x22, 62}};

QString temperatureText(quint8 value)
{
    if (value == 0) {
        return TemperatureText::low();
    }
    if (value == 0x1E) {
        return TemperatureText::high();
    }
    if (value <= 0x1C) {
        return TemperatureText::celsius(17.0 + (value - 1) * 0.5);
    }
    const quint8 halfDegrees = mapByte(SpecialTemperatures, value);
    return halfDegrees ? TemperatureText::celsius(halfDegrees / 2.0) : QString::fromUtf8("--°C");
}

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseGm, CanBus_Raise_GM)

CanBus_Raise_GM::CanBus_Raise_GM() : RaisePanelAdapter(&wheelKeys, &panelKeys) {}

RaiseAdapter::CommandTable CanBus_Raise_GM::commands() const
{
    typedef CanBus_Raise_GM Car;
    static const Command rows[] = {
        {0x01, 2, handler(&Car::onSteeringWheelKey)},
        {0x02, 2, handler(&Car::onPanelKey)},
        // QUIRK gm-climate-n6: six data bytes are enough, and what is read as d[6] is then the checksum.
        {0x03, 6, handler(&Car::onClimate)},
        {0x22, 4, &rearRadar},
        {0x23, 4, &frontRadar},
        {0x24, 0, handler(&Car::onStatus)},
        {0x26, 2, handler(&Car::onSteeringAngle)},
        {0x30, 0, handler(&Car::onVersion)},
    };
    return commandTable(rows);
}

void CanBus_Raise_GM::onClimate(const PackageView &d)
{
    // d[0]: 7 on, 6 A/C, 5 recirculation, 4 unknown, 3 circulation chosen by the car, 2..0 fan speed
    m_climate.setAirConditionEnable(d.bit(0, 7));
    m_climate.setACEnable(d.bit(0, 6));
    // d[1]: 7..4 unknown, 3..0 air distribution
    setWindDirection(d.bits(1, 3, 0));
    m_climate.setCirculationMode(d.bit(0, 3) ? 0xFF : d.bit(0, 5));
    // d[6]: 7..2 unknown, 1 auto, 0 fan speed chosen by the car; d[4], d[5] unknown
    const bool automatic = d.bit(6, 1);
    m_climate.setAutoModeEnable(automatic);
    if (!automatic) {
        m_climate.setAirVolume(d.bit(6, 0) ? 0xFF : d.bits(0, 2, 0));
    }
    // d[2] left, d[3] right temperature
    m_climate.setTemperature(temperatureText(d.d(2)), temperatureText(d.d(3)));
    m_climate.setVisible(true);
}

void CanBus_Raise_GM::setWindDirection(int code)
{
    const quint8 direction = mapByte(WindDirections, static_cast<unsigned int>(code), NoDirection);
    if (code == DefrostingCode) {
        m_climate.setDefrostingMode();
    } else if (direction != NoDirection) {
        m_climate.setWindDirectEx(direction);
    }
}

void CanBus_Raise_GM::onSteeringAngle(const PackageView &d)
{
    // d[0], d[1]: signed, sixteenths of a degree at the wheel; the rest of the division is cut toward zero
    const int wheelDegrees = d.s16le(0) / 16;
    UnitLink::sendSteeringAngle(float(wheelDegrees) / 540.0f * 40.0f);
}
