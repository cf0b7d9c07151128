#ifndef FRONTSCREEN_H
#define FRONTSCREEN_H

#include <QString>
#include <QVariantList>

class QWidget;

/// What the unit shows, read and touched by name and number as a tester does. Touches are real mouse events
/// that are posted, so they act from the event loop. Every function that can fail gives the reason in
/// \a error.
namespace FrontScreen {

/// [class, title, is visible] of every window and dialog of the framework that exists.
QVariantList windows();

/// The first of them with \a title, or null.
QWidget *windowTitled(const QString &title);

/// The widget called \a name in the window or dialog in front, a visible one if there are several; null when
/// there is none.
QWidget *widget(const QString &name, QString *error);

/// The text of a label, button or input; false for a widget without one.
bool text(const QWidget *widget, QString *text, QString *error);

/// Presses and releases at the middle of \a widget. False when it is hidden or disabled.
bool click(QWidget *widget, QString *error);

/// Clicks the visible check box number \a index, from 0, of the dialog in front.
bool clickCheckBox(int index, QString *error);

/// Of each row of the list in front its three columns: texts, or whether a switch is on.
bool rows(QVariantList *rows, QString *error);

/// Scrolls a cell of the list in front into view and clicks it.
bool clickCell(int row, int column, QString *error);

} // namespace FrontScreen

#endif // FRONTSCREEN_H
