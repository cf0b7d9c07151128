#include "volkswagenspeaker.h"

#include "volkswagendrivingdata.h"
#include "volkswagensettings.h"

#include <cmath>

namespace {

const quint8 WheelKey = 0x20;
const quint8 FunctionKey = 0x2F;
const quint8 SeekForward = 3;
const quint8 SeekBackward = 4;
const quint8 SeekReleased = 5;

const quint8 SettingsPage = 0x40;
const quint8 DrivingData = 0x50;
const quint8 ServiceData = 0x63;

// The box sends distances as they are: an outer sensor tells six steps of 10 cm, a middle one six of 20 in
// front and of 27.5 behind. The middle of a step is what a wall there would give.
const double OuterStep = 10;
const double FrontMiddleStep = 20;
const double RearMiddleStep = 27.5;

// An order that is no setting: the properties behind it go back to where they began, or to 0.
struct Action
{
    const char *properties; // beginning of their names
    int item;
    bool isToZero;
};

const Action Actions[] = {
    {"tyres.", 34, false},
    {"trip.since_start.", 138, true},
    {"trip.long_term.", 139, true},
    {"service.inspection.", 141, false},
    {"settings.assist.", 193, false},
    {"settings.parking.", 194, false},
    {"settings.light.", 195, false},
    {"settings.mirrors.", 196, false},
    {"settings.opening.", 197, false},
    {"settings.display.", 198, false},
    {"settings.", 199, false},
    {"settings.drive.", 212, false},
    {"settings.drive.offroad_climate", 232, false},
};

QByteArray distances(const SimulatedCar &car, const QString &side, double middleStep)
{
    QByteArray result;
    for (int sensor = 1; sensor <= 4; ++sensor) {
        const int level = car.number(QString("radar.%1.%2").arg(side).arg(sensor));
        const double step = sensor == 1 || sensor == 4 ? OuterStep : middleStep;
        result += char(level == 0 ? 0 : int((level - 0.5) * step));
    }
    return result + QByteArray(2, '\0');
}

} // namespace

VolkswagenSpeaker::VolkswagenSpeaker(SimulatedCar *car, QObject *parent) : RaiseSpeaker(car, 0x30, parent)
{
    addCarReports();
    addDrivingData();
    addServiceData();
    addMessages();
    for (const quint8 page : VolkswagenSetting::pages()) {
        addReport({"settings " + hex(page), SettingsPage, VolkswagenSetting::propertiesOf(page),
                   [page](const SimulatedCar &c) { return VolkswagenSetting::pageData(page, c); }, false});
    }
    addProperties({"settings."});
    addVolkswagenKeys();
    addCommand(0x90, 2, [this](const BoxPackage &package) { return takeRequest(package); });
    addCommand(0xC6, 2, [this](const BoxPackage &package) { return takeSetting(package); });
}

QVector<BoxPackage> VolkswagenSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    if (key.command == WheelKey) {
        return {{WheelKey, bytes({state == Released ? 0 : key.code, state})}};
    }
    if (state == Pressed) {
        return {{FunctionKey, bytes({key.code})}};
    }
    const bool seeks = key.code == SeekForward || key.code == SeekBackward;
    if (state == Released && seeks) {
        return {{FunctionKey, bytes({SeekReleased})}};
    }
    return {};
}

void VolkswagenSpeaker::addCarReports()
{
    addReport({"climate",
               0x21,
               {"climate.power", "climate.ac", "climate.auto", "climate.circulation", "climate.left",
                "climate.right", "climate.unit", "climate.fan", "climate.to_window", "climate.to_face",
                "climate.to_feet", "climate.defrost"},
               climate,
               true});
    addReport({"radar rear",
               0x22,
               {"radar.rear."},
               [](const SimulatedCar &c) { return distances(c, "rear", RearMiddleStep); },
               true});
    addReport({"radar front",
               0x23,
               {"radar.front."},
               [](const SimulatedCar &c) { return distances(c, "front", FrontMiddleStep); },
               true});
    addReport({"doors", 0x24, {"doors."}, doors, true});
    addReport({"tyre states",
               0x65,
               {"tyres.front_left", "tyres.front_right", "tyres.rear_left", "tyres.rear_right"},
               [](const SimulatedCar &c) {
                   return bytes({c.choice("tyres.front_left"), c.choice("tyres.front_right"),
                                 c.choice("tyres.rear_left"), c.choice("tyres.rear_right")});
               },
               true});
    addReport({"tyre warning", 0x68, {"tyres.warning.", "tyres.message"}, tyreWarning, false});
}

void VolkswagenSpeaker::addDrivingData()
{
    addReport({"range",
               DrivingData,
               {"trip.range", "settings.units.distance"},
               [](const SimulatedCar &c) { return VolkswagenDrivingData::range(c, 0x10); },
               false});
    addTrip(0, "since_start");
    addTrip(1, "since_refuel");
    addTrip(2, "long_term");
    addReport({"consumption now",
               DrivingData,
               {"trip.consumption", "settings.units.consumption"},
               [](const SimulatedCar &c) {
                   return VolkswagenDrivingData::consumption(c, 0x61, "trip.consumption");
               },
               false});
}

void VolkswagenSpeaker::addTrip(int page, const QString &trip)
{
    using Layout = QByteArray (*)(const SimulatedCar &, quint8, const QString &);
    struct Row
    {
        const char *name;
        quint8 subType;
        Layout layout;
        const char *unit;
    };
    const Row rows[] = {
        {"distance", 0x20, VolkswagenDrivingData::distance, "settings.units.distance"},
        {"consumption", 0x30, VolkswagenDrivingData::consumption, "settings.units.consumption"},
        {"speed", 0x40, VolkswagenDrivingData::speed, "settings.units.speed"},
        {"time", 0x50, VolkswagenDrivingData::time, nullptr},
    };
    for (const Row &row : rows) {
        const QString property = QString("trip.%1.%2").arg(trip, row.name);
        const quint8 subType = quint8(row.subType + page);
        const Layout layout = row.layout;
        addReport(
            {QString("%1 %2").arg(row.name, trip), DrivingData,
             row.unit ? QStringList{property, row.unit} : QStringList{property},
             [property, subType, layout](const SimulatedCar &c) { return layout(c, subType, property); },
             false});
    }
}

void VolkswagenSpeaker::addServiceData()
{
    addReport({"vehicle number",
               ServiceData,
               {"service.vehicle_number"},
               [](const SimulatedCar &c) { return '\0' + c.text("service.vehicle_number").toLatin1(); },
               false});
    addService(0x10, "inspection days", "service.inspection.days", false);
    addService(0x11, "inspection distance", "service.inspection.distance", true);
    addService(0x20, "oil change days", "service.oil.days", false);
    addService(0x21, "oil change distance", "service.oil.distance", true);
    addReport({"wiper position",
               ServiceData,
               {"service.wiper_position"},
               [](const SimulatedCar &c) {
                   return bytes({0x22, c.flag("service.wiper_position"), 0, 0});
               },
               false});
}

void VolkswagenSpeaker::addService(quint8 subType, const QString &name, const QString &counter,
                                   bool isDistance)
{
    QStringList concerns = {counter, "service.known"};
    if (isDistance) {
        concerns << "settings.units.distance";
    }
    const auto layout =
        isDistance ? VolkswagenDrivingData::serviceDistance : VolkswagenDrivingData::serviceDays;
    addReport({name, ServiceData, concerns,
               [layout, subType, counter](const SimulatedCar &c) { return layout(c, subType, counter); },
               false});
}

void VolkswagenSpeaker::addMessages()
{
    addReport({"start-stop", 0x60, {"startstop."}, startStop, true});
    addReport({"vehicle reports", 0x61, {"reports."}, reportCodes, true});
    addReport({"consumers", 0x62, {"consumers."}, consumers, true});
}

void VolkswagenSpeaker::addVolkswagenKeys()
{
    addKeys(BoxKey::Wheel, WheelKey,
            {{1, "volume_up"},
             {2, "volume_down"},
             {3, "next"},
             {4, "previous"},
             {5, "key_5"},
             {6, "mute"},
             {7, "mode"},
             {8, "voice"}});
    addKeys(BoxKey::Panel, FunctionKey,
            {{1, "function_previous"},
             {2, "function_next"},
             {SeekForward, "function_forward"},
             {SeekBackward, "function_rewind"},
             {17, "function_call"},
             {18, "function_hangup"}});
}

// The unit names a report by its command and, where the command has several, by its first data byte.
QString VolkswagenSpeaker::takeRequest(const BoxPackage &package)
{
    const quint8 command = package.d(0);
    const bool hasSubTypes = command == SettingsPage || command == DrivingData || command == ServiceData;
    QString meaning = QString("request %1 %2").arg(hex(command), hex(package.d(1)));
    for (int i = 0; i < reports().size(); ++i) {
        if (reports().at(i).command == command && (!hasSubTypes || reportPackage(i).d(0) == package.d(1))) {
            Q_EMIT reportDue(i);
            return meaning;
        }
    }
    return meaning + ", which this box has not";
}

QString VolkswagenSpeaker::takeSetting(const BoxPackage &package)
{
    const int item = package.d(0);
    QString meaning = observe(QString("setting %1").arg(item), QString::number(package.d(1)));
    if (isAction(item)) {
        carryOutAction(item);
        return meaning;
    }
    const VolkswagenSetting *setting = VolkswagenSetting::find(item);
    if (!setting) {
        return meaning + ", which this car has not";
    }
    const bool fits = setting->write(car(), package.d(1));
    answerWith(setting->property);
    return fits ? meaning : meaning + ", which this car does not take";
}

bool VolkswagenSpeaker::isAction(int item) const
{
    for (const Action &action : Actions) {
        if (action.item == item) {
            return true;
        }
    }
    return false;
}

void VolkswagenSpeaker::carryOutAction(int item)
{
    for (const Action &action : Actions) {
        if (action.item == item && !action.isToZero) {
            car()->reset(action.properties);
        }
        for (const CarProperty &property : CarProperty::all()) {
            if (action.item == item && action.isToZero && property.name.startsWith(action.properties)) {
                car()->setValue(property.name, 0);
            }
        }
    }
}

// d0: 7 power, 6 A/C, 5 air recirculates, 3 automatic, 1 defrost
// d1: 7 to window, 6 to face, 5 to feet, 2..0 fan
// d2, d3: left and right temperature
// d4: 5 recirculation is automatic, 0 Fahrenheit
// d5 to d7: not used
QByteArray VolkswagenSpeaker::climate(const SimulatedCar &car)
{
    const QString circulation = car.text("climate.circulation");
    const int d0 = bit(car.flag("climate.power"), 7) | bit(car.flag("climate.ac"), 6) |
                   bit(circulation == "in", 5) | bit(car.flag("climate.auto"), 3) |
                   bit(car.flag("climate.defrost"), 1);
    const int d4 = bit(circulation == "auto", 5) | bit(car.text("climate.unit") == "F", 0);
    return bytes({d0, airFlow(car), temperatureCode(car, "climate.left"),
                  temperatureCode(car, "climate.right"), d4, 0, 0, 0});
}

// 1 to 30: from 16.0 °C in half degrees, or from 60 °F in degrees
quint8 VolkswagenSpeaker::temperatureCode(const SimulatedCar &car, const QString &property)
{
    const quint8 lowest = 0;
    const quint8 highest = 31;
    const ClimateTemperature chosen = car.temperature(property);
    if (chosen.kind != ClimateTemperature::Degrees) {
        return chosen.kind == ClimateTemperature::Low ? lowest : highest;
    }
    const bool isFahrenheit = car.text("climate.unit") == "F";
    const int code =
        isFahrenheit ? chosen.fahrenheit() - 59 : 1 + int(std::lround((chosen.celsius - 16.0) * 2));
    return quint8(qBound(int(lowest), code, int(highest)));
}

// d0: 3 rear right, 2 rear left, 1 front right, 0 front left; d1: message
QByteArray VolkswagenSpeaker::tyreWarning(const SimulatedCar &car)
{
    static const int messages[] = {0, 2, 3, 4}; // index: the choice
    const int d0 =
        bit(car.flag("tyres.warning.rear_right"), 3) | bit(car.flag("tyres.warning.rear_left"), 2) |
        bit(car.flag("tyres.warning.front_right"), 1) | bit(car.flag("tyres.warning.front_left"), 0);
    return bytes({d0, messages[car.choice("tyres.message")]});
}

// d0: how many reasons; d1 to d6: reasons; d7: 0 the system is on
QByteArray VolkswagenSpeaker::startStop(const SimulatedCar &car)
{
    const QVector<int> reasons = car.numbers("startstop.reasons");
    QByteArray result(1, char(reasons.size()));
    for (const int reason : reasons) {
        result += char(reason);
    }
    return result.leftJustified(7, '\0') + char(car.flag("startstop.active"));
}

// d0, d1: how many; then two bytes for each
QByteArray VolkswagenSpeaker::reportCodes(const SimulatedCar &car)
{
    const QVector<int> codes = car.numbers("reports.codes");
    QByteArray result = littleEndian16(int(codes.size()));
    for (const int code : codes) {
        result += littleEndian16(code);
    }
    return result;
}

// d0: how many; d1 to d3: which
QByteArray VolkswagenSpeaker::consumers(const SimulatedCar &car)
{
    const QVector<int> active = car.numbers("consumers.active");
    QByteArray result(1, char(active.size()));
    for (const int consumer : active) {
        result += char(consumer);
    }
    return result.leftJustified(4, '\0');
}
