#include "plaincelldelegate.h"

#include "deskcolours.h"

#include <QPainter>

#include <algorithm>

namespace {

const int Margin = 3;
const ushort LastNarrow = 0x4FF; // beyond Cyrillic letters are wider
const QColor ChosenGround(0x26, 0x36, 0x46);

} // namespace

void PlainCellDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option)
{
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(option.rect, ChosenGround);
    }
}

void PlainCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    paintGround(painter, option);
    const QRect place = option.rect.adjusted(Margin, 0, -Margin, 0);
    QString text = index.data().toString();
    const int most =
        int(place.width() / qMax(1.0, QFontMetricsF(option.font).horizontalAdvance(QLatin1Char('0'))));
    if (std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() > LastNarrow; })) {
        text = option.fontMetrics.elidedText(text, Qt::ElideRight, place.width());
    } else if (text.size() > most) {
        text = text.left(most - 1) + QStringLiteral("…");
    }
    const QVariant colour = index.data(Qt::ForegroundRole);
    const int alignment = index.data(Qt::TextAlignmentRole).toInt();
    painter->setFont(option.font);
    painter->setPen(colour.isValid() && !(option.state & QStyle::State_Selected) ? colour.value<QColor>()
                                                                                 : DeskColours::Text);
    painter->drawText(place, (alignment == 0 ? int(Qt::AlignVCenter) : alignment) | Qt::TextSingleLine, text);
}
