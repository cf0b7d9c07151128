#ifndef STEERINGTRACK_H
#define STEERINGTRACK_H

#include <QPainterPath>
#include <QRectF>

class QPainter;

/// The way that the car's tail takes when it goes back with its front wheels turned.
class SteeringTrack
{
public:
    enum Edge { Left, Right };

    /// \a car: where the car is drawn, nose up. \a angle: degrees of the front wheels, positive to the right.
    /// \a length: pixels along the middle of the way.
    SteeringTrack(const QRectF &car, int angle, qreal length);

    /// A point of an edge of the way, \a along 0 (at the bumper) to 1 (at its end).
    QPointF point(Edge edge, qreal along) const;

    QPainterPath path(Edge edge) const;

    void paint(QPainter *painter) const;

private:
    QPointF m_axle;
    qreal m_halfWidth;
    qreal m_overhang; // from axle to bumper
    qreal m_length;
    qreal m_curvature; // one by the turning radius, positive to the right
};

#endif // STEERINGTRACK_H
