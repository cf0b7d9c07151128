#include "vwsettingstable.h"

#include "vwcommands.h"

#include "orbqtcompat.h"

// Reading this file is reading the car's menu. Each table is one page, in the order of its rows.

namespace Vw {
namespace {

typedef SettingRow Row;

const ReplyField Unreported = {0, 0, 0, 0};
const NumberRange NoRange = {0, 0, 0, nullptr};

// Where a reply carries a value.
constexpr ReplyField bits(quint8 subType, quint8 byte, quint8 high, quint8 low)
{
    return {subType, byte, high, low};
}
constexpr ReplyField bit(quint8 subType, quint8 byte, quint8 number)
{
    return {subType, byte, number, number};
}
constexpr ReplyField whole(quint8 subType, quint8 byte)
{
    return {subType, byte, 7, 0};
}

// One row of each kind.
constexpr Row heading(const char *label)
{
    return {Row::Heading, NoItem, label, nullptr, nullptr, nullptr, NoRange, 0, Unreported};
}
constexpr Row link(unsigned int page, const char *label, const char *icon)
{
    return {Row::Link, NoItem, label, icon, nullptr, nullptr, NoRange, page, Unreported};
}
constexpr Row toggle(int item, const char *label, const char *icon, ReplyField field)
{
    return {Row::Switch, item, label, icon, nullptr, nullptr, NoRange, 0, field};
}
constexpr Row choice(int item, const char *label, const char *icon, const char *const *options,
                     ReplyField field, const quint8 *codes = nullptr)
{
    return {Row::Options, item, label, icon, options, codes, NoRange, 0, field};
}
constexpr Row number(int item, const char *label, const char *icon, NumberRange range, ReplyField field)
{
    return {Row::Number, item, label, icon, nullptr, nullptr, range, 0, field};
}
constexpr Row action(int item, const char *label, const char *icon)
{
    return {Row::Action, item, label, icon, nullptr, nullptr, NoRange, 0, Unreported};
}
constexpr Row confirmed(int item, const char *label, const char *icon)
{
    return {Row::ConfirmedAction, item, label, icon, nullptr, nullptr, NoRange, 0, Unreported};
}
constexpr Row reading(int item, const char *label, const char *icon)
{
    return {Row::Reading, item, label, icon, nullptr, nullptr, NoRange, 0, Unreported};
}

// ---------------------------------------------------------------------------------------------- Car Setting

const char *const EscModes[] = {QT_TR_NOOP("OFF"), QT_TR_NOOP("Activated"), QT_TR_NOOP("ESC sport"), nullptr};

const Row CarSettingRows[] = {
    choice(16, QT_TR_NOOP("Esc system"), "ESC.png", EscModes, whole(0x10, 1)),
    link(TyresPage, QT_TR_NOOP("Tyres"), "tyre.png"),
    link(DriverAssistancePage, QT_TR_NOOP("Driver assistance"), "assistance.png"),
    link(ParkingPage, QT_TR_NOOP("Parking and manoeuvring"), "parking.png"),
    link(LightPage, QT_TR_NOOP("Light"), "light.png"),
    link(MirrorsPage, QT_TR_NOOP("Mirrors and wipers"), "wiper.png"),
    link(OpeningPage, QT_TR_NOOP("Opening and closing"), "lock.png"),
    link(DisplayPage, QT_TR_NOOP("Multifunction display"), "display.png"),
    link(ServicePage, QT_TR_NOOP("Service"), "service.png"),
    link(UnitsPage, QT_TR_NOOP("Units"), "units.png"),
    link(ProfilePage, QT_TR_NOOP("Seat driver profile"), "seat.png"),
    // The misspellings here and below are the system's own: makers' translation files are keyed by them.
    link(StartStopPage, QT_TR_NOOP("Vehice status Start-stop"), "startstop.png"),
    link(ReportsPage, QT_TR_NOOP("Vehice status reports"), "report.png"),
    link(ConsumersPage, QT_TR_NOOP("Convenience consumer"), "consumer.png"),
    link(FactoryPage, QT_TR_NOOP("Factory settings"), "reset.png"),
};
const quint8 CarSettingRequests[] = {0x10};

// ---------------------------------------------------------------------------------------------- Tyres

const NumberRange WarningSpeedKmh = {30, 240, 10, QT_TR_NOOP("km/h")};
const char *const TyreLoads[] = {QT_TR_NOOP("Comfortable"), QT_TR_NOOP("Standard"), QT_TR_NOOP("Full load"),
                                 nullptr};

const Row TyresRows[] = {
    toggle(32, QT_TR_NOOP("Speed warning"), "speedalert.png", bit(0x20, 1, 0)),
    number(WarningSpeedItem, QT_TR_NOOP("Warning speed"), "speedlimit.png", WarningSpeedKmh, whole(0x20, 2)),
    action(TyresSetItem, QT_TR_NOOP("TPMS SET"), "tyreset.png"),
    choice(35, QT_TR_NOOP("Direct tyres pressure monitoring"), "tyreload.png", TyreLoads, whole(0x20, 3)),
};
const quint8 TyresRequests[] = {0x20};

// ---------------------------------------------------------------------------------------------- assistance

const char *const DrivePrograms[] = {QT_TR_NOOP("Eco"), QT_TR_NOOP("Normal"), QT_TR_NOOP("Sport"), nullptr};
const quint8 DriveProgramCodes[] = {1, 2, 3};
const char *const Distances[] = {QT_TR_NOOP("Very close"), QT_TR_NOOP("Close"), QT_TR_NOOP("Far"),
                                 QT_TR_NOOP("Very far"), nullptr};

const Row DriverAssistanceRows[] = {
    toggle(48, QT_TR_NOOP("Lane assist"), "lane.png", bit(0x30, 1, 0)),
    toggle(54, QT_TR_NOOP("Lane keeping assist system"), "lanekeep.png", bit(0x30, 2, 0)),
    toggle(49, QT_TR_NOOP("Driver alert system"), "drowsy.png", bit(0x30, 1, 1)),
    toggle(51, QT_TR_NOOP("Front assist"), "frontassist.png", bit(0x31, 1, 1)),
    toggle(52, QT_TR_NOOP("Advance warning"), "alert.png", bit(0x31, 1, 2)),
    toggle(53, QT_TR_NOOP("Display distance warning"), "distancewarn.png", bit(0x31, 1, 3)),
    heading(QT_TR_NOOP("Adaptive cruise control")),
    toggle(50, QT_TR_NOOP("Last distance selected"), "lastdistance.png", bit(0x31, 1, 0)),
    choice(55, QT_TR_NOOP("Drive program"), "program.png", DrivePrograms, bits(0x31, 2, 1, 0),
           DriveProgramCodes),
    choice(56, QT_TR_NOOP("Distance"), "distance.png", Distances, bits(0x31, 2, 7, 4)),
    toggle(57, QT_TR_NOOP("Hill Descent Control"), "hill.png", bit(0x31, 3, 0)),
};
const quint8 DriverAssistanceRequests[] = {0x30, 0x31};

// ---------------------------------------------------------------------------------------------- Parking

const NumberRange Volume = {1, 9, 1, nullptr};

const Row ParkingRows[] = {
    toggle(69, QT_TR_NOOP("Activated"), "parkon.png", bit(0x40, 1, 1)),
    toggle(64, QT_TR_NOOP("Activa automatically"), "parkauto.png", bit(0x40, 1, 0)),
    toggle(58, QT_TR_NOOP("Parking brake function"), "brake.png", bit(0x40, 1, 2)),
    number(65, QT_TR_NOOP("Front volume"), "volumefront.png", Volume, bits(0x40, 2, 3, 0)),
    number(66, QT_TR_NOOP("Front tone setting"), "tonefront.png", Volume, bits(0x40, 2, 7, 4)),
    number(67, QT_TR_NOOP("Rear volume"), "volumerear.png", Volume, bits(0x40, 3, 3, 0)),
    number(68, QT_TR_NOOP("Rear tone setting"), "tonerear.png", Volume, bits(0x40, 3, 7, 4)),
    toggle(RadarSoundItem, QT_TR_NOOP("Radar sound"), "radar.png", Unreported),
};
const quint8 ParkingRequests[] = {0x40};

// ---------------------------------------------------------------------------------------------- Light

const char *const SwitchOnTimes[] = {QT_TR_NOOP("Early"), QT_TR_NOOP("Medium"), QT_TR_NOOP("Late"), nullptr};
const char *const TrafficSides[] = {QT_TR_NOOP("Right traffic"), QT_TR_NOOP("Left traffic"), nullptr};
const char *const AmbientColours[] = {QT_TR_NOOP("OFF"), QT_TR_NOOP("White"), QT_TR_NOOP("Orange"),
                                      QT_TR_NOOP("Blue"), nullptr};
const NumberRange Brightness = {0, 100, 10, QT_TR_NOOP("%")};
const NumberRange LightSeconds = {0, 30, 5, QT_TR_NOOP("s")};
const NumberRange BeamDistance = {0, 7, 1, nullptr}; // what three bits hold

const Row LightRows[] = {
    choice(80, QT_TR_NOOP("Switch-on time"), "lighttime.png", SwitchOnTimes, bits(0x50, 1, 2, 0)),
    toggle(81, QT_TR_NOOP("Automatic headlight control in rain"), "lightrain.png", bit(0x50, 1, 4)),
    toggle(82, QT_TR_NOOP("Lane change flash"), "indicator.png", bit(0x50, 1, 5)),
    number(83, QT_TR_NOOP("Instrument/switch lighting"), "instruments.png", Brightness, whole(0x50, 2)),
    number(84, QT_TR_NOOP("Coming home function"), "cominghome.png", LightSeconds, whole(0x50, 3)),
    number(85, QT_TR_NOOP("Leaving home function"), "leavinghome.png", LightSeconds, whole(0x50, 4)),
    choice(86, QT_TR_NOOP("Travel mode"), "traffic.png", TrafficSides, bit(0x51, 1, 0)),
    number(87, QT_TR_NOOP("Door ambient light"), "doorlight.png", Brightness, whole(0x51, 2)),
    number(88, QT_TR_NOOP("Foowell light"), "footlight.png", Brightness, whole(0x51, 3)),
    number(91, QT_TR_NOOP("Head light"), "rooflight.png", Brightness, whole(0x52, 1)),
    number(92, QT_TR_NOOP("Front light"), "frontlight.png", Brightness, whole(0x52, 2)),
    number(93, QT_TR_NOOP("All light"), "brightness.png", Brightness, whole(0x52, 4)),
    toggle(89, QT_TR_NOOP("Motorway light"), "motorway.png", bit(0x51, 4, 0)),
    toggle(90, QT_TR_NOOP("Dynamic light assist"), "dynamic.png", bit(0x51, 4, 1)),
    choice(94, QT_TR_NOOP("Interior environment lighting color"), "colour.png", AmbientColours,
           whole(0x52, 3)),
    number(95, QT_TR_NOOP("Headlight illumination distance"), "beam.png", BeamDistance, bits(0x51, 1, 3, 1)),
    toggle(200, QT_TR_NOOP("Daytime running lights"), "daytime.png", bit(0x50, 1, 6)),
};
const quint8 LightRequests[] = {0x50, 0x51, 0x52};

// ---------------------------------------------------------------------------------------------- Mirrors

const Row MirrorsRows[] = {
    toggle(96, QT_TR_NOOP("Synchronous adjustment"), "mirrorsync.png", bit(0x60, 1, 0)),
    toggle(97, QT_TR_NOOP("Lower while reversing"), "mirrordown.png", bit(0x60, 1, 1)),
    toggle(98, QT_TR_NOOP("Automatic wiping in rain"), "wiperrain.png", bit(0x60, 1, 2)),
    toggle(99, QT_TR_NOOP("Rear window wiping in reverse gear"), "wiperrear.png", bit(0x60, 1, 3)),
    toggle(100, QT_TR_NOOP("Fold away after parking"), "mirrorfold.png", bit(0x60, 1, 4)),
};
const quint8 MirrorsRequests[] = {0x60};

// ---------------------------------------------------------------------------------------------- Opening

const char *const WindowOpenings[] = {QT_TR_NOOP("OFF"), QT_TR_NOOP("Driver window"),
                                      QT_TR_NOOP("All window"), nullptr};
const char *const DoorUnlockings[] = {QT_TR_NOOP("Vehicle side"), QT_TR_NOOP("Single door"),
                                      QT_TR_NOOP("All doors"), nullptr};

const Row OpeningRows[] = {
    choice(112, QT_TR_NOOP("Convenience opening"), "windows.png", WindowOpenings, bits(0x70, 1, 2, 0)),
    choice(113, QT_TR_NOOP("Door unlocking"), "doors.png", DoorUnlockings, bits(0x70, 1, 6, 4)),
    toggle(114, QT_TR_NOOP("Automatic locking"), "autolock.png", bit(0x70, 2, 0)),
    toggle(116, QT_TR_NOOP("Inductive rear tailgate"), "tailgate.png", bit(0x70, 2, 1)),
    toggle(201, QT_TR_NOOP("Acoustic confirmation"), "confirm.png", bit(0x70, 3, 0)),
    toggle(102, QT_TR_NOOP("Front window"), "windowfront.png", bit(0x70, 2, 2)),
    toggle(103, QT_TR_NOOP("Rear window"), "windowrear.png", bit(0x70, 2, 3)),
    toggle(104, QT_TR_NOOP("Sliding sunroof"), "sunroof.png", bit(0x70, 2, 4)),
};
const quint8 OpeningRequests[] = {0x70};

// ---------------------------------------------------------------------------------------------- display

const Row DisplayRows[] = {
    toggle(128, QT_TR_NOOP("Current consumption"), "fuelnow.png", bit(0x80, 1, 0)),
    toggle(129, QT_TR_NOOP("Average consumption"), "fuelaverage.png", bit(0x80, 1, 1)),
    toggle(130, QT_TR_NOOP("Convenience consumption"), "consumer.png", bit(0x80, 1, 2)),
    toggle(131, QT_TR_NOOP("Eco tips"), "eco.png", bit(0x80, 1, 3)),
    toggle(132, QT_TR_NOOP("Travelling time"), "time.png", bit(0x80, 1, 4)),
    toggle(133, QT_TR_NOOP("Distance travelled"), "odometer.png", bit(0x80, 1, 5)),
    toggle(134, QT_TR_NOOP("Average speed"), "speedaverage.png", bit(0x80, 1, 6)),
    toggle(135, QT_TR_NOOP("Digital speed display"), "speeddigital.png", bit(0x80, 1, 7)),
    toggle(136, QT_TR_NOOP("Speed warning"), "speedalert.png", bit(0x80, 2, 0)),
    toggle(137, QT_TR_NOOP("Oil temperature"), "oiltemperature.png", bit(0x80, 2, 1)),
};
const quint8 DisplayRequests[] = {0x80};

// ---------------------------------------------------------------------------------------------- Service

// The readings bear the sub-types of the replies that fill them.
const Row ServiceRows[] = {
    reading(VehicleNumberItem, QT_TR_NOOP("Vehicle NO."), "vin.png"),
    reading(0x10, QT_TR_NOOP("Inspection days"), "calendar.png"),
    reading(0x11, QT_TR_NOOP("Inspection distance"), "servicedistance.png"),
    reading(0x20, QT_TR_NOOP("Oil change service days"), "oilcalendar.png"),
    reading(0x21, QT_TR_NOOP("Oil change service distance"), "oil.png"),
    toggle(WiperServiceItem, QT_TR_NOOP("Wiper in maintenance position"), "wiperservice.png",
           bit(0x22, 1, 0)),
    confirmed(138, QT_TR_NOOP("Reset \"Since start\""), "tripreset.png"),
    confirmed(139, QT_TR_NOOP("Reset \"Long-term\""), "longreset.png"),
    confirmed(141, QT_TR_NOOP("Reset maintenance cycle"), "servicereset.png"),
};
const quint8 ServiceRequests[] = {0x00, 0x10, 0x11, 0x20, 0x21, 0x22};

// ---------------------------------------------------------------------------------------------- Units

const char *const DistanceUnits[] = {QT_TR_NOOP("km"), QT_TR_NOOP("mi"), nullptr};
const char *const SpeedUnits[] = {QT_TR_NOOP("km/h"), QT_TR_NOOP("mph"), nullptr};
const char *const TemperatureUnits[] = {QT_TR_NOOP("℃"), QT_TR_NOOP("℉"), nullptr};
const char *const VolumeUnits[] = {QT_TR_NOOP("L"), QT_TR_NOOP("gal(UK)"), QT_TR_NOOP("gal(US)"), nullptr};
const char *const ConsumptionUnits[] = {QT_TR_NOOP("mpg(UK)"), QT_TR_NOOP("L/100km"), QT_TR_NOOP("mpg(US)"),
                                        QT_TR_NOOP("km/L"), nullptr};
const char *const PressureUnits[] = {QT_TR_NOOP("bar"), QT_TR_NOOP("psi"), QT_TR_NOOP("kPa"), nullptr};

const Row UnitsRows[] = {
    choice(144, QT_TR_NOOP("Distance"), "ruler.png", DistanceUnits, bit(0x90, 1, 0)),
    choice(145, QT_TR_NOOP("Speed"), "speed.png", SpeedUnits, bit(0x90, 1, 1)),
    choice(146, QT_TR_NOOP("Temperature"), "temperature.png", TemperatureUnits, bit(0x90, 1, 2)),
    choice(147, QT_TR_NOOP("Volume"), "canister.png", VolumeUnits, bits(0x90, 1, 6, 4)),
    choice(148, QT_TR_NOOP("Consumption"), "fuel.png", ConsumptionUnits, bits(0x90, 2, 2, 0)),
    choice(149, QT_TR_NOOP("Pressure"), "pressure.png", PressureUnits, bits(0x90, 2, 6, 4)),
};
const quint8 UnitsRequests[] = {0x90};

// ---------------------------------------------------------------------------------------------- Factory

const Row FactoryRows[] = {
    confirmed(193, QT_TR_NOOP("Driver assistance"), "assistance.png"),
    confirmed(RestoreParkingItem, QT_TR_NOOP("Parking and manoeuvring"), "parking.png"),
    confirmed(195, QT_TR_NOOP("Light"), "light.png"),
    confirmed(196, QT_TR_NOOP("Mirrors and wipers"), "wiper.png"),
    confirmed(197, QT_TR_NOOP("Opening and closing"), "lock.png"),
    confirmed(198, QT_TR_NOOP("Multifunction display"), "display.png"),
    confirmed(RestoreAllItem, QT_TR_NOOP("All settings"), "reset.png"),
};

// ---------------------------------------------------------------------------------------------- Profile

const char *const DrivingModes[] = {QT_TR_NOOP("Normal"),
                                    QT_TR_NOOP("Sport"),
                                    QT_TR_NOOP("ECO"),
                                    QT_TR_NOOP("Individual"),
                                    QT_TR_NOOP("Snow"),
                                    QT_TR_NOOP("Off-road"),
                                    QT_TR_NOOP("Off-road individual"),
                                    nullptr};
enum { IndividualMode = 3, OffRoadIndividualMode = 6 };

const char *const SteeringModes[] = {QT_TR_NOOP("Normal"), QT_TR_NOOP("Sport"), nullptr};
const char *const EngineModes[] = {QT_TR_NOOP("Normal"), QT_TR_NOOP("Sport"), QT_TR_NOOP("ECO"), nullptr};
const char *const ClimateModes[] = {QT_TR_NOOP("Normal"), QT_TR_NOOP("ECO"), nullptr};
const quint8 ClimateModeCodes[] = {0, 2};

const Row ProfileRows[] = {
    toggle(202, QT_TR_NOOP("Remote key activated"), "key.png", bit(0xB0, 1, 0)),
    toggle(203, QT_TR_NOOP("Remote key memory matching"), "keymemory.png", bit(0xB0, 1, 1)),
    choice(DrivingModeItem, QT_TR_NOOP("Driving mode"), "mode.png", DrivingModes, bits(0xA0, 1, 3, 0)),
};
const quint8 ProfileRequests[] = {0xA0, 0xB0, 0xB1};

const Row IndividualRows[] = {
    choice(209, QT_TR_NOOP("Steering"), "steering.png", SteeringModes, bits(0xA0, 2, 3, 0)),
    choice(210, QT_TR_NOOP("Engine"), "engine.png", EngineModes, bits(0xA0, 2, 7, 4)),
    choice(IndividualClimateItem, QT_TR_NOOP("Climate"), "climate.png", ClimateModes, bits(0xA0, 3, 3, 0),
           ClimateModeCodes),
    choice(213, QT_TR_NOOP("Front lighting"), "headlamp.png", EngineModes, bits(0xA0, 3, 7, 4)),
    action(212, QT_TR_NOOP("Reset"), "resetmode.png"),
};

// Only these two items of the off-road set are known, and no reply carries them.
const Row OffRoadIndividualRows[] = {
    choice(OffRoadClimateItem, QT_TR_NOOP("Climate"), "climate.png", ClimateModes, Unreported,
           ClimateModeCodes),
    action(OffRoadResetItem, QT_TR_NOOP("Reset"), "resetmode.png"),
};

// ---------------------------------------------------------------------------------------------- all pages

template <int Rows, int Requests>
constexpr SettingPage page(unsigned int id, const char *title, const Row (&rows)[Rows],
                           const quint8 (&requests)[Requests], quint8 requestCommand = SettingsReply)
{
    return {id, title, rows, Rows, requestCommand, requests, Requests};
}

// A page whose rows the replies bring.
constexpr SettingPage reportPage(unsigned int id, const char *title)
{
    return {id, title, nullptr, 0, 0, nullptr, 0};
}

const SettingPage Pages[] = {
    page(CarSettingPage, QT_TR_NOOP("Car Setting"), CarSettingRows, CarSettingRequests),
    page(TyresPage, QT_TR_NOOP("Tyres"), TyresRows, TyresRequests),
    page(DriverAssistancePage, QT_TR_NOOP("Driver assistance"), DriverAssistanceRows,
         DriverAssistanceRequests),
    page(ParkingPage, QT_TR_NOOP("Parking and manoeuvring"), ParkingRows, ParkingRequests),
    page(LightPage, QT_TR_NOOP("Light"), LightRows, LightRequests),
    page(MirrorsPage, QT_TR_NOOP("Mirrors and wipers"), MirrorsRows, MirrorsRequests),
    page(OpeningPage, QT_TR_NOOP("Opening and closing"), OpeningRows, OpeningRequests),
    page(DisplayPage, QT_TR_NOOP("Multifunction display"), DisplayRows, DisplayRequests),
    page(ServicePage, QT_TR_NOOP("Service"), ServiceRows, ServiceRequests, ServiceReply),
    page(UnitsPage, QT_TR_NOOP("Units"), UnitsRows, UnitsRequests),
    {FactoryPage, QT_TR_NOOP("Factory settings"), FactoryRows, sizeof FactoryRows / sizeof FactoryRows[0], 0,
     nullptr, 0},
    reportPage(StartStopPage, QT_TR_NOOP("Vehice Start-stop")),
    reportPage(ReportsPage, QT_TR_NOOP("Vehice reports")),
    page(ProfilePage, QT_TR_NOOP("Seat driver profile"), ProfileRows, ProfileRequests),
    reportPage(ConsumersPage, QT_TR_NOOP("Convenience consumer")),
};
const int PageCount = sizeof Pages / sizeof Pages[0];

template <int Rows>
QList<SettingRow> listOf(const Row (&rows)[Rows])
{
    QList<SettingRow> list;
    for (int i = 0; i < Rows; ++i) {
        list.append(rows[i]);
    }
    return list;
}

} // namespace

const ReplyField SecondDrivingModeField = bits(0xB1, 1, 2, 0);
const ReplyField WarningSpeedUnitField = bit(0x20, 1, 1);
const NumberRange WarningSpeedMph = {20, 150, 5, QT_TR_NOOP("mph")};

const SettingPage *settingPage(unsigned int id)
{
    for (int i = 0; i < PageCount; ++i) {
        if (Pages[i].id == id) {
            return &Pages[i];
        }
    }
    return nullptr;
}

QList<SettingRow> profileRows(int mode)
{
    if (mode == IndividualMode) {
        return listOf(IndividualRows);
    }
    if (mode == OffRoadIndividualMode) {
        return listOf(OffRoadIndividualRows);
    }
    return QList<SettingRow>();
}

const QList<int> &unreportedItems()
{
    static const QList<int> items = QList<int>() << RadarSoundItem << OffRoadClimateItem;
    return items;
}

bool isUndoneBy(int item, int action)
{
    const int undoing = item == RadarSoundItem ? RestoreParkingItem : OffRoadResetItem;
    return action == RestoreAllItem || action == undoing;
}

bool dropsProfileRows(unsigned int page, int item)
{
    return page == ProfilePage && item != IndividualClimateItem && item != OffRoadClimateItem;
}

bool sendsWhenCancelled(int item)
{
    // QUIRK vw-warning-speed: this row's dialog has no way back; the box hears the present value again.
    return item == WarningSpeedItem;
}

int SettingRow::optionCount() const
{
    int count = 0;
    while (options && options[count]) {
        ++count;
    }
    return count;
}

int SettingRow::codeOf(int index) const
{
    if (index < 0 || index >= optionCount()) {
        return -1;
    }
    return codes ? codes[index] : index;
}

int SettingRow::optionOf(int code) const
{
    for (int index = optionCount() - 1; index >= 0; --index) {
        if (codeOf(index) == code) {
            return index;
        }
    }
    return -1;
}

QString text(const char *source)
{
    return source ? OrbQt::translateUtf8("Vw", source) : QString();
}

} // namespace Vw
