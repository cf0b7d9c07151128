#ifndef UNITLINK_H
#define UNITLINK_H

#include <QByteArray>
#include <QtGlobal>

/// What every decoder tells the head unit, and asks it, in the framework's numbers.
namespace UnitLink {

/// Tags of the framework's store.
enum Tag {
    StatusWordTag = 0x10001,
    CanBusTypeTag = 0x10008,
    KeyRedefTypeTag = 0x1000C,
    ClockFormatTag = 0x11009
};

/// Type numbers of the framework's events. An event is an OrbEvent when its number is one of the framework's.
enum EventType {
    FirstEvent = 51000,
    ShowAppEvent =
        51001,           // to the plug-in: first parameter the application; to the application object: second
    ReturnEvent = 51003, // leave what was shown last
    AppProtocolEvent = 51005, // a data packet of another application
    KeyEvent = 51006,
    NotifyEvent = 51007,
    AppStateEvent = 51011,
    AppIconEvent = 51013,
    LastEvent = 51015
};

/// Bits of the status word.
const quint64 CallPresent = 0x3000000;

/// First parameter of a car-data event. The radar arrays are told apart by their numbers alone.
enum CarData {
    IlluminationOn = 0x5004,
    IlluminationOff = 0x5005,
    Radar5018 = 0x5018,  // eight levels
    Radar5019 = 0x5019,  // four levels
    Radar501A = 0x501A,  // four levels
    DoorStatus = 0x501B, // four bits
    SteeringAngle = 0x501C,
    RadarSwitch = 0x501D,
    TrackSwitch = 0x501E
};

/// Dispatches a car-data event with a number, an array of radar levels, or an angle in degrees. The source is
/// 400, as it is for all car data but the switches (401).
void sendCarData(CarData what, unsigned int value);
void sendRadarLevels(CarData what, const QByteArray &levels);
void sendSteeringAngle(float degrees);

/// Dispatches the user's choice for \a what, RadarSwitch or TrackSwitch: whether the unit shows it.
void sendSwitch(CarData what, bool on);

/// Tells the application object, at once, that the car's lights went on or off.
void sendIllumination(bool on);

/// Sends a request about an application (ShowAppEvent, ReturnEvent) to the application object, at
/// once.
void requestApp(EventType type, unsigned int param = 0, unsigned int param2 = 0);

/// The status word (tag 0x10001), 0 when it is not set.
quint64 statusWord();

/// Whether the unit's clock shows twelve hours (tag 0x11009); 24 when it is not set.
bool isTwelveHourClock();

/// Publishes a decoder's version text in /tmp/can_version. \a version comes from the wire: it ends at its
/// first NUL, loses its control characters, and reaches the shell as data, never as a command.
void publishVersion(const QByteArray &version);

/// The shell command that publishVersion has run (see VersionFile for when).
QByteArray versionCommand(const QByteArray &version);

/// \a value cut toward zero, saturated at the ends of int; 0 for not-a-number. The same on every processor.
int truncated(float value);

} // namespace UnitLink

#endif // UNITLINK_H
