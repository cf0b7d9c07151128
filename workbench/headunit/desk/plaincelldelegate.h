#ifndef PLAINCELLDELEGATE_H
#define PLAINCELLDELEGATE_H

#include <QStyledItemDelegate>

/// Paints a cell of one line of text in a font whose letters are all as wide, for tables that change several times a
/// second: without what a style sheet asks for each cell.
class PlainCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    static void paintGround(QPainter *painter, const QStyleOptionViewItem &option);
};

#endif // PLAINCELLDELEGATE_H
