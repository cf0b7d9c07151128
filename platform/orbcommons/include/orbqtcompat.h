#ifndef ORBQTCOMPAT_H
#define ORBQTCOMPAT_H

// The one place that knows which Qt generation it is compiled with.

#include <QEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace OrbQt {

/// Splits \a text at \a separator and drops empty pieces.
inline QStringList splitSkippingEmpty(const QString &text, QChar separator)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return text.split(separator, Qt::SkipEmptyParts);
#else
    return text.split(separator, QString::SkipEmptyParts);
#endif
}

/// Sets the four margins of \a layout to \a margin pixels.
inline void setMargin(QLayout *layout, int margin)
{
    layout->setContentsMargins(margin, margin, margin, margin);
}

/// A variant of the meta-type void* that holds \a address.
inline QVariant voidStarVariant(void *address)
{
    return QVariant::fromValue(address);
}

} // namespace OrbQt

#endif // ORBQTCOMPAT_H
