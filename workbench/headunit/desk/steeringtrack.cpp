#include "steeringtrack.h"

#include "deskcolours.h"

#include <QPainter>
#include <QPen>
#include <QtMath>

namespace {
// Parts of the car's length, as the car's picture has them.
const qreal RearAxle = 0.79;
const qreal WheelBase = 0.60;
const int Steps = 16;
const qreal LineWidth = 4.0;
} // namespace

SteeringTrack::SteeringTrack(const QRectF &car, int angle, qreal length)
    : m_axle(car.center().x(), car.top() + car.height() * RearAxle)
    , m_halfWidth(car.width() * 0.46)
    , m_overhang(car.height() * (1.0 - RearAxle))
    , m_length(length)
    , m_curvature(qTan(qDegreesToRadians(qreal(angle))) / (car.height() * WheelBase))
{}

QPointF SteeringTrack::point(Edge edge, qreal along) const
{
    const qreal offset = edge == Left ? -m_halfWidth : m_halfWidth;
    const qreal way = m_overhang + along * m_length;
    if (qAbs(m_curvature) < 1e-6) {
        return m_axle + QPointF(offset, way);
    }
    // The car turns about a point in line with its rear axle.
    const qreal radius = 1.0 / m_curvature;
    const qreal turned = way * m_curvature;
    const qreal arm = radius - offset;
    return m_axle + QPointF(radius - arm * qCos(turned), arm * qSin(turned));
}

QPainterPath SteeringTrack::path(Edge edge) const
{
    QPainterPath result(point(edge, 0));
    for (int i = 1; i <= Steps; ++i) {
        result.lineTo(point(edge, qreal(i) / Steps));
    }
    return result;
}

void SteeringTrack::paint(QPainter *painter) const
{
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(DeskColours::Accent, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path(Left));
    painter->drawPath(path(Right));
    for (int mark = 1; mark <= 3; ++mark) {
        const qreal along = mark / 3.0;
        painter->drawLine(point(Left, along), point(Right, along));
    }
}
