// XinHang decoder box, CAN-bus type 4.

#include "canbus_xinhang.h"

#include "adapterfactory.h"
#include "carkeys.h"
#include "unitlink.h"
#include "xinhangsettingswindow.h"

#include "gpiooperater.h"
#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"

#include <QDebug>
#include <QTimer>

#include <qextserialport.h>

#include <cmath>
#include <cstring>

namespace {

enum ReceivedCommand { WheelKeyCommand = 0x03, PanelKeyCommand = 0x0B };
enum SentCommand {
    ReadyCommand = 0x81,
    UpdateCommand = 0x86,
    BrightnessCommand = 0x89,
    BoxScreenCommand = 0x8A,
    SettingCommand = 0x8B
};

const int ReadyInterval = 500; // ms
const int MaximumReadyCount = 51;

const float RadarLevels = 6.0f;
const quint8 DefaultRadarMaximum = 7;
const float SteeringUnit = 40.0f;
const int SteeringFactor = 40;

const quint16 PowerLineCarType = 4;
const int PowerLine = 34; // GPIO line that this car type needs low

enum App { OwnApp = 769, BoxApp1 = 770, BoxApp2 = 771, TitleApp = 204 };
enum Notification { BrightnessChanged = 0x5020, Notification5024 = 0x5024 };

// Keys of wheel and panel; 0x1C is not used.
const CarKeys::Mapping Keys[] = {
    {0x01, CarKeys::Up},          {0x02, CarKeys::Down},          {0x03, CarKeys::Launch5},
    {0x04, CarKeys::Launch6},     {0x05, CarKeys::Enter},         {0x06, CarKeys::Back},
    {0x07, CarKeys::Enter},       {0x08, CarKeys::MediaPrevious}, {0x09, CarKeys::MediaNext},
    {0x0A, CarKeys::AudioRewind}, {0x0B, CarKeys::AudioForward},  {0x0C, CarKeys::VolumeDown},
    {0x0D, CarKeys::VolumeUp},    {0x0E, CarKeys::VolumeMute},    {0x0F, CarKeys::Call},
    {0x10, CarKeys::Hangup},      {0x11, CarKeys::ModeSwitch},    {0x12, CarKeys::Home},
    {0x13, CarKeys::VoiceDial},   {0x14, CarKeys::VoiceDial},     {0x15, CarKeys::VoiceDial},
    {0x16, CarKeys::Home},        {0x17, CarKeys::Launch0},       {0x18, CarKeys::Bluetooth},
    {0x19, CarKeys::Video},       {0x1A, CarKeys::VolumeMute},    {0x1B, CarKeys::Music},
    {0x1D, CarKeys::Digit1},      {0x1E, CarKeys::Digit2},        {0x1F, CarKeys::Digit3},
    {0x20, CarKeys::Digit4},      {0x21, CarKeys::Digit5},        {0x22, CarKeys::Digit6},
    {0xFE, CarKeys::Left},        {0xFF, CarKeys::Right},
};
const unsigned int UnknownKey = 0;

const CarKeys::Mapping CursorKeys[] = {
    {0, CarKeys::Up}, {1, CarKeys::Down}, {2, CarKeys::Left}, {3, CarKeys::Right}};

// Touch state of the box: released, pressed, moved.
const QEvent::Type TouchTypes[] = {QEvent::MouseButtonRelease, QEvent::MouseButtonPress, QEvent::MouseMove};
const unsigned int TouchStates = sizeof TouchTypes / sizeof TouchTypes[0];

} // namespace

CANBUS_ADAPTER(CanBusTypeXinHang, CanBus_XinHang)

quint8 CanBus_XinHang::s_lastIllumination = 0;
quint8 CanBus_XinHang::s_lastDoors = 0;
int CanBus_XinHang::s_readyCount = 0;

CanBus_XinHang::CanBus_XinHang(QObject *parent)
    : FramedAdapter<XinHangFrame>(parent)
    , m_carType(0)
    , m_readyTimer(new QTimer(this))
    , m_display(*this, this)
    , m_keyFilter(*this, m_display)
    , m_settings(*this, m_display)
    , m_updater(*this, this)
    , m_settingsWindow(new XinHangSettingsWindow(m_settings))
{
    memset(m_radarMaximums, DefaultRadarMaximum, sizeof m_radarMaximums);
    m_readyTimer->setObjectName(QLatin1String("sendReadyTimer"));
    m_readyTimer->setInterval(ReadyInterval);
    connect(m_readyTimer, SIGNAL(timeout()), this, SLOT(onSendReadyTimeout()));

    OrbApplication *const application = OrbApplication::instance();
    application->addKeyFilter(this);
    connect(application, SIGNAL(diskDeviceStatusChange(int, int)), this, SLOT(onDiskStatusChange(int, int)));
    connect(application, SIGNAL(modeAppChanged(uint, uint)), this, SLOT(onModeAppChange(uint, uint)));
}

CanBus_XinHang::~CanBus_XinHang()
{
    if (OrbApplication::instance()) {
        OrbApplication::instance()->removeKeyFilter(this);
    }
    delete m_settingsWindow.data();
}

void CanBus_XinHang::onInited()
{
    m_settings.appendConfiguredItems();
    if (m_settingsWindow) {
        m_settingsWindow->resetListTexts();
    }
    greetBox();
}

void CanBus_XinHang::greetBox()
{
    m_readyTimer->start();
}

// ---------------------------------------------------------------------------------------------- framing

quint8 CanBus_XinHang::makeMcuProtocolCheckSum(const QByteArray &bytes, int start, int count)
{
    return getPackageCheckSum(bytes, start, count);
}

QByteArray CanBus_XinHang::makeMcuProtocol(quint8 command, const unsigned char *data, int length)
{
    return Framing::makePackage<XinHangFrame>(command, data, length);
}

bool CanBus_XinHang::getPortSettings(PortSettings &settings)
{
    setLine(settings, BAUD115200, 500);
    return true;
}

// ---------------------------------------------------------------------------------------------- received

CanBus_XinHang::CommandTable CanBus_XinHang::commands() const
{
    typedef CanBus_XinHang Box;
    static const Command rows[] = {
        {0x01, 0, handler(&Box::onStatus)},         {0x02, 0, handler(&Box::onRadarAndSteering)},
        {WheelKeyCommand, 0, handler(&Box::onKey)}, {0x04, 0, handler(&Box::onTouch)},
        {0x05, 0, handler(&Box::onVersion)},        {0x08, 0, handler(&Box::onUpdate)},
        {0x09, 0, handler(&Box::onRadarMaximums)},  {0x0A, 2, handler(&Box::onCarType)},
        {PanelKeyCommand, 0, handler(&Box::onKey)}, {0x0C, 0, handler(&Box::onAppRequest)},
        {0x87, 0, handler(&Box::onCursorKey)},
    };
    return commandTable(rows);
}

void CanBus_XinHang::onRecvMcuProtocol(const QByteArray &byteArray)
{
    dispatch(viewOf(byteArray));
}

void CanBus_XinHang::onStatus(const PackageView &d)
{
    const char bytes[] = {char(d.d(0)), char(d.d(1)), char(d.d(2)), char(d.d(3))};
    const QByteArray status(bytes, sizeof bytes);
    if (status == m_lastStatus) {
        return;
    }
    m_lastStatus = status;

    // d[0] display and cameras
    m_display.onStatus(d);
    // d[2] illumination, 0 off
    if (d.d(2) != s_lastIllumination) {
        s_lastIllumination = d.d(2);
        UnitLink::sendIllumination(d.d(2) != 0);
    }
    // d[1]: 7..4 unknown, 3..0 doors
    if (d.d(1) != s_lastDoors) {
        s_lastDoors = d.d(1);
        UnitLink::sendCarData(UnitLink::DoorStatus, static_cast<unsigned int>(d.bits(1, 3, 0)));
    }
    // d[3] unknown
}

void CanBus_XinHang::onRadarAndSteering(const PackageView &d)
{
    // d[1..8] radar levels
    QByteArray levels(RadarSensors, '\0');
    for (int i = 0; i < RadarSensors; ++i) {
        levels[i] = char(transRadarLevel(i, d.d(1 + i)));
    }
    UnitLink::sendRadarLevels(UnitLink::Radar5018, levels);
    // d[0]: 7 positive, 6..0 magnitude
    const float angle = float(d.bits(0, 6, 0)) / SteeringUnit * SteeringFactor;
    UnitLink::sendSteeringAngle(d.bit(0, 7) ? angle : -angle);
}

quint8 CanBus_XinHang::transRadarLevel(int sensor, quint8 raw) const
{
    if (sensor < 0 || sensor >= RadarSensors || raw == 0) {
        return 0;
    }
    // A maximum of 0 gives infinity, which is converted like any other level that is too large.
    const float share = float(raw) / float(m_radarMaximums[sensor]);
    return quint8(UnitLink::truncated(std::ceil(share * RadarLevels)));
}

// d[0] state: 0 released, 1 pressed, 2 held; d[1] key
void CanBus_XinHang::onKey(const PackageView &d)
{
    const int state = d.d(0);
    const unsigned int key = CarKeys::keyFor(Keys, d.d(1), UnknownKey);
    qDebug() << "recv key:" << d.d(1) << key << state << d.command();
    if (key == UnknownKey || state > CarKeys::Held) {
        return;
    }
    const bool pressed = state != CarKeys::Released;
    const bool held = state == CarKeys::Held;
    const bool consumed = d.command() == PanelKeyCommand ? m_keyFilter.filterPanelKey(key, pressed, held)
                                                         : filterKey(key, pressed, held);
    if (!consumed) {
        CarKeys::simulate(key, state, 0);
    }
}

// d[0] state, d[1..2] x, d[3..4] y
void CanBus_XinHang::onTouch(const PackageView &d)
{
    if (d.d(0) < TouchStates) {
        OrbApplication::simulateMouse(TouchTypes[d.d(0)], d.u16be(1), d.u16be(3));
    }
}

void CanBus_XinHang::onVersion(const PackageView &d)
{
    UnitLink::publishVersion("xh_" + QByteArray::number(m_carType) + "_" + d.bytes());
}

void CanBus_XinHang::onUpdate(const PackageView &d)
{
    m_updater.onBoxMessage(d);
}

// d[0..7] highest level of each radar sensor
void CanBus_XinHang::onRadarMaximums(const PackageView &d)
{
    QByteArray text;
    for (int i = 0; i < RadarSensors; ++i) {
        m_radarMaximums[i] = d.d(i);
        text += QByteArray(1, char(d.d(i))).toHex().toUpper();
    }
    qDebug() << "Recv Radar Max Levels:" << text.constData();
}

// d[0..1] car type
void CanBus_XinHang::onCarType(const PackageView &d)
{
    m_readyTimer->stop();
    m_carType = d.u16be(0);
    m_settings.onSyncSettingDatas();
    if (m_carType == PowerLineCarType) {
        GPIOOperater line(PowerLine);
        line.setDirection(QLatin1String("out"));
        line.setValue(0);
    }
    m_updater.setCarType(m_carType);
    qDebug() << "Recv Xinghang Decoder Car Type:" << m_carType;
}

// d[0]: 0 back to the unit's screen, 1 and 2 a screen of the box
void CanBus_XinHang::onAppRequest(const PackageView &d)
{
    switch (d.d(0)) {
    case 0:
        UnitLink::requestApp(UnitLink::ReturnEvent);
        break;
    case 1:
        UnitLink::requestApp(UnitLink::ShowAppEvent, 2, BoxApp1);
        break;
    case 2:
        UnitLink::requestApp(UnitLink::ShowAppEvent, 1, BoxApp2);
        break;
    default:
        break;
    }
}

void CanBus_XinHang::onCursorKey(const PackageView &d)
{
    const unsigned int key = CarKeys::keyFor(CursorKeys, d.d(0), UnknownKey);
    if (key != UnknownKey) {
        CarKeys::tap(key);
    }
}

// ---------------------------------------------------------------------------------------------- sent

void CanBus_XinHang::send(quint8 command, const QByteArray &data)
{
    const auto *const bytes = reinterpret_cast<const unsigned char *>(data.constData());
    writeOrKeep(makeMcuProtocol(command, bytes, int(data.size())), kindSize(command));
}

// Bytes of a package that tell what it is about.
int CanBus_XinHang::kindSize(quint8 command)
{
    switch (command) {
    case ReadyCommand:
    case UpdateCommand:
        return 0; // neither the greeting nor an update goes on where it was
    case SettingCommand:
        return XinHangFrame::DataAt + 1;
    default:
        return XinHangFrame::DataAt;
    }
}

void CanBus_XinHang::onSendReadyTimeout()
{
    if (isLineLost()) {
        return; // nobody hears it, so it does not count
    }
    send(ReadyCommand, QByteArray(2, 0x01));
    // QUIRK xinhang-ready-count: the count is the process's and never starts again, so that a unit without
    // its box falls silent for good after 51 sendings.
    if (++s_readyCount >= MaximumReadyCount) {
        m_readyTimer->stop();
    }
}

bool CanBus_XinHang::filterKey(unsigned int key, bool pressed, bool held)
{
    return m_keyFilter.filterKey(key, pressed, held);
}

void CanBus_XinHang::showApp(unsigned int appId)
{
    switch (appId) {
    case OwnApp:
        switchDisplay(XinHangDisplay::FactoryScreen, true);
        break;
    case BoxApp1:
        send(BoxScreenCommand, QByteArray(1, 0x01));
        UnitLink::requestApp(UnitLink::ShowAppEvent, 2, BoxApp1);
        break;
    case BoxApp2:
        send(BoxScreenCommand, QByteArray(1, 0x02));
        UnitLink::requestApp(UnitLink::ShowAppEvent, 1, BoxApp2);
        break;
    default:
        break;
    }
}

void CanBus_XinHang::translateApp()
{
    TranslateAppTitle(OwnApp, AppTitleFromAppId(TitleApp));
}

void CanBus_XinHang::orbAppStateChange(unsigned long state, unsigned long mask)
{
    m_display.orbAppStateChange(state, mask);
}

void CanBus_XinHang::orbAppNotify(OrbEvent *event)
{
    if (!event) {
        return;
    }
    if (event->getParam() == BrightnessChanged) {
        send(BrightnessCommand, QByteArray(1, char(event->getParam2())));
    } else if (event->getParam() == Notification5024 && event->getParam2() != 1) {
        send(BoxScreenCommand, QByteArray(1, 0x00));
    }
}
