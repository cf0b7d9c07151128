#include "carstate.h"

#include "orbevent.h"
#include "orbeventtypes.h"

#include <algorithm>

namespace {

enum CarData {
    LightsOn = 0x5004,
    LightsOff = 0x5005,
    RadarAll = 0x5018,   // eight levels: front, then rear
    RadarFront = 0x5019, // the side on which some cars have corner sensors only
    RadarRear = 0x501A,
    Doors = 0x501B,
    Steering = 0x501C,
    RadarSwitch = 0x501D,
    TrackSwitch = 0x501E
};

const int DoorBits = CarState::FrontLeft | CarState::FrontRight | CarState::RearLeft | CarState::RearRight;

void takeLevels(quint8 (&levels)[CarState::Sensors], const QByteArray &bytes, int from)
{
    for (int i = 0; i < CarState::Sensors; ++i) {
        levels[i] = from + i < bytes.size() ? quint8(bytes.at(from + i)) : quint8(0);
    }
}

} // namespace

int CarState::nearest() const
{
    int result = 0;
    for (const auto *side : {&front, &rear}) {
        for (const int level : *side) {
            if (level != 0 && (result == 0 || level < result)) {
                result = level;
            }
        }
    }
    return result;
}

bool CarState::take(const OrbEvent &event)
{
    if (int(event.type()) != OrbEventType::Notify) {
        return false;
    }
    const CarState before = *this;
    const QByteArray bytes = event.getByteArrayParam();
    switch (event.getParam()) {
    case LightsOn:
        areLightsOn = true;
        break;
    case LightsOff:
        areLightsOn = false;
        break;
    case RadarAll:
        hasFront = hasRear = true;
        takeLevels(front, bytes, 0);
        takeLevels(rear, bytes, Sensors);
        break;
    case RadarFront:
        hasFront = true;
        takeLevels(front, bytes, 0);
        break;
    case RadarRear:
        hasRear = true;
        takeLevels(rear, bytes, 0);
        break;
    case Doors:
        doors = int(event.getParam2()) & DoorBits;
        break;
    case Steering:
        steering = event.getVariantParam().toInt();
        break;
    case RadarSwitch:
        isRadarOn = event.getParam2() != 0;
        break;
    case TrackSwitch:
        isTrackOn = event.getParam2() != 0;
        break;
    default:
        break;
    }
    return *this != before;
}

bool CarState::operator==(const CarState &other) const
{
    return doors == other.doors && hasFront == other.hasFront && hasRear == other.hasRear &&
           std::equal(front, front + Sensors, other.front) && std::equal(rear, rear + Sensors, other.rear) &&
           steering == other.steering && isRadarOn == other.isRadarOn && isTrackOn == other.isTrackOn &&
           areLightsOn == other.areLightsOn;
}
