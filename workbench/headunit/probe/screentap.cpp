#include "screentap.h"

#include "orbhost.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMouseEvent>

namespace {

const int MostRows = 256;

void press(const QPointer<QWidget> &widget, const QPoint &place)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (widget) {
            QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &event);
        }
    }
}

// A row's switch is its last column, and the others lie in any.
QModelIndex cellOf(const QAbstractItemView *view, int row)
{
    return view->model()->index(row, view->model()->columnCount() - 1);
}

} // namespace

void ScreenTap::Target::tap() const
{
    if (!widget) {
        return;
    }
    if (QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget.data())) {
        const QModelIndex cell = cellOf(view, row);
        view->scrollTo(cell);
        press(view->viewport(), view->visualRect(cell).center());
    } else {
        // A check box takes a tap on its mark and its words, but not behind them.
        const int middle = qMin(widget->width(), widget->height()) / 2;
        press(widget, QPoint(middle, widget->height() / 2));
    }
}

QVector<ScreenTap::Target> ScreenTap::targets(const QWidget *window)
{
    QVector<Target> targets;
    const QMainWindow *main = qobject_cast<const QMainWindow *>(window);
    const QWidget *titleBar = main ? main->menuWidget() : nullptr;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget);
        const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget);
        const bool isReached = widget->isEnabled() && !(titleBar && titleBar->isAncestorOf(widget));
        if (button && isReached && !button->isHidden()) {
            targets << Target{widget, -1, button->text().isEmpty() ? widget->objectName() : button->text()};
        }
        for (int row = 0;
             view && isReached && view->model() && row < qMin(view->model()->rowCount(), MostRows); ++row) {
            const QModelIndex label = view->model()->index(row, 0);
            if (label.flags() & Qt::ItemIsSelectable) {
                targets << Target{widget, row, label.data().toString()};
            }
        }
    }
    return targets;
}

QWidget *ScreenTap::openDialog()
{
    return qobject_cast<QDialog *>(OrbHost::instance()->frontWindow());
}
