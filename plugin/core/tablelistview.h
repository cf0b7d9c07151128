#ifndef TABLELISTVIEW_H
#define TABLELISTVIEW_H

#include "orbqtcompat.h"

#include <QPoint>
#include <QStyledItemDelegate>
#include <QTableView>

/// Draws the rows of a TableViewModel: icon and label, secondary text, value with its mark, or a switch. How
/// a row looks besides is said by its bind data, see Role.
class TableItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Role {
        LooksRole = 0x2000, ///< int: flags of Look
        NoteRole            ///< string: drawn in the value's place while there is one
    };
    enum Look {
        Inert = 0x01,      ///< is only read: gives no light under the finger
        Changeable = 0x02, ///< the value can be changed
        Button = 0x04,     ///< acts at a tap: mark and note stand on a button
        Unknown = 0x08,    ///< nobody has told the value: "--", or a switch that is neither off nor on
        Warning = 0x10     ///< the value wants to be seen
    };

    explicit TableItemDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

/// A finger's list over a TableViewModel: tall rows, no headers, scrolled by dragging anywhere; a drag is
/// never taken for a click.
class TableListView : public QTableView
{
    Q_OBJECT

public:
    /// The model's columns: label, secondary text, value.
    enum Column { TextColumn = 0, SecondColumn = 1, ValueColumn = 2 };

    /// Height of a row in pixels.
    enum { RowHeight = 72 };

    explicit TableListView(QWidget *parent = nullptr);
    ~TableListView() override;

    /// \a model stays the caller's; null detaches.
    void setModel(QAbstractItemModel *model) override;

Q_SIGNALS:
    /// A tap (press and release on one cell without a drag) on \a index, next to QAbstractItemView::clicked.
    /// QAbstractItemView::pressed comes with the press already. Headings and disabled rows give none of them.
    void itemColumnClicked(QAbstractItemModel *model, const QModelIndex &index);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void dataChanged(const QModelIndex &first, const QModelIndex &last ORB_CHANGED_ROLES) override;

private Q_SLOTS:
    void fitColumns();

private:
    Q_DISABLE_COPY(TableListView)
    class Private;
    Private *d;
};

#endif // TABLELISTVIEW_H
