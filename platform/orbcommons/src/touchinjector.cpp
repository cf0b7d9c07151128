#include "touchinjector.h"

#include "orbhost.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMetaObject>
#include <QMouseEvent>

TouchInjector::TouchInjector(QObject *parent) : QObject(parent) {}

void TouchInjector::inject(int type, int x, int y)
{
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease && type != QEvent::MouseMove) {
        return;
    }
    QMetaObject::invokeMethod(this, "deliver", Qt::QueuedConnection, Q_ARG(int, type), Q_ARG(int, x),
                              Q_ARG(int, y));
}

void TouchInjector::deliver(int type, int x, int y)
{
    const QPointer<QWidget> screen(OrbHost::instance()->screen());
    if (!screen) {
        return;
    }
    // Should this touch run an event loop, that loop has to be told that the next touch is already waiting.
    if (QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance()) {
        dispatcher->wakeUp();
    }
    const QPoint pos(x, y);
    if (type == QEvent::MouseButtonPress) {
        press(screen, pos);
        return;
    }
    QWidget *receiver = m_grabber;
    if (!receiver) {
        return;
    }
    // Let go before the event goes out: its handler may open a dialog that takes the next press.
    if (type == QEvent::MouseButtonRelease) {
        m_grabber = nullptr;
    }
    const QPoint global = screen->mapToGlobal(pos);
    send(receiver, type, receiver->mapFromGlobal(global), global);
}

void TouchInjector::press(const QPointer<QWidget> &screen, const QPoint &pos)
{
    // A release got lost: the widget comes up again, but outside itself, which clicks nothing.
    if (QWidget *stuck = m_grabber) {
        m_grabber = nullptr;
        const QPoint outside(-1, -1);
        send(stuck, QEvent::MouseButtonRelease, outside, stuck->mapToGlobal(outside));
    }
    if (!screen || !screen->rect().contains(pos)) {
        return;
    }
    QWidget *hit = screen->childAt(pos);
    m_grabber = hit ? hit : screen.data();
    const QPoint global = screen->mapToGlobal(pos);
    send(m_grabber, QEvent::MouseButtonPress, m_grabber->mapFromGlobal(global), global);
}

void TouchInjector::send(QWidget *receiver, int type, const QPoint &local, const QPoint &global)
{
    // As from a mouse: a move has no button of its own, a release leaves none held.
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(static_cast<QEvent::Type>(type), local, global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}
