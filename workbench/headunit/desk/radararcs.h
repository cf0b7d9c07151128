#ifndef RADARARCS_H
#define RADARARCS_H

#include "carstate.h"

#include <QColor>
#include <QPainterPath>
#include <QRectF>

class QPainter;

/// The fan of distance bands in front of a car's nose or behind its tail: one sector for each sensor, one
/// band for each level, the nearest innermost, and outside the level as a figure.
class RadarArcs
{
public:
    enum Side { Front, Rear };

    /// \a car: where the car is drawn, nose up. \a reach: pixels from the car's end to the figures' outer
    /// edge.
    RadarArcs(Side side, const QRectF &car, qreal reach);

    /// The band of \a level (1 to CarState::FarthestLevel) in the sector of \a sensor (0 to 3, from left to
    /// right).
    QPainterPath band(int sensor, int level) const;

    /// Red for what is near, amber for what comes near, green for what is far.
    static QColor colour(int level);

    /// Draws every band faintly, and from the level that a sensor reports outwards in that level's colour. A
    /// level past the farthest lights the farthest band; its figure tells.
    void paint(QPainter *painter, const quint8 (&levels)[CarState::Sensors]) const;

private:
    QRectF figurePlace(int sensor) const;

    Side m_side;
    QPointF m_centre;
    qreal m_innerRadius;
    qreal m_bandWidth;
};

#endif // RADARARCS_H
