#include "unitlink.h"

#include "versionfile.h"

#include "orbapplication.h"
#include "orbevent.h"

#include <limits>

namespace {

enum Source { LightSource = 1, CarSource = 400, AppSource = 401 };
enum Subject { LightSubject = 1, CarDataSubject = 12, AppRequestSubject = 25 };

const unsigned int TwelveHourFormat = 1; // value of the clock format tag
const unsigned int LightParam2 = 8; // what the framework expects besides on or off; its meaning is not known

void dispatch(OrbEvent *event)
{
    OrbApplication::instance()->dispatchOrbEvent(event);
}

} // namespace

void UnitLink::sendCarData(CarData what, unsigned int value)
{
    OrbEvent event(CarSource, CarDataSubject, NotifyEvent);
    event.setParams(what, value);
    dispatch(&event);
}

void UnitLink::sendRadarLevels(CarData what, const QByteArray &levels)
{
    OrbEvent event(CarSource, CarDataSubject, NotifyEvent);
    event.setParams(what, 0);
    event.setByteArrayParams(levels);
    dispatch(&event);
}

void UnitLink::sendSteeringAngle(float degrees)
{
    OrbEvent event(CarSource, CarDataSubject, NotifyEvent);
    event.setParams(SteeringAngle, 0);
    event.setVariantParam(int(qint16(truncated(degrees))));
    dispatch(&event);
}

void UnitLink::sendSwitch(CarData what, bool on)
{
    OrbEvent event(AppSource, CarDataSubject, NotifyEvent);
    event.setParams(what, on);
    dispatch(&event);
}

void UnitLink::sendIllumination(bool on)
{
    OrbEvent event(LightSource, LightSubject, NotifyEvent);
    event.setParams(on ? IlluminationOn : IlluminationOff, LightParam2);
    QCoreApplication::sendEvent(OrbApplication::instance(), &event);
}

void UnitLink::requestApp(EventType type, unsigned int param, unsigned int param2)
{
    OrbEvent event(AppSource, AppRequestSubject, type);
    event.setParams(param, param2);
    QCoreApplication::sendEvent(OrbApplication::instance(), &event);
}

quint64 UnitLink::statusWord()
{
    return OrbApplication::instance()->getTag(StatusWordTag, QVariant(0)).toULongLong();
}

bool UnitLink::isTwelveHourClock()
{
    return OrbApplication::instance()->getTag(ClockFormatTag, QVariant(0)).toUInt() == TwelveHourFormat;
}

QByteArray UnitLink::versionCommand(const QByteArray &version)
{
    QByteArray text;
    for (int i = 0; i < version.size() && version.at(i) != '\0'; ++i) {
        const uchar byte = uchar(version.at(i));
        const bool control = byte < 0x20 || (byte >= 0x7F && byte < 0xA0);
        if (byte == '\'') {
            text += "'\\''";
        } else if (!control) {
            text += QString(QLatin1Char(char(byte))).toUtf8();
        }
    }
    return "echo '" + text + "' > /tmp/can_version";
}

void UnitLink::publishVersion(const QByteArray &version)
{
    VersionFile::instance()->publish(versionCommand(version));
}

int UnitLink::truncated(float value)
{
    if (value != value) {
        return 0;
    }
    // 2147483648 is the nearest float above the largest int.
    if (value >= 2147483648.0f) {
        return std::numeric_limits<int>::max();
    }
    if (value <= -2147483648.0f) {
        return std::numeric_limits<int>::min();
    }
    return int(value);
}
