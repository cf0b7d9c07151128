#include "testscreen.h"

#include "orbhost.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

const int StripHeight = 48;

void send(QWidget *widget, QEvent::Type type, const QPoint &place, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

QWidget *under(QWidget *widget, QPoint *place)
{
    QWidget *window = widget->window();
    const QPoint there = widget->mapTo(window, *place);
    QWidget *hit = window->childAt(there);
    hit = hit ? hit : window;
    *place = hit->mapFrom(window, there);
    return hit;
}

} // namespace

TestScreen::TestScreen(const QSize &size) : m_area(new QWidget(this))
{
    resize(size);
    OrbHost::instance()->setScreen(this, m_area);
    show();
}

TestScreen::~TestScreen()
{
    OrbHost::instance()->setScreen(nullptr, nullptr);
}

void TestScreen::press(QWidget *widget, const QPoint &place)
{
    QPoint at = place;
    QWidget *hit = under(widget, &at);
    send(hit, QEvent::MouseButtonPress, at, Qt::LeftButton);
}

void TestScreen::drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QPoint at = from;
    QWidget *hit = under(widget, &at);
    const int steps = 8;
    send(hit, QEvent::MouseButtonPress, at, Qt::LeftButton);
    for (int i = 1; i <= steps; ++i) {
        send(hit, QEvent::MouseMove, at + (to - from) * i / steps, Qt::LeftButton);
    }
    send(hit, QEvent::MouseButtonRelease, at + (to - from), Qt::NoButton);
}

void TestScreen::tap(QWidget *widget, const QPoint &place)
{
    drag(widget, place, place);
}

void TestScreen::resizeEvent(QResizeEvent *)
{
    m_area->setGeometry(rect().adjusted(0, StripHeight, 0, 0));
}
