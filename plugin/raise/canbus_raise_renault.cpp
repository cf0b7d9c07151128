// Raise decoder box in a Renault, CAN-bus type 14.

#include "canbus_raise_renault.h"

#include "adapterfactory.h"
#include "carvalues.h"
#include "keysource.h"
#include "radargroup.h"
#include "temperaturetext.h"
#include "unitlink.h"

namespace {

// What the unit sends.
enum SentCommand { SettingCommand = 0x83, SourceCommand = 0xC0 };
const int SourceDataLength = 1;

const CarKeys::Mapping WheelKeys[] = {
    {0x01, CarKeys::VolumeUp},   {0x02, CarKeys::VolumeDown}, {0x06, CarKeys::VolumeMute},
    {0x07, CarKeys::ModeSwitch}, {0x09, CarKeys::Call},       {0x0A, CarKeys::Hangup},
    {0x12, CarKeys::VoiceDial},  {0x15, CarKeys::Back},       {0x16, CarKeys::Enter},
};
const CarKeys::Mapping Roller[] = {{0x03, CarKeys::MediaPrevious}, {0x04, CarKeys::MediaNext}};
const KeyGroup KeyGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1},
                              {CarKeys::keyTable(Roller), KeyGroup::Knobs, 0}};
const KeyRelease Release = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};
KeySource keys(KeyGroups, Release);

RadarGroup rearRadar(UnitLink::Radar501A, byteTable(FarFirstRadarLevels), FourRadarBytes);
RadarGroup frontRadar(UnitLink::Radar5019, byteTable(FarFirstRadarLevels), FourRadarBytes);

// Application mode of the unit, and source of the car with what is known of it: no tracks, no frequency. A source
// without further data, and off for any other mode, has one byte.
const ModeCode ModeCodes[] = {{2, 8, 0, 8}, {3, 0x0B, 0xFF, 8, 0xFF},
                              {4, 8, 0, 8}, {5, 8, 0, 8},
                              {6, 1, 0, 5}, {7, 8, 0, 8},
                              {9, 7},       {13, 8, 0, 8},
                              {15, 7},      {17, 7},
                              {18, 7}};

const quint8 LowestTemperature = 0x23; // 17.5 degrees
const quint8 HighestTemperature = 0x3D;

QString temperatureText(quint8 value)
{
    if (value == 0xFE) {
        return TemperatureText::low();
    }
    if (value == 0xFF) {
        return TemperatureText::high();
    }
    const bool isDegrees = value >= LowestTemperature && value <= HighestTemperature;
    return isDegrees ? TemperatureText::celsius(value / 2.0) : QString();
}

QVariant tenths(int value, int invalid)
{
    return value == invalid ? QVariant() : QVariant(value / 10.0);
}

const CodeWord ParkingWays[] = {{1, "parallel"}, {2, "perpendicular"}, {3, "angled"}};
const CodeWord Ionisers[] = {{0, "off"}, {1, "relax"}, {2, "clean"}};
const CodeWord Volumes[] = {{1, "1"}, {2, "2"}, {3, "3"}};

const CarValue Values[] = {
    CarValue::flag(0x21, "climate.dual", 0, 2),
    CarValue::flag(0x21, "climate.rear_defrost", 0, 1),
    CarValue::flag(0x21, "climate.eco", 1, 7),
    CarValue::flag(0x21, "climate.soft", 1, 6),
    CarValue::flag(0x21, "climate.fast", 1, 5),
    CarValue::flag(0x28, "lids.boot", 0, 3),
    CarValue::flag(0x28, "lids.bonnet", 0, 2),
    CarValue::number(0x28, "outside.temperature", 1, 0, 0xFD, 1, -40),
    CarValue::bits(0x71, "options.parking.way", 0, 5, 4, ParkingWays),
    CarValue::flag(0x71, "options.assist.blind_spot", 0, 3),
    CarValue::flag(0x71, "options.parking.side", 0, 2),
    CarValue::flag(0x71, "options.parking.front", 0, 1),
    CarValue::flag(0x71, "options.parking.rear", 0, 0),
    CarValue::flag(0x71, "options.climate.fresh_air_cycle", 1, 3),
    CarValue::flag(0x71, "options.climate.ioniser_at_start", 1, 2),
    CarValue::bits(0x71, "options.climate.ioniser_mode", 1, 1, 0, Ionisers),
    CarValue::flag(0x71, "options.display.eco", 2, 7),
    CarValue::flag(0x71, "options.wipers.rear_reversing", 2, 6),
    CarValue::flag(0x71, "options.light.cabin", 2, 5),
    CarValue::flag(0x71, "options.light.welcome", 2, 4),
    CarValue::flag(0x71, "options.opening.speed_lock", 2, 2),
    CarValue::bits(0x71, "options.display.indicator_volume", 2, 1, 0, Volumes),
    CarValue::number(0x71, "options.display.style", 5, 1, 4),
    CarValue::number(0x71, "options.display.night_brightness", 6, 0, 100),
    CarValue::words(0x91, "call.sos", 0, OffOn),
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseRenault, CanBus_Raise_Renault)

CanBus_Raise_Renault::CanBus_Raise_Renault()
{
    setKeys(&keys);
    setValues(Values);
    setSettingCommand(SettingCommand);
    handOnUnknownPackages();
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(17.5, 30.5);
}

void CanBus_Raise_Renault::onInited()
{
    RaiseSyncAdapter::onInited();
    reportModes(SourceCommand, SourceDataLength, ModeCodes);
}

RaiseAdapter::CommandTable CanBus_Raise_Renault::commands() const
{
    typedef CanBus_Raise_Renault Car;
    static const Command rows[] = {
        {0x20, 2, handler(&Car::onSteeringWheelKey)},
        {0x21, 5, handler(&Car::onClimate)},
        {0x22, 4, &rearRadar},
        {0x23, 4, &frontRadar},
        {0x28, 1, handler(&Car::onStatus)},
        {0x30, 2, handler(&Car::onSignAndSizeSteeringAngle)},
        {0x71, 7, handler(&Car::onScreenData)},
        {0x7F, 0, handler(&Car::onVersion)},
        {0x81, 7, handler(&Car::onTrip)},
        {0x91, 1, handler(&Car::onScreenData)},
    };
    return commandTable(rows);
}

void CanBus_Raise_Renault::onClimate(const PackageView &d)
{
    // d[2] fan speed 0 to 8; without the fan the climate is off
    m_climate.setAirConditionEnable(d.d(2) != 0);
    // d[0]: 7 circulation chosen by the car, 6 A/C, 5..4 circulation, 3 auto, 2 two zones, 1 rear defrosting,
    // 0 front defrosting
    m_climate.setACEnable(d.bit(0, 6));
    m_climate.setAutoModeEnable(d.bit(0, 3));
    // d[1]: 7 eco, 6 soft, 5 fast, 4..3 unused, 2 feet, 1 face, 0 windscreen
    m_climate.setWindDirectEx(d.bit(1, 0) << 2 | d.bit(1, 1) << 1 | d.bit(1, 2));
    m_climate.setAirVolume(d.d(2));
    const int circulation = d.bits(0, 5, 4); // 0 fresh air, 1 recirculation, others are reserved
    if (d.bit(0, 7)) {
        m_climate.setCirculationMode(0xFF);
    } else if (circulation <= 1) {
        m_climate.setCirculationMode(circulation);
    }
    if (d.bit(0, 0)) {
        m_climate.setDefrostingMode();
    }
    // d[3] left, d[4] right temperature
    m_climate.setTemperature(temperatureText(d.d(3)), temperatureText(d.d(4)));
    // The box repeats its climate all the time.
    m_climateNews.show(&m_climate, d.bytes(0, 5), d.d(2) != 0);
}

void CanBus_Raise_Renault::onTrip(const PackageView &d)
{
    // High byte first, in tenths: d[0], d[1] l/100 km; d[2], d[3] km/h; d[4], d[5] km, d[6]: 7..1 unused, 0 their
    // highest bit; d[7] unused
    onScreenData(d);
    tellValue("trip.average.consumption", tenths(d.u16be(0), 0xFFFF));
    tellValue("trip.average.speed", tenths(d.u16be(2), 0xFFFF));
    tellValue("trip.average.distance", tenths(d.bit(6, 0) << 16 | d.u16be(4), 0x1FFFF));
}
