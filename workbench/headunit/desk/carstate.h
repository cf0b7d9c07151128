#ifndef CARSTATE_H
#define CARSTATE_H

#include <QtGlobal>

#include <optional>

class OrbEvent;

/// What the plug-in has reported about the car, as it reported it: nothing is put right here, so that what is
/// wrong with a report shows. What was never reported is not known.
struct CarState
{
    enum Door { FrontLeft = 1, FrontRight = 2, RearLeft = 4, RearRight = 8 };
    static constexpr int Sensors = 4;       ///< on each side, from left to right
    static constexpr int FarthestLevel = 6; ///< of the scale; 1 is nearest, 0 sees nothing
    static constexpr int SteeringLock =
        40; ///< degrees of the front wheels at either lock, as the scale has them

    std::optional<int> doors; ///< Door bits of the open ones
    bool hasFront = false;    ///< whether the levels in front were reported
    bool hasRear = false;
    quint8 front[Sensors] = {0, 0, 0, 0};
    quint8 rear[Sensors] = {0, 0, 0, 0};
    std::optional<int> steering; ///< degrees, negative to the left; nothing until it was reported
    bool isRadarOn = true;       ///< whether radar and track are to be drawn at all
    bool isTrackOn = true;
    bool areLightsOn = false;

    bool isDoorOpen(Door door) const { return (doors.value_or(0) & door) != 0; }

    /// Whether anything was reported that the car's picture shows.
    bool isAnythingKnown() const { return doors || hasFront || hasRear || steering || areLightsOn; }

    /// The level of the nearest thing that any sensor sees, 0 for none.
    int nearest() const;

    /// Takes what \a event says about the car: a notification with one of the car-data numbers. Missing levels
    /// count as 0, bits above the four doors as none. True when something has changed; any other event changes
    /// nothing.
    bool take(const OrbEvent &event);

    bool operator==(const CarState &other) const;
    bool operator!=(const CarState &other) const { return !(*this == other); }
};

#endif // CARSTATE_H
