#include "ratestable.h"

#include "deskstyle.h"
#include "inspection.h"

#include <QHeaderView>

namespace {

enum Column { CommandColumn, CountColumn, RateColumn, ChangesColumn, BadColumn, ColumnCount };

const int RowHeight = 22;
const int Interval = 900; // ms

} // namespace

RatesTable::RatesTable(QWidget *parent) : QTableWidget(0, ColumnCount, parent)
{
    DeskStyle::makeDense(this, RowHeight);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    horizontalHeader()->setSectionResizeMode(CommandColumn, QHeaderView::Stretch);
    for (int i = CountColumn; i < ColumnCount; ++i) {
        setColumnWidth(i, i == ChangesColumn ? 92 : 54);
    }
    connect(this, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        Q_EMIT filterWanted(item(row, CommandColumn)->data(Qt::UserRole).toString());
    });
}

void RatesTable::setHeadings(const QStringList &headings)
{
    setHorizontalHeaderLabels(headings);
    for (int i = CountColumn; i < ColumnCount; ++i) {
        horizontalHeaderItem(i)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void RatesTable::showRates(const Inspection &inspection)
{
    if (m_age.isValid() && m_age.elapsed() < Interval) {
        return;
    }
    m_age.start();
    setRowCount(int(inspection.rates().size()));
    int row = 0;
    for (auto i = inspection.rates().cbegin(); i != inspection.rates().cend(); ++i, ++row) {
        const QString command = QStringLiteral("0x%1").arg(i.key().command, 2, 16, QLatin1Char('0'));
        const bool isIn = i.key().isTowardsUnit;
        const QString texts[] = {
            (isIn ? QStringLiteral("‹ ") : QStringLiteral("› ")) + command + ' ' + i->name,
            QString::number(i->count), QString::number(i->perSecond(inspection.now()), 'f', 1),
            QString::number(i->changes), QString::number(i->bad)};
        for (int column = 0; column < columnCount(); ++column) {
            if (!item(row, column)) {
                setItem(row, column, new QTableWidgetItem);
                item(row, column)
                    ->setTextAlignment(Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight));
            }
            item(row, column)->setText(texts[column]);
        }
        item(row, 0)->setData(Qt::UserRole, "cmd=" + command + (isIn ? " dir=in" : " dir=out"));
    }
}
