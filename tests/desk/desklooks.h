#ifndef DESKLOOKS_H
#define DESKLOOKS_H

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QWidget>

/// Gives the program's widgets the desk's looks; false when the style is not there.
inline bool wearDeskStyle()
{
    Q_INIT_RESOURCE(desk);
    QFile style(":/desk/desk.qss");
    const bool isThere = style.open(QIODevice::ReadOnly);
    qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
    return isThere;
}

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

/// Leaves a picture of \a widget as NAME.png in the folder that ORB_SCREENSHOTS names, if it does.
inline void takeScreenshot(QWidget *widget, const QString &name)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("ORB_SCREENSHOTS"));
    if (!folder.isEmpty()) {
        QDir().mkpath(folder);
        widget->grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
}

#endif // DESKLOOKS_H
