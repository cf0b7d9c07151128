#ifndef CARSTATE_H
#define CARSTATE_H

#include <QtGlobal>

class OrbEvent;

/// What the plug-in has reported about the car, as the unit's car view needs it.
struct CarState
{
    enum Door { FrontLeft = 1, FrontRight = 2, RearLeft = 4, RearRight = 8 };
    static constexpr int Sensors = 4;       ///< on each side, from left to right
    static constexpr int FarthestLevel = 6; ///< 1 is nearest, 0 sees nothing
    static constexpr int SteeringLock = 40; ///< degrees of the front wheels at either lock

    int doors = 0; ///< Door bits of the open ones
    quint8 front[Sensors] = {0, 0, 0, 0};
    quint8 rear[Sensors] = {0, 0, 0, 0};
    int steering = 0;      ///< -steeringLock (left) to steeringLock (right)
    bool isRadarOn = true; ///< whether radar and track are to be drawn at all
    bool isTrackOn = true;
    bool areLightsOn = false;

    bool isDoorOpen(Door door) const { return (doors & door) != 0; }

    /// The level of the nearest thing that any sensor sees, 0 for none.
    int nearest() const;

    /// Takes what \a event says about the car: a notification with one of the car-data numbers. Levels past
    /// the farthest count as the farthest, missing ones as 0, angles past the lock as the lock. True when
    /// something has changed; any other event changes nothing.
    bool take(const OrbEvent &event);

    bool operator==(const CarState &other) const;
    bool operator!=(const CarState &other) const { return !(*this == other); }
};

#endif // CARSTATE_H
