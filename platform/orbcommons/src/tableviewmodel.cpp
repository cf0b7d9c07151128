#include "tableviewmodel.h"

#include <algorithm>

namespace {

// Roles below are Qt's and the model's own.
const int FirstBindRole = 4096;

bool isColumn(int column)
{
    return column >= 0 && column < TableViewItemDatas::ColumnCount;
}

bool holdsBool(const QVariant &value)
{
    return value.userType() == QMetaType::Bool;
}

} // namespace

TableViewItemDatas::TableViewItemDatas(int itemId, const QString &text, const QString &icon)
    : m_itemId(itemId), m_heading(false), m_icon(icon)
{
    m_values[TextColumn] = text;
}

void TableViewItemDatas::setValue(int column, const QVariant &value)
{
    if (isColumn(column)) {
        m_values[column] = value;
    }
}

QVariant TableViewItemDatas::value(int column) const
{
    return isColumn(column) ? m_values[column] : QVariant();
}

bool TableViewItemDatas::isSwitch() const
{
    return holdsBool(m_values[ValueColumn]);
}

bool TableViewItemDatas::operator==(const TableViewItemDatas &other) const
{
    return m_itemId == other.m_itemId && m_heading == other.m_heading &&
           std::equal(m_values, m_values + ColumnCount, other.m_values) && m_icon == other.m_icon &&
           m_mark == other.m_mark && m_bindData == other.m_bindData;
}

TableViewModel::TableViewModel(QObject *parent) : QAbstractTableModel(parent) {}

TableViewModel::~TableViewModel() {}

int TableViewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int TableViewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(TableViewItemDatas::ColumnCount);
}

QVariant TableViewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || !isColumn(index.column())) {
        return QVariant();
    }
    const TableViewItemDatas &row = m_rows.at(index.row());
    const QVariant value = row.value(index.column());
    if (role == Qt::DisplayRole) {
        return holdsBool(value) ? QString() : value.toString();
    }
    if (role == Qt::CheckStateRole) {
        return holdsBool(value) ? QVariant(value.toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
    }
    if (role == Qt::DecorationRole && index.column() == TableViewItemDatas::TextColumn) {
        return row.icon();
    }
    return role >= FirstBindRole ? row.bindData(role) : QVariant();
}

Qt::ItemFlags TableViewModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return Qt::NoItemFlags;
    }
    return m_rows.at(index.row()).isHeading() ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

TableViewItemDatas TableViewModel::itemDatas(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row) : TableViewItemDatas();
}

void TableViewModel::setItemDatas(int row, const TableViewItemDatas &datas)
{
    if (row < 0 || row >= m_rows.size() || m_rows.at(row) == datas) {
        return;
    }
    m_rows[row] = datas;
    Q_EMIT dataChanged(index(row, 0), index(row, TableViewItemDatas::ColumnCount - 1));
}

void TableViewModel::setCellValue(int row, int column, const QVariant &value)
{
    if (row < 0 || row >= m_rows.size() || !isColumn(column)) {
        return;
    }
    m_rows[row].setValue(column, value);
    Q_EMIT dataChanged(index(row, column), index(row, column));
}

void TableViewModel::appendItemDatas(const TableViewItemDatas &datas)
{
    const int row = m_rows.size();
    beginInsertRows(QModelIndex(), row, row);
    m_rows.append(datas);
    endInsertRows();
}

void TableViewModel::removeItemDatas(int row, int count)
{
    const int size = m_rows.size();
    if (row < 0 || row >= size || count <= 0) {
        return;
    }
    const int last = count > size - row ? size - 1 : row + count - 1;
    beginRemoveRows(QModelIndex(), row, last);
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + last + 1);
    endRemoveRows();
}

void TableViewModel::clear()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

int TableViewModel::rowOfItem(int itemId) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).getItemId() == itemId) {
            return row;
        }
    }
    return -1;
}
