#include "bytesdelegate.h"

#include "deskcolours.h"
#include "inspection.h"
#include "inspectionmodel.h"

#include <QPainter>

namespace {
const int Margin = 4;
const QColor ChangedGround(0x1B, 0x4A, 0x70);
} // namespace

BytesDelegate::BytesDelegate(const InspectionModel *model, QObject *parent)
    : PlainCellDelegate(parent), m_model(model)
{}

void BytesDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const qint64 number = m_model->numberOf(index.row());
    const Inspection &inspection = m_model->inspection();
    if (number < inspection.firstNumber() || inspection.row(number).kind != InspectionRow::Package) {
        PlainCellDelegate::paint(painter, option, index);
        return;
    }
    const InspectionRow &row = inspection.row(number);
    painter->save();
    paintGround(painter, option);
    painter->setClipRect(option.rect);
    painter->setFont(option.font);
    const int width = option.fontMetrics.horizontalAdvance(QStringLiteral("00"));
    const int step = option.fontMetrics.horizontalAdvance(QStringLiteral("00 "));
    const int most = qMax(1, (option.rect.width() - 2 * Margin) / step);
    const bool isCut = row.data.size() > most;
    for (int i = 0; i < qMin(int(row.data.size()), isCut ? most - 1 : most); ++i) {
        const QRect place(option.rect.left() + Margin + i * step, option.rect.top(), width,
                          option.rect.height());
        const bool hasChanged = i < row.changed.size() && row.changed.at(i) != '\0';
        const bool isKnown = !row.isTowardsUnit || (i < row.known.size() && row.known.at(i) != '\0') ||
                             (row.known.isEmpty() && row.isExplained);
        const bool isStrange = row.strangeBits(i) != 0;
        if (hasChanged) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(isStrange ? DeskColours::Warning : ChangedGround);
            painter->drawRoundedRect(place.adjusted(-2, 3, 2, -3), 3, 3);
        }
        painter->setPen(hasChanged && isStrange ? DeskColours::Ground
                        : hasChanged            ? DeskColours::Text
                        : isKnown               ? DeskColours::Dim
                                                : DeskColours::Text);
        painter->drawText(place, Qt::AlignCenter, QString::fromLatin1(row.data.mid(i, 1).toHex()));
    }
    if (isCut) {
        painter->setPen(DeskColours::Dim);
        painter->drawText(option.rect.adjusted(Margin + (most - 1) * step, 0, 0, 0), Qt::AlignVCenter,
                          QStringLiteral("…"));
    }
    painter->restore();
}
