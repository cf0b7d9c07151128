#include "tyreslot.h"

#include <QPainter>

namespace {

const QRgb BorderColour = 0xFF3A4350;
const QRgb TextColour = 0xFF8A94A3;
const int TextSize = 22; // pixels
const double Radius = 10;

} // namespace

TyreSlot::TyreSlot(QWidget *parent) : QWidget(parent), m_known(false) {}

void TyreSlot::setKnown(bool known)
{
    if (known != m_known) {
        m_known = known;
        update();
    }
}

void TyreSlot::paintEvent(QPaintEvent *)
{
    if (m_known) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(BorderColour), 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), Radius, Radius);
    QFont figures(font());
    figures.setPixelSize(TextSize);
    painter.setFont(figures);
    painter.setPen(QColor(TextColour));
    painter.drawText(rect(), int(Qt::AlignCenter), QLatin1String("--"));
}
