#ifndef BUTTONOF_H
#define BUTTONOF_H

#include <QWidget>

/// The button of class \a Button in \a window that bears \a text, or null.
template <class Button>
Button *buttonOf(const QWidget *window, const QString &text)
{
    for (Button *button : window->findChildren<Button *>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

#endif // BUTTONOF_H
