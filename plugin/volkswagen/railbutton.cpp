#include "railbutton.h"

#include <QPainter>

namespace {

const int BarWidth = 6;
const int BarInset = 10; // from the button's ends
const int BadgeSize = 28;
const int BadgeInset = 6;
const int BadgeTextSize = 20;
const int ReasonTextSize = 17;

const QRgb BarColour = 0xFF2EA8FF;
const QRgb BadgeColour = 0xFFFFB020;
const QRgb BadgeTextColour = 0xFF0E1116;
const QRgb ReasonColour = 0xFF8A94A3;

QFont sized(QFont font, int pixels, bool bold)
{
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void drawBadge(QPainter *painter, const QRect &button)
{
    QRect badge(0, 0, BadgeSize, BadgeSize);
    badge.moveTopRight(button.topRight() + QPoint(-BadgeInset, BadgeInset));
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(BadgeColour));
    painter->drawEllipse(badge);
    painter->setPen(QColor(BadgeTextColour));
    painter->setFont(sized(painter->font(), BadgeTextSize, true));
    painter->drawText(badge, int(Qt::AlignCenter), QLatin1String("!"));
}

} // namespace

RailButton::RailButton(QWidget *parent) : FittedButton(parent), m_badge(false) {}

void RailButton::setBadge(bool badge)
{
    if (badge != m_badge) {
        m_badge = badge;
        update();
    }
}

void RailButton::setReason(const QString &reason)
{
    m_reason = reason;
    update();
}

void RailButton::paintEvent(QPaintEvent *event)
{
    if (m_reason.isEmpty()) {
        FittedButton::paintEvent(event);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_reason.isEmpty()) {
        drawReason(&painter);
    }
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(BarColour));
        painter.drawRoundedRect(QRect(0, BarInset, BarWidth, height() - 2 * BarInset), BarWidth / 2.0,
                                BarWidth / 2.0);
    }
    if (m_badge) {
        drawBadge(&painter, rect());
    }
}

// The text and the reason below it, dim and on no ground: this button cannot be pressed.
void RailButton::drawReason(QPainter *painter) const
{
    const int middle = height() / 2;
    painter->setPen(QColor(ReasonColour));
    painter->setFont(FittedText::font(font(), text(), width()));
    painter->drawText(QRect(0, 0, width(), middle), int(Qt::AlignHCenter | Qt::AlignBottom), text());
    painter->setFont(FittedText::font(sized(font(), ReasonTextSize, false), m_reason, width()));
    painter->drawText(QRect(0, middle, width(), height() - middle), int(Qt::AlignHCenter | Qt::AlignTop),
                      m_reason);
}
