#ifndef KEYNAVIGATOR_H
#define KEYNAVIGATOR_H

class QWidget;

/// How the unit's navigation keys work the window in front.
namespace KeyNavigator {

/// Home: every window and dialog of the unit goes away.
void goHome();

/// Back: the window or dialog in front goes away. False when there is none.
bool goBack();

/// An arrow moves within \a window, Enter taps what has the focus there.
void send(QWidget *window, int key);

} // namespace KeyNavigator

#endif // KEYNAVIGATOR_H
