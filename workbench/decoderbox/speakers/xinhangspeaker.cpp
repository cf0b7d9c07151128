#include "xinhangspeaker.h"

#include <cmath>

namespace {

const quint8 WheelKey = 0x03;
const quint8 PanelKey = 0x0B;
const quint8 CursorKey = 0x87;
const quint8 ApplicationRequest = 0x0C;
const quint8 FirmwareAnswer = 0x08;

const int VersionLength = 32;
const int RadarSensors = 8;
const int FarthestLevel = 6;

struct KeyRow
{
    quint8 code;
    const char *name;
};

// The steering wheel and the panel share one set of codes.
const KeyRow KeyRows[] = {
    {0x01, "up"},      {0x02, "down"},        {0x03, "key_03"},    {0x04, "key_04"},  {0x05, "enter"},
    {0x06, "back"},    {0x07, "enter_2"},     {0x08, "previous"},  {0x09, "next"},    {0x0A, "rewind"},
    {0x0B, "forward"}, {0x0C, "volume_down"}, {0x0D, "volume_up"}, {0x0E, "mute"},    {0x0F, "call"},
    {0x10, "hangup"},  {0x11, "mode"},        {0x12, "home"},      {0x13, "voice"},   {0x14, "voice_2"},
    {0x15, "voice_3"}, {0x16, "home_2"},      {0x17, "key_17"},    {0x18, "key_18"},  {0x19, "key_19"},
    {0x1A, "mute_2"},  {0x1B, "key_1b"},      {0x1D, "digit_1"},   {0x1E, "digit_2"}, {0x1F, "digit_3"},
    {0x20, "digit_4"}, {0x21, "digit_5"},     {0x22, "digit_6"},   {0xFE, "left"},    {0xFF, "right"},
};

// What the unit can set in the box; index: the number of the setting.
const char *const SettingNames[] = {
    "reverse camera", "starting front view", "dedicated right view", "steering front view", "car type",
    "display type",   "sound type"};
const int SettingCount = int(sizeof SettingNames / sizeof *SettingNames);

QByteArray oneByte(int value)
{
    return QByteArray(1, char(value));
}

} // namespace

XinHangSpeaker::XinHangSpeaker(SimulatedCar *car, QObject *parent)
    : BoxSpeaker(car, FrameFormat::xinHang(), parent), m_firmware(car)
{
    addReports();
    addAllKeys();
    addCommands();
    addProperties({"firmware."});
    connect(&m_firmware, &FirmwareReceiver::observed, this, &BoxSpeaker::observed);
    connect(&m_firmware, &FirmwareReceiver::answerDue, this,
            [this](const QByteArray &data, const QString &meaning) {
                Q_EMIT packageDue({FirmwareAnswer, data}, meaning);
            });
}

BoxPackage XinHangSpeaker::touchPackage(Touch touch, int x, int y) const
{
    QByteArray data = oneByte(touch);
    for (const int place : {x, y}) {
        data += char(place >> 8);
        data += char(place);
    }
    return {0x04, data};
}

// Cursor keys and application requests are sent once, when they are pressed.
QVector<BoxPackage> XinHangSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    if (key.command == WheelKey || key.command == PanelKey) {
        return {{key.command, oneByte(state) + char(key.code)}};
    }
    if (state != Pressed) {
        return {};
    }
    return {{key.command, oneByte(key.code)}};
}

// The type of the car comes first: what the unit makes of all else depends on it.
void XinHangSpeaker::addReports()
{
    addReport({"car type",
               0x0A,
               {"box.car_type"},
               [](const SimulatedCar &c) {
                   const int type = c.number("box.car_type");
                   return oneByte(type >> 8) + char(type);
               },
               true});
    addReport({"version",
               0x05,
               {"box.version"},
               [](const SimulatedCar &c) {
                   return c.text("box.version").toLatin1().leftJustified(VersionLength, '\0');
               },
               true});
    addReport({"radar maxima", 0x09, {"box.radar_maxima"}, radarMaxima, true});
    addReport({"status",
               0x01,
               {"screen.factory", "gear.reverse", "indicator.right", "doors.", "light.illumination"},
               status,
               true});
    addReport({"radar and steering",
               0x02,
               {"radar.front.", "radar.rear.", "box.radar_maxima", "steering.angle"},
               radarAndSteering,
               true});
}

void XinHangSpeaker::addAllKeys()
{
    for (const KeyRow &row : KeyRows) {
        addKey({row.name, BoxKey::Wheel, WheelKey, row.code});
    }
    for (const KeyRow &row : KeyRows) {
        addKey({QString("panel_") + row.name, BoxKey::Panel, PanelKey, row.code});
    }
    addKey({"cursor_up", BoxKey::Panel, CursorKey, 0});
    addKey({"cursor_down", BoxKey::Panel, CursorKey, 1});
    addKey({"cursor_left", BoxKey::Panel, CursorKey, 2});
    addKey({"cursor_right", BoxKey::Panel, CursorKey, 3});
    addKey({"application_none", BoxKey::Panel, ApplicationRequest, 0});
    addKey({"application_1", BoxKey::Panel, ApplicationRequest, 1});
    addKey({"application_2", BoxKey::Panel, ApplicationRequest, 2});
}

void XinHangSpeaker::addCommands()
{
    addCommand(0x81, 1, [this](const BoxPackage &package) { return takeReady(package); });
    addCommand(0x82, 1, [this](const BoxPackage &package) { return observe("camera", hex(package.d(0))); });
    addCommand(0x83, 1, [this](const BoxPackage &package) { return takeDisplaySource(package); });
    addCommand(0x86, 1, [this](const BoxPackage &package) { return m_firmware.take(package); });
    addCommand(0x89, 1, [this](const BoxPackage &package) {
        return observe("brightness", QString::number(package.d(0)));
    });
    addCommand(0x8A, 1, [this](const BoxPackage &package) {
        return observe("application", QString::number(package.d(0)));
    });
    addCommand(0x8B, 2, [this](const BoxPackage &package) { return takeSetting(package); });
}

QString XinHangSpeaker::takeReady(const BoxPackage &package)
{
    if (package.d(0) == 0) {
        Q_EMIT endReceived();
        return "end";
    }
    Q_EMIT readyReceived();
    answerWith("box.car_type");
    return "ready";
}

QString XinHangSpeaker::takeDisplaySource(const BoxPackage &package)
{
    const int source = package.d(0);
    if (source == 1 || source == 2) {
        car()->setValue("screen.factory", source == 1);
    }
    return observe("display source", QString::number(source));
}

QString XinHangSpeaker::takeSetting(const BoxPackage &package)
{
    const int setting = package.d(0);
    const QString name = setting < SettingCount ? QString(SettingNames[setting]) : QString::number(setting);
    return observe("setting " + name, QString::number(package.d(1)));
}

// d0: 6 right indicator, 5 reverse gear, 4 the factory screen is shown
// d1: doors: 3 rear right, 2 rear left, 1 front right, 0 front left
// d2: illumination
// d3: not used
QByteArray XinHangSpeaker::status(const SimulatedCar &car)
{
    const int d0 =
        car.flag("indicator.right") << 6 | car.flag("gear.reverse") << 5 | car.flag("screen.factory") << 4;
    const int d1 = car.flag("doors.rear_right") << 3 | car.flag("doors.rear_left") << 2 |
                   car.flag("doors.front_right") << 1 | int(car.flag("doors.front_left"));
    return oneByte(d0) + char(d1) + char(car.flag("light.illumination")) + '\0';
}

// d0: 7 to the right, 6..0 how far; 40 is the lock
// d1 to d4: front sensors, d5 to d8: rear ones, each from 1 (nearest) to the sensor's maximum
QByteArray XinHangSpeaker::radarAndSteering(const SimulatedCar &car)
{
    const int angle = car.number("steering.angle");
    const int magnitude = int(std::lround(std::abs(angle) * 40 / 540.0));
    QByteArray result = oneByte(magnitude | (angle > 0 ? 0x80 : 0));
    const QByteArray maxima = radarMaxima(car);
    for (int sensor = 0; sensor < RadarSensors; ++sensor) {
        const int level =
            car.number(QString("radar.%1.%2").arg(sensor < 4 ? "front" : "rear").arg(sensor % 4 + 1));
        const int scaled = level * quint8(maxima.at(sensor)) / FarthestLevel;
        result += char(level == 0 ? 0 : qMax(1, scaled));
    }
    return result;
}

// Sensors that the list leaves out never see anything.
QByteArray XinHangSpeaker::radarMaxima(const SimulatedCar &car)
{
    QByteArray result;
    for (const int maximum : car.numbers("box.radar_maxima")) {
        result += char(maximum);
    }
    return result.leftJustified(RadarSensors, '\0');
}
