// Raise decoder box in a Volkswagen, CAN-bus type 3.

#include "canbus_raise_volkswagen.h"

#include "adapterfactory.h"
#include "keysource.h"
#include "temperaturetext.h"
#include "unitlink.h"
#include "volkswagenwindow.h"
#include "vwcommands.h"

#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"

#include <cmath>

namespace {

const char NormalIcon[] = ":/launcher/carinfo_di_n.png";
const char HighlightedIcon[] = ":/launcher/carinfo_di_h.png";

const CarKeys::Mapping WheelKeys[] = {
    {1, CarKeys::VolumeUp},  {2, CarKeys::VolumeDown}, {3, CarKeys::MediaNext},  {4, CarKeys::MediaPrevious},
    {5, CarKeys::Bluetooth}, {6, CarKeys::VolumeMute}, {7, CarKeys::ModeSwitch}, {8, CarKeys::VoiceDial},
};
const KeyGroup WheelGroups[] = {{CarKeys::keyTable(WheelKeys), KeyGroup::Keys, 1}};
const KeyRelease WheelRelease = {KeyRelease::ByCode, 0, 0};
KeySource wheelKeys(WheelGroups, WheelRelease);

// The two seek keys stay down until the box reports FunctionKeyReleased; the others are taps.
const CarKeys::Mapping SeekKeys[] = {{3, CarKeys::AudioForward}, {4, CarKeys::AudioRewind}};
const CarKeys::Mapping TapKeys[] = {
    {1, CarKeys::MediaPrevious}, {2, CarKeys::MediaNext}, {17, CarKeys::Call}, {18, CarKeys::Hangup}};
const quint8 FunctionKeyReleased = 5;
const KeyGroup FunctionGroups[] = {{CarKeys::keyTable(SeekKeys), KeyGroup::Keys, 1},
                                   {CarKeys::keyTable(TapKeys), KeyGroup::Taps, 1}};
const KeyRelease FunctionRelease = {KeyRelease::ByCode, FunctionKeyReleased, 0};
KeySource functionKeys(FunctionGroups, FunctionRelease);

bool isTapKey(unsigned int key)
{
    return key != CarKeys::NoKey && key != CarKeys::AudioForward && key != CarKeys::AudioRewind;
}

// The outer sensors of both groups count in steps of 10, the inner ones in steps of 27.5 (0x22) and 20
// (0x23).
const float OuterScale = 0.1f;
const float InnerScale22 = 0.036363635f;
const float InnerScale23 = 0.05f;

char radarLevel(quint8 distance, float scale)
{
    return char(std::ceil(float(distance) * scale));
}

void sendRadar(UnitLink::CarData what, const PackageView &d, float innerScale)
{
    const char levels[] = {radarLevel(d.d(0), OuterScale), radarLevel(d.d(1), innerScale),
                           radarLevel(d.d(2), innerScale), radarLevel(d.d(3), OuterScale)};
    UnitLink::sendRadarLevels(what, QByteArray(levels, sizeof levels));
}

QString temperatureText(quint8 value, bool fahrenheit)
{
    if (value == 0) {
        return TemperatureText::low();
    }
    if (value > 30) {
        return TemperatureText::high();
    }
    return fahrenheit ? TemperatureText::fahrenheit(value + 59)
                      : TemperatureText::celsius(16.0 + (value - 1) * 0.5);
}

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseVolkswagen, CanBus_Raise_Volkswagen)

QPointer<VolkswagenWindow> CanBus_Raise_Volkswagen::s_window;

CanBus_Raise_Volkswagen::CanBus_Raise_Volkswagen()
{
    setSettingCommand(Vw::WriteSettingCommand);
    setRequestCommand(Vw::DataRequestCommand);
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(16.0, 29.5);
}

void CanBus_Raise_Volkswagen::onInited()
{
    AppendAppTitle(CarInfosApp, tr("Car infos"));

    OrbEvent icons(400, 10, UnitLink::AppIconEvent);
    icons.setParams(CarInfosApp, 0);
    icons.setStringParam(
        QString::fromLatin1("%1,%2").arg(QLatin1String(NormalIcon), QLatin1String(HighlightedIcon)));
    OrbApplication::instance()->dispatchOrbEvent(&icons);

    greetBox();
}

void CanBus_Raise_Volkswagen::greetBox()
{
    const unsigned char hello[] = {0x00};
    writeCanBusData(Vw::ReadyCommand, hello, sizeof hello);
    sendReady(1);
}

RaiseAdapter::CommandTable CanBus_Raise_Volkswagen::commands() const
{
    typedef CanBus_Raise_Volkswagen Car;
    static const Command rows[] = {
        {0x20, 0, handler(&Car::processFKKey20)}, {0x21, 8, handler(&Car::onClimate)},
        {0x22, 6, handler(&Car::onRadar22)},      {0x23, 6, handler(&Car::onRadar23)},
        {0x24, 0, handler(&Car::onStatus)},       {0x2F, 0, handler(&Car::processFKKey2F)},
    };
    return commandTable(rows);
}

// ---------------------------------------------------------------------------------------------- received

// d[0] key, d[1] state: 0 released, 1 pressed, 2 held
void CanBus_Raise_Volkswagen::processFKKey20(const PackageView &d)
{
    wheelKeys.report(d.d(0), d.d(1));
}

void CanBus_Raise_Volkswagen::onClimate(const PackageView &d)
{
    // d[0]: 7 on, 6 A/C, 5 recirculation, 4 auto (weak), 3 auto, 2 unknown, 1 defrosting, 0 unknown
    m_climate.setAirConditionEnable(d.bit(0, 7));
    m_climate.setACEnable(d.bit(0, 6));
    // d[1]: 7 windscreen, 6 face, 5 feet, 4..3 unknown, 2..0 fan speed
    m_climate.setWindDirectEx(d.bits(1, 7, 5));
    const int fanSpeed = d.bits(1, 2, 0);
    m_climate.setAirVolume(fanSpeed);
    // Without the fan the climate is off, whatever the box says about it.
    if (fanSpeed == 0) {
        m_climate.setAirConditionEnable(false);
    }
    // d[4]: 7..6 unknown, 5 circulation chosen by the car, 4..1 unknown, 0 Fahrenheit
    m_climate.setCirculationMode(d.bit(4, 5) ? 0xFF : d.bit(0, 5));
    const bool autoMode = d.bit(0, 3) || d.bit(0, 4);
    m_climate.setAutoModeEnable(autoMode);
    if (autoMode) {
        m_climate.setWindDirect(0xFF);
    }
    if (d.bit(0, 1)) {
        m_climate.setDefrostingMode();
    }
    // d[2] left, d[3] right temperature
    const bool fahrenheit = d.bit(4, 0);
    m_climate.setTemperature(temperatureText(d.d(2), fahrenheit), temperatureText(d.d(3), fahrenheit));
    m_climate.setVisible(true);
}

void CanBus_Raise_Volkswagen::onRadar22(const PackageView &d)
{
    sendRadar(UnitLink::Radar501A, d, InnerScale22);
}

void CanBus_Raise_Volkswagen::onRadar23(const PackageView &d)
{
    sendRadar(UnitLink::Radar5019, d, InnerScale23);
}

// d[0] key
void CanBus_Raise_Volkswagen::processFKKey2F(const PackageView &d)
{
    const unsigned int key = functionKeys.currentKey();
    if (d.d(0) == FunctionKeyReleased && isTapKey(key)) {
        // QUIRK vw-release-taps-again: the release that follows a tapped key is a second tap of it.
        CarKeys::tap(key, 1);
        return;
    }
    functionKeys.report(d.d(0), CarKeys::Pressed);
}

void CanBus_Raise_Volkswagen::onOtherPackage(const PackageView &package)
{
    m_reports.take(package);
    Q_EMIT recvCanDatas(package.command(), package.data(), quint8(package.n()));
}

// ---------------------------------------------------------------------------------------------- sent

void CanBus_Raise_Volkswagen::syncSettingData(unsigned char param)
{
    syncData(Vw::SettingsReply, param);
}

// ---------------------------------------------------------------------------------------------- screens

void CanBus_Raise_Volkswagen::showApp(unsigned int appId)
{
    if (appId != CarInfosApp) {
        return;
    }
    if (!s_window) {
        s_window = new VolkswagenWindow(this);
    }
    s_window->setVisible(true);
}

void CanBus_Raise_Volkswagen::translateApp()
{
    TranslateAppTitle(CarInfosApp, tr("Car infos"));
    Q_EMIT languageChanged();
}
