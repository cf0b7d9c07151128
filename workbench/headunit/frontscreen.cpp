#include "frontscreen.h"

#include "orbhost.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QStyleOptionButton>

namespace {

constexpr int ListColumns = 3;

void postMouse(QWidget *receiver, QEvent::Type type, const QPoint &position)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QCoreApplication::postEvent(
        receiver, new QMouseEvent(type, position, receiver->mapTo(receiver->window(), position),
                                  receiver->mapToGlobal(position), Qt::LeftButton, held, Qt::NoModifier));
}

bool clickAt(QWidget *widget, const QPoint &position, const QString &name, QString *error)
{
    if (!widget->isVisible() || !widget->isEnabled()) {
        *error = QString("%1 is %2").arg(name, QLatin1String(widget->isVisible() ? "disabled" : "hidden"));
        return false;
    }
    postMouse(widget, QEvent::MouseButtonPress, position);
    postMouse(widget, QEvent::MouseButtonRelease, position);
    return true;
}

// A check box is wider than the part of it that reacts.
QPoint middle(const QWidget *widget)
{
    if (const QCheckBox *box = qobject_cast<const QCheckBox *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        option.text = box->text();
        option.icon = box->icon();
        option.iconSize = box->iconSize();
        return box->style()->subElementRect(QStyle::SE_CheckBoxClickRect, &option, box).center();
    }
    return widget->rect().center();
}

// What is in front, or else the overlay on the home page.
QWidget *front(QString *error)
{
    OrbHost *host = OrbHost::instance();
    QWidget *window = host->frontWindow() ? host->frontWindow() : host->frontWindow(false);
    if (!window) {
        *error = "no window is in front";
    }
    return window;
}

QAbstractItemView *frontList(QString *error)
{
    const QWidget *window = front(error);
    if (!window) {
        return nullptr;
    }
    for (QAbstractItemView *view : window->findChildren<QAbstractItemView *>()) {
        if (view->isVisible() && view->model()) {
            return view;
        }
    }
    *error = "there is no list in front";
    return nullptr;
}

QVariant cell(const QAbstractItemModel *model, int row, int column)
{
    const QModelIndex index = model->index(row, column);
    const QVariant check = index.data(Qt::CheckStateRole);
    return check.isValid() ? QVariant(check.toInt() == Qt::Checked)
                           : QVariant(index.data(Qt::DisplayRole).toString());
}

} // namespace

QVariantList FrontScreen::windows()
{
    QVariantList list;
    for (const QWidget *window : OrbHost::instance()->windows()) {
        list << QVariant(QVariantList{QString(window->metaObject()->className()), window->windowTitle(),
                                      window->isVisible()});
    }
    return list;
}

QWidget *FrontScreen::windowTitled(const QString &title)
{
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (window->windowTitle() == title) {
            return window;
        }
    }
    return nullptr;
}

QWidget *FrontScreen::widget(const QString &name, QString *error)
{
    QWidget *window = front(error);
    if (!window) {
        return nullptr;
    }
    QList<QWidget *> found = window->findChildren<QWidget *>(name);
    if (window->objectName() == name) {
        found.prepend(window);
    }
    for (QWidget *widget : found) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    if (found.isEmpty()) {
        *error = QString("nothing in front is called '%1'").arg(name);
        return nullptr;
    }
    return found.first();
}

bool FrontScreen::text(const QWidget *widget, QString *text, QString *error)
{
    for (const char *property : {"text", "plainText", "title"}) {
        const QVariant value = widget->property(property);
        if (value.isValid()) {
            *text = value.toString();
            return true;
        }
    }
    *error = QString("'%1' has no text").arg(widget->objectName());
    return false;
}

bool FrontScreen::click(QWidget *widget, QString *error)
{
    return clickAt(widget, middle(widget), QString("'%1'").arg(widget->objectName()), error);
}

bool FrontScreen::clickCheckBox(int index, QString *error)
{
    const QDialog *dialog = qobject_cast<const QDialog *>(OrbHost::instance()->frontWindow());
    if (!dialog) {
        *error = "no dialog is open";
        return false;
    }
    int number = 0;
    for (QCheckBox *box : dialog->findChildren<QCheckBox *>()) {
        if (box->isVisible() && number++ == index) {
            return clickAt(box, middle(box), QString("check box %1").arg(index), error);
        }
    }
    *error = QString("there is no check box %1, the dialog has %2").arg(index).arg(number);
    return false;
}

bool FrontScreen::rows(QVariantList *rows, QString *error)
{
    const QAbstractItemView *view = frontList(error);
    if (!view) {
        return false;
    }
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        QVariantList cells;
        for (int column = 0; column < ListColumns; ++column) {
            cells << cell(view->model(), row, column);
        }
        rows->append(QVariant(cells));
    }
    return true;
}

bool FrontScreen::clickCell(int row, int column, QString *error)
{
    QAbstractItemView *view = frontList(error);
    if (!view) {
        return false;
    }
    const QModelIndex index = view->model()->index(row, column);
    if (!index.isValid()) {
        *error = QString("there is no cell %1, %2 in the list, which has %3 rows")
                     .arg(row)
                     .arg(column)
                     .arg(view->model()->rowCount());
        return false;
    }
    view->scrollTo(index);
    const QPoint position = view->visualRect(index).center();
    if (!view->viewport()->rect().contains(position)) {
        *error = QString("cell %1, %2 cannot be seen").arg(row).arg(column);
        return false;
    }
    return clickAt(view->viewport(), position, "the list", error);
}
