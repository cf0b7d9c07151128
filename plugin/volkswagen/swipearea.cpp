#include "swipearea.h"

#include "orbqtcompat.h"

#include <QMouseEvent>

namespace {

const int SmallestSweep = 80; // pixels; a finger that taps trembles less

} // namespace

SwipeArea::SwipeArea(QWidget *parent) : QWidget(parent) {}

void SwipeArea::mousePressEvent(QMouseEvent *event)
{
    m_pressed = OrbQt::mousePos(event);
    event->accept();
}

void SwipeArea::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint way = OrbQt::mousePos(event) - m_pressed;
    event->accept();
    if (qAbs(way.x()) < SmallestSweep || qAbs(way.x()) < 2 * qAbs(way.y())) {
        return;
    }
    if (way.x() < 0) {
        Q_EMIT sweptLeft();
    } else {
        Q_EMIT sweptRight();
    }
}
