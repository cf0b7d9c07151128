#include "radararcs.h"

#include "deskcolours.h"

#include <QPainter>
#include <QtMath>

namespace {

// Degrees, counterclockwise from the right as QPainterPath counts them.
const qreal SectorSpan = 31.0;
const qreal SectorGap = 2.0;
const qreal BandGap = 2.5; // pixels
const int FigureSize = 15;
const qreal FigureRoom = 18; // outside the bands

} // namespace

RadarArcs::RadarArcs(Side side, const QRectF &car, qreal reach) : m_side(side)
{
    // The fan's centre lies inside the car, so that the bands follow the round of its end.
    const qreal inside = car.width() * 0.5;
    m_innerRadius = car.width() * 0.64;
    m_centre = QPointF(car.center().x(), side == Front ? car.top() + inside : car.bottom() - inside);
    m_bandWidth = (inside + reach - FigureRoom - m_innerRadius) / CarState::FarthestLevel;
}

QPainterPath RadarArcs::band(int sensor, int level) const
{
    const qreal inner = m_innerRadius + (level - 1) * m_bandWidth;
    const qreal outer = inner + m_bandWidth - BandGap;
    // Sensor 0 is on the left of both sides: at the greater angle in front, at the smaller one behind.
    const qreal leftmost = m_side == Front ? 90.0 + 2 * SectorSpan : 270.0 - 2 * SectorSpan;
    const qreal turn = m_side == Front ? -1.0 : 1.0;
    const qreal from = leftmost + turn * (sensor * SectorSpan + SectorGap / 2);
    const qreal span = turn * (SectorSpan - SectorGap);
    const QRectF innerBox(m_centre.x() - inner, m_centre.y() - inner, 2 * inner, 2 * inner);
    const QRectF outerBox(m_centre.x() - outer, m_centre.y() - outer, 2 * outer, 2 * outer);

    QPainterPath path;
    path.arcMoveTo(innerBox, from);
    path.arcTo(innerBox, from, span);
    path.arcTo(outerBox, from + span, -span);
    path.closeSubpath();
    return path;
}

QRectF RadarArcs::figurePlace(int sensor) const
{
    const qreal away = (sensor - (CarState::Sensors - 1) / 2.0) * SectorSpan;
    const qreal radius = m_innerRadius + CarState::FarthestLevel * m_bandWidth + FigureRoom / 2;
    const QPointF middle =
        m_centre + QPointF(radius * qSin(qDegreesToRadians(away)),
                           (m_side == Front ? -radius : radius) * qCos(qDegreesToRadians(away)));
    return QRectF(middle - QPointF(FigureRoom, FigureRoom / 2), QSizeF(2 * FigureRoom, FigureRoom));
}

QColor RadarArcs::colour(int level)
{
    if (level <= 2) {
        return DeskColours::Error;
    }
    return level <= 4 ? DeskColours::Warning : DeskColours::Good;
}

void RadarArcs::paint(QPainter *painter, const quint8 (&levels)[CarState::Sensors]) const
{
    QFont font = painter->font();
    font.setPixelSize(FigureSize);
    font.setBold(true);
    painter->setFont(font);
    for (int sensor = 0; sensor < CarState::Sensors; ++sensor) {
        const int drawn = qMin(int(levels[sensor]), CarState::FarthestLevel);
        for (int level = 1; level <= CarState::FarthestLevel; ++level) {
            QColor fill = DeskColours::Edge;
            if (drawn != 0 && level >= drawn) {
                fill = colour(drawn);
                fill.setAlphaF(level == drawn ? 1.0 : 0.32);
            }
            painter->fillPath(band(sensor, level), fill);
        }
        if (drawn != 0) {
            painter->setPen(DeskColours::Text);
            painter->drawText(figurePlace(sensor), Qt::AlignCenter, QString::number(levels[sensor]));
        }
    }
}
