#include "keycard.h"

#include "deskcolours.h"
#include "unitcontrols.h"
#include "unitkey.h"

#include <QPainter>

namespace {

const int CardHeight = 120;
const int Margin = 16;
const int PictureSize = 64;
const int PlayerWidth = 72;
const int PlayerIcon = 40;

/// Draws one line of text into \a place, shortened if need be, and takes its height off the top.
void paintLine(QPainter *painter, QRect *place, const QString &text, int pixels, const QColor &colour)
{
    QFont font = painter->font();
    font.setPixelSize(pixels);
    font.setBold(pixels > 20);
    painter->setFont(font);
    painter->setPen(colour);
    const int height = painter->fontMetrics().height();
    painter->drawText(QRect(place->topLeft(), QSize(place->width(), height)),
                      Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, place->width()));
    place->setTop(place->top() + height + 1);
}

} // namespace

KeyCard::KeyCard(const UnitControls *controls, QWidget *parent) : QWidget(parent), m_controls(controls)
{
    setFixedHeight(CardHeight);
    connect(controls, &UnitControls::changed, this, QOverload<>::of(&KeyCard::update));
}

void KeyCard::paintPlayer(QPainter *painter, const QRect &place) const
{
    const QPixmap icon(m_controls->isPlaying() ? QStringLiteral(":/desk/keys/play.png")
                                               : QStringLiteral(":/desk/keys/pause.png"));
    painter->drawPixmap(QRect(place.center().x() - PlayerIcon / 2, place.top(), PlayerIcon, PlayerIcon),
                        icon);
    QFont font = painter->font();
    font.setPixelSize(24);
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(DeskColours::Text);
    painter->drawText(place.adjusted(0, PlayerIcon, 0, 0), Qt::AlignCenter,
                      QString::number(m_controls->track()));
}

void KeyCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const UnitControls::LastKey last = m_controls->lastKey();
    painter.setPen(last.isDown ? QPen(DeskColours::Accent, 3) : QPen(Qt::NoPen));
    painter.setBrush(DeskColours::Panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 10, 10);

    const QRect inside = rect().adjusted(Margin, Margin, -Margin, -Margin);
    QRect lines = inside.adjusted(0, 0, -PlayerWidth, 0);
    paintPlayer(&painter, inside.adjusted(inside.width() - PlayerWidth, 0, 0, 0));
    if (last.number == 0) {
        paintLine(&painter, &lines, tr("Last key"), 16, DeskColours::Accent);
        paintLine(&painter, &lines, tr("None yet"), 26, DeskColours::Dim);
        return;
    }
    const UnitKey key = UnitKey::of(last.code);
    if (!key.picture().isEmpty()) {
        painter.drawPixmap(
            QRect(inside.left(), inside.center().y() - PictureSize / 2, PictureSize, PictureSize),
            QPixmap(key.picture()));
        lines.adjust(PictureSize + Margin, 0, 0, 0);
    }
    QString arrival = tr("Key %1").arg(last.number);
    if (!key.name) {
        arrival += QStringLiteral(" · 0x%1").arg(last.code, 0, 16); // nothing else tells which one it is
    }
    if (last.repeats != 0) {
        arrival += QStringLiteral(" · ") + tr("held, %1×").arg(last.repeats);
    }
    paintLine(&painter, &lines, arrival, 16, DeskColours::Accent);
    paintLine(&painter, &lines, key.text(), 26, DeskColours::Text);
    paintLine(&painter, &lines, m_controls->effect(), 20, DeskColours::Text);
}
