#include "tablelistview.h"

#include "dragscroller.h"
#include "tableviewmodel.h"

#include <QHeaderView>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScrollBar>

namespace {

// Share of the width that the value gets, and the secondary text when there is one, in percent.
const int ValueShare = 32;
const int SecondShare = 20;
const int SmallestValueWidth = 200;
const int EmptySecondWidth = 16;
const int EmptyValueWidth = 80; // a mark fits
// As the delegate draws values, with some air.
const int ValueFontSize = 22;
const int ValueInset = 32;

// Width that the longest value without a blank needs on one line: a vehicle's number is not to be broken.
int unbrokenWidth(const QAbstractItemModel *model, const QFontMetrics &metrics)
{
    int width = 0;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString value = model->index(row, TableListView::ValueColumn).data().toString();
        if (!value.contains(QLatin1Char(' '))) {
            width = qMax(width, OrbQt::textWidth(metrics, value));
        }
    }
    return width;
}

// Whether any row has a text or a switch in \a column, or draws something there.
bool hasContents(const QAbstractItemModel *model, int column)
{
    const int drawn = TableItemDelegate::Unknown | TableItemDelegate::Button;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, column);
        const bool isDrawn = column == TableListView::ValueColumn &&
                             (index.data(TableItemDelegate::LooksRole).toInt() & drawn) != 0;
        if (isDrawn || !index.data().toString().isEmpty() || index.data(Qt::CheckStateRole).isValid()) {
            return true;
        }
    }
    return false;
}

// Whether a tap on the cell does something: a switch has its own cell, and what is only read has none.
bool reacts(const QModelIndex &index)
{
    if (index.data(TableItemDelegate::LooksRole).toInt() & TableItemDelegate::Inert) {
        return false;
    }
    const QModelIndex value = index.sibling(index.row(), TableListView::ValueColumn);
    return index.column() == value.column() || !value.data(Qt::CheckStateRole).isValid();
}

} // namespace

class TableListView::Private
{
public:
    explicit Private(TableListView *view) : scroller(new DragScroller(view->verticalScrollBar(), view)) {}

    DragScroller *scroller;
    QPersistentModelIndex pressed;
};

TableListView::TableListView(QWidget *parent) : QTableView(parent), d(new Private(this))
{
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new TableItemDelegate(this));
}

TableListView::~TableListView()
{
    delete d;
}

void TableListView::setModel(QAbstractItemModel *next)
{
    if (model()) {
        disconnect(model(), nullptr, this, SLOT(fitColumns()));
    }
    d->pressed = QPersistentModelIndex();
    QTableView::setModel(next);
    if (next) {
        connect(next, SIGNAL(dataChanged(QModelIndex, QModelIndex)), SLOT(fitColumns()));
        connect(next, SIGNAL(rowsInserted(QModelIndex, int, int)), SLOT(fitColumns()));
        connect(next, SIGNAL(rowsRemoved(QModelIndex, int, int)), SLOT(fitColumns()));
        connect(next, SIGNAL(modelReset()), SLOT(fitColumns()));
    }
    fitColumns();
}

void TableListView::fitColumns()
{
    // Measuring every value costs more than setting one, so it waits until the list is to be seen.
    if (!isVisible()) {
        return;
    }
    if (!model() || model()->columnCount() <= ValueColumn) {
        return;
    }
    const int width = viewport()->width();
    const bool hasValues = hasContents(model(), TableListView::ValueColumn);
    const bool hasSeconds = hasContents(model(), TableListView::SecondColumn);
    QFont valueFont(font());
    valueFont.setPixelSize(ValueFontSize);
    const int unbroken = unbrokenWidth(model(), QFontMetrics(valueFont)) + ValueInset;
    const int usual = qMax(qMax(SmallestValueWidth, unbroken), width * ValueShare / 100);
    const int valueWidth = hasValues ? usual : EmptyValueWidth;
    const int value = qMin(width / 2, valueWidth);
    const int second = hasSeconds ? width * SecondShare / 100 : EmptySecondWidth;
    setColumnWidth(TableListView::TextColumn, qMax(1, width - second - value));
    setColumnWidth(TableListView::SecondColumn, second);
    setColumnWidth(TableListView::ValueColumn, value);
}

void TableListView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fitColumns();
}

void TableListView::showEvent(QShowEvent *event)
{
    QTableView::showEvent(event);
    fitColumns();
}

// Cell by cell: for more than one the base class paints all rows again.
void TableListView::dataChanged(const QModelIndex &first, const QModelIndex &last ORB_CHANGED_ROLES)
{
    for (int row = first.row(); row <= last.row(); ++row) {
        for (int column = first.column(); column <= last.column(); ++column) {
            update(first.sibling(row, column));
        }
    }
}

void TableListView::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QPoint place = OrbQt::mousePos(event);
    d->pressed = QPersistentModelIndex();
    if (d->scroller->press(place.y())) {
        return;
    }
    const QModelIndex index = indexAt(place);
    if (!(index.flags() & Qt::ItemIsSelectable)) {
        return;
    }
    d->pressed = index;
    if (reacts(index)) {
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    Q_EMIT pressed(index);
}

void TableListView::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (d->scroller->move(OrbQt::mousePos(event).y())) {
        clearSelection();
    }
}

void TableListView::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    clearSelection();
    const QModelIndex index = d->pressed;
    d->pressed = QPersistentModelIndex();
    if (!d->scroller->release() || !index.isValid() || indexAt(OrbQt::mousePos(event)) != index) {
        return;
    }
    // A receiver may change the rows or delete the list.
    const QPersistentModelIndex tapped = index;
    QPointer<TableListView> guard(this);
    Q_EMIT clicked(index);
    if (guard && tapped.isValid()) {
        Q_EMIT itemColumnClicked(model(), tapped);
    }
}
