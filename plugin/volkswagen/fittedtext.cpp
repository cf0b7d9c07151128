#include "fittedtext.h"

#include "orbqtcompat.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

const int SmallestText = 13; // pixels
const int Padding = 4;
const int Gap = 8; // between icon and the text beside it

} // namespace

QFont FittedText::font(const QFont &font, const QString &text, int width)
{
    QFont fitted(font);
    int size = QFontInfo(font).pixelSize();
    while (size > SmallestText && OrbQt::textWidth(QFontMetrics(fitted), text) > width) {
        fitted.setPixelSize(--size);
    }
    return fitted;
}

FittedLabel::FittedLabel(QWidget *parent) : QLabel(parent) {}

QSize FittedLabel::minimumSizeHint() const
{
    return QSize(0, QLabel::minimumSizeHint().height());
}

void FittedLabel::paintEvent(QPaintEvent *)
{
    const QRect room = contentsRect();
    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(palette().color(foregroundRole()));
    painter.setFont(FittedText::font(font(), text(), room.width()));
    painter.drawText(room, int(alignment()), text());
}

FittedButton::FittedButton(QWidget *parent) : QToolButton(parent) {}

QSize FittedButton::minimumSizeHint() const
{
    return QSize(0, QToolButton::minimumSizeHint().height());
}

void FittedButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption ground;
    ground.initFrom(this);
    ground.state |= (isDown() ? QStyle::State_Sunken : QStyle::State_Raised) |
                    (isChecked() ? QStyle::State_On : QStyle::State_Off);
    style()->drawPrimitive(QStyle::PE_Widget, &ground, &painter, this);

    const bool isBeside = toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
    const int room = width() - 2 * Padding - (isBeside ? iconSize().width() + Gap : 0);
    const QFont textFont = FittedText::font(font(), text(), room);
    const QFontMetrics metrics(textFont);
    const QSize textSize(qMin(room, OrbQt::textWidth(metrics, text())), metrics.height());
    QRect iconPlace(QPoint(0, 0), iconSize());
    QRect textPlace(QPoint(0, 0), textSize);
    if (isBeside) {
        iconPlace.moveTo((width() - iconPlace.width() - Gap - textSize.width()) / 2,
                         (height() - iconPlace.height()) / 2);
        textPlace.moveTo(iconPlace.right() + 1 + Gap, (height() - textSize.height()) / 2);
    } else {
        iconPlace.moveTo((width() - iconPlace.width()) / 2,
                         (height() - iconPlace.height() - textSize.height()) / 2);
        textPlace.moveTo((width() - textSize.width()) / 2, iconPlace.bottom() + 1);
    }
    icon().paint(&painter, iconPlace);
    painter.setFont(textFont);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(textPlace, int(Qt::AlignCenter | Qt::TextDontClip), text());
}
