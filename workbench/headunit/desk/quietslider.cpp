#include "quietslider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QWheelEvent>

QuietSlider::QuietSlider(Qt::Orientation orientation, QWidget *parent) : QSlider(orientation, parent)
{
    setObjectName(QStringLiteral("deskSlider"));
}

void QuietSlider::mousePressEvent(QMouseEvent *event)
{
    const bool isAcross = orientation() == Qt::Horizontal;
    const int place = isAcross ? event->pos().x() : height() - event->pos().y();
    setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), place, isAcross ? width() : height()));
    QSlider::mousePressEvent(event);
}

void QuietSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void QuietComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
