#ifndef RADARGROUP_H
#define RADARGROUP_H

#include "framedadapter.h"
#include "mapping.h"
#include "unitlink.h"

/// Radar sensors that one command of a box reports, one data byte each: which event tells them, how the box's
/// distances become the unit's levels (1 nearest, 6 farthest, 0 nothing), and which byte each sensor of the
/// event has. A row of a command table; its tables are static data and are borrowed.
class RadarGroup final : public PackageHandler
{
public:
    enum { NoSensor = -1 }; // in place of a byte's number: always level 0

    template <int Sensors>
    RadarGroup(UnitLink::CarData event, const ByteTable &levels, const int (&bytes)[Sensors])
        : m_event(event), m_levels(levels), m_bytes(bytes), m_sensors(Sensors)
    {}

    void handle(const PackageView &d) override
    {
        QByteArray levels(m_sensors, '\0');
        for (int i = 0; i < m_sensors; ++i) {
            if (m_bytes[i] != NoSensor) {
                levels[i] = char(mapByte(m_levels, d.d(m_bytes[i])));
            }
        }
        UnitLink::sendRadarLevels(m_event, levels);
    }

private:
    const UnitLink::CarData m_event;
    const ByteTable m_levels;
    const int *const m_bytes;
    const int m_sensors;
};

/// Distances of boxes that count to four, 1 nearest; any other one is no obstacle.
const ByteMapping FourRadarLevels[] = {{1, 1}, {2, 2}, {3, 4}, {4, 6}};

/// The same of boxes that count the other way: 4 nearest, 1 farthest.
const ByteMapping FarFirstRadarLevels[] = {{1, 6}, {2, 4}, {3, 2}, {4, 1}};

/// Four sensors from left to right in the first data bytes.
const int FourRadarBytes[] = {0, 1, 2, 3};

#endif // RADARGROUP_H
