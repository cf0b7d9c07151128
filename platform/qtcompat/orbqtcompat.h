#ifndef ORBQTCOMPAT_H
#define ORBQTCOMPAT_H

// The one place that knows which Qt generation it is compiled with.

#include <QCoreApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <QWidget>

/// The parameter that QAbstractItemView::dataChanged() has had since Qt 5.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define ORB_CHANGED_ROLES , const QVector<int> &
#else
#define ORB_CHANGED_ROLES
#endif

namespace OrbQt {

/// Width of \a text in pixels.
inline int textWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// Where \a event happened, in the receiving widget's and in screen coordinates.
inline QPoint mousePos(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

inline QPoint mouseGlobalPos(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

/// The largest size with the proportions of \a size that fits into \a room; empty for an empty one, as that of
/// a picture that could not be loaded is. Qt 4.8 has no QSize::scaled, and Qt 5's scale() calls it.
inline QSize fitted(const QSize &size, const QSize &room)
{
    if (size.isEmpty()) {
        return QSize(0, 0);
    }
    const int width = int(qint64(room.height()) * size.width() / size.height());
    return width <= room.width()
               ? QSize(width, room.height())
               : QSize(room.width(), int(qint64(room.width()) * size.height() / size.width()));
}

/// \a source (UTF-8) in the application's language; \a context as in its Linguist file.
inline QString translateUtf8(const char *context, const char *source)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QCoreApplication::translate(context, source);
#else
    return QCoreApplication::translate(context, source, nullptr, QCoreApplication::UnicodeUTF8);
#endif
}

} // namespace OrbQt

#endif // ORBQTCOMPAT_H
