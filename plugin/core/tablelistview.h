#ifndef TABLELISTVIEW_H
#define TABLELISTVIEW_H

#include <QPoint>
#include <QStyledItemDelegate>
#include <QTableView>

/// Draws the rows of a TableViewModel: icon and label, secondary text, value with its mark, or a switch.
class TableItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
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

private Q_SLOTS:
    void fitColumns();

private:
    Q_DISABLE_COPY(TableListView)
    class Private;
    Private *d;
};

#endif // TABLELISTVIEW_H
