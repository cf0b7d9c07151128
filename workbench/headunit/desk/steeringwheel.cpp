#include "steeringwheel.h"

#include "deskcolours.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace {
const int WheelSize = 176;

QPointF positionOf(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position();
#else
    return event->localPos();
#endif
}
} // namespace

SteeringWheel::SteeringWheel(int lock, int step, QWidget *parent)
    : QWidget(parent)
    , m_lock(qMax(1, lock))
    , m_step(qMax(1, step))
    , m_wheel(QStringLiteral(":/desk/car/wheel.png"))
{
    setFixedHeight(WheelSize);
    setCursor(Qt::OpenHandCursor);
}

void SteeringWheel::setAngle(int angle)
{
    m_angle = qBound(-m_lock, angle, m_lock);
    update();
}

QPointF SteeringWheel::centre() const
{
    return QPointF(width() / 2.0, WheelSize / 2.0);
}

void SteeringWheel::turnTo(int angle)
{
    const int before = m_angle;
    setAngle(angle);
    if (m_angle != before) {
        Q_EMIT turned(m_angle);
    }
}

void SteeringWheel::mousePressEvent(QMouseEvent *event)
{
    m_mouseDirection = QLineF(centre(), positionOf(event)).angle();
    m_dragAngle = m_angle;
}

void SteeringWheel::mouseMoveEvent(QMouseEvent *event)
{
    const qreal direction = QLineF(centre(), positionOf(event)).angle();
    // Qt counts counterclockwise; a step over 0 degrees is a small one, too.
    qreal turn = m_mouseDirection - direction;
    turn -= 360.0 * qRound(turn / 360.0);
    m_mouseDirection = direction;
    m_dragAngle = qBound(qreal(-m_lock), m_dragAngle + turn, qreal(m_lock));
    turnTo(qRound(m_dragAngle / m_step) * m_step);
}

void SteeringWheel::mouseDoubleClickEvent(QMouseEvent *)
{
    m_dragAngle = 0;
    turnTo(0);
}

void SteeringWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.save();
    painter.translate(centre());
    painter.rotate(m_angle);
    painter.drawPixmap(QRectF(-WheelSize / 2.0, -WheelSize / 2.0, WheelSize, WheelSize), m_wheel,
                       QRectF(m_wheel.rect()));
    painter.restore();
}
