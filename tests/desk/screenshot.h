#ifndef SCREENSHOT_H
#define SCREENSHOT_H

#include <QDir>
#include <QPixmap>
#include <QWidget>

/// Leaves a picture of \a widget as NAME.png in the folder that ORB_SCREENSHOTS names, if it does.
inline void takeScreenshot(QWidget *widget, const QString &name)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("ORB_SCREENSHOTS"));
    if (!folder.isEmpty()) {
        QDir().mkpath(folder);
        widget->grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
}

#endif
