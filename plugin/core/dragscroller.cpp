#include "dragscroller.h"

#include <QScrollBar>
#include <QTimerEvent>

#include <cmath>

namespace {

// A fingertip trembles by about this much.
const int DragThreshold = 12;
const int GlideStep = 16;
const qreal GlideFriction = 0.94;
const qreal SlowestGlide = 0.05;
const qreal FastestGlide = 4.0;
// A finger that rested before it left did not flick.
const int FlickPause = 60;

} // namespace

DragScroller::DragScroller(QScrollBar *bar, QObject *parent)
    : QObject(parent), m_bar(bar), m_state(Idle), m_pressY(0), m_lastY(0), m_speed(0), m_place(0)
{
    m_sinceMove.invalidate();
}

bool DragScroller::press(int y)
{
    const bool gliding = m_glide.isActive();
    m_glide.stop();
    m_state = gliding ? StoppedGlide : Pressed;
    m_pressY = m_lastY = y;
    m_speed = 0;
    m_sinceMove.start();
    return gliding;
}

bool DragScroller::move(int y)
{
    if (m_state == Idle) {
        return false;
    }
    if (m_state != Dragging) {
        if (qAbs(y - m_pressY) < DragThreshold) {
            return false;
        }
        m_state = Dragging;
    }
    const int step = m_lastY - y;
    const qreal elapsed = qMax<qint64>(1, m_sinceMove.restart());
    m_speed = 0.6 * step / elapsed + 0.4 * m_speed;
    m_lastY = y;
    m_bar->setValue(m_bar->value() + step);
    return true;
}

bool DragScroller::release()
{
    const bool tap = m_state == Pressed;
    if (m_state == Dragging && m_sinceMove.elapsed() < FlickPause) {
        m_speed = qBound(-FastestGlide, m_speed, FastestGlide);
        m_place = m_bar->value();
        m_glide.start(GlideStep, this);
    }
    m_state = Idle;
    return tap;
}

void DragScroller::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_glide.timerId()) {
        return;
    }
    m_place += m_speed * GlideStep;
    m_speed *= GlideFriction;
    m_bar->setValue(qRound(m_place));
    const bool atEnd = m_place <= m_bar->minimum() || m_place >= m_bar->maximum();
    if (atEnd || std::fabs(m_speed) < SlowestGlide) {
        m_glide.stop();
    }
}
