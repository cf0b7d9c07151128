#include "keynavigator.h"

#include "orbdialog.h"
#include "orbhost.h"
#include "orbmainwindow.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

/// Dialogs run loops of their own, so what is to happen to them is posted.
void leave(QWidget *window)
{
    if (qobject_cast<OrbDialog *>(window) || qobject_cast<OrbMainWindow *>(window)) {
        QMetaObject::invokeMethod(window, "back", Qt::QueuedConnection);
    }
}

QWidget *focusIn(QWidget *window)
{
    if (QWidget *focus = window->focusWidget()) {
        return focus;
    }
    for (QWidget *child : window->findChildren<QWidget *>()) {
        if (child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus)) {
            child->setFocus();
            return child;
        }
    }
    return window;
}

void tapCurrentRow(QAbstractItemView *view)
{
    const QModelIndex current = view->currentIndex();
    if (!current.isValid()) {
        return;
    }
    view->scrollTo(current);
    QWidget *surface = view->viewport();
    const QPointF place = view->visualRect(current).center();
    const QPointF global = surface->mapToGlobal(place.toPoint());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons still = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QCoreApplication::postEvent(
            surface, new QMouseEvent(type, place, global, Qt::LeftButton, still, Qt::NoModifier));
    }
}

} // namespace

void KeyNavigator::goHome()
{
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (!window->isVisible()) {
            continue;
        }
        if (qobject_cast<OrbMainWindow *>(window)) {
            QMetaObject::invokeMethod(window, "home", Qt::QueuedConnection);
        } else {
            leave(window);
        }
    }
}

bool KeyNavigator::goBack()
{
    QWidget *front = OrbHost::instance()->frontWindow();
    if (front) {
        leave(front);
    }
    return front != nullptr;
}

void KeyNavigator::send(QWidget *window, int key)
{
    QWidget *target = focusIn(window);
    QAbstractItemView *view = qobject_cast<QAbstractItemView *>(target);
    if (key == Qt::Key_Enter && view) {
        tapCurrentRow(view);
    } else if (QAbstractButton *button = qobject_cast<QAbstractButton *>(target);
               key == Qt::Key_Enter && button) {
        QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
    } else {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier));
        }
    }
}
