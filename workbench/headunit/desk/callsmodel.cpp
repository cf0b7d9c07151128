#include "callsmodel.h"

#include "deskcolours.h"
#include "inspection.h"
#include "inspectionmodel.h"

#include <algorithm>

CallsModel::CallsModel(const InspectionModel *rows, QObject *parent)
    : QAbstractListModel(parent), m_rows(rows)
{
    connect(rows, &InspectionModel::looked, this, &CallsModel::take);
    connect(rows, &InspectionModel::modelReset, this, &CallsModel::startOver);
}

void CallsModel::startOver()
{
    beginResetModel();
    m_calls.clear();
    m_next = 0;
    endResetModel();
    take();
}

void CallsModel::take()
{
    QVector<Call> calls;
    for (int row = m_rows->rowOf(m_next); row < m_rows->rowCount(); ++row) {
        m_next = m_rows->numberOf(row) + 1;
        for (int i = 0; i < m_rows->inspection().row(m_next - 1).calls.size(); ++i) {
            calls.append({m_next - 1, i});
        }
    }
    const qint64 first = m_rows->inspection().firstNumber();
    int gone = qBound(0, int(m_calls.size() + size_t(calls.size())) - MostCalls, int(m_calls.size()));
    while (gone < int(m_calls.size()) && m_calls[size_t(gone)].number < first) {
        ++gone;
    }
    if (gone > 0) {
        beginRemoveRows(QModelIndex(), 0, gone - 1);
        m_calls.erase(m_calls.begin(), m_calls.begin() + gone);
        endRemoveRows();
    }
    if (!calls.isEmpty()) {
        const int from = int(m_calls.size());
        beginInsertRows(QModelIndex(), from, from + int(calls.size()) - 1);
        m_calls.insert(m_calls.end(), calls.begin(), calls.end());
        endInsertRows();
    }
}

int CallsModel::rowOf(qint64 number) const
{
    const auto call = std::lower_bound(m_calls.begin(), m_calls.end(), number,
                                       [](const Call &one, qint64 other) { return one.number < other; });
    return call != m_calls.end() && call->number == number ? int(call - m_calls.begin()) : -1;
}

int CallsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_calls.size());
}

QVariant CallsModel::data(const QModelIndex &index, int role) const
{
    const bool isThere = index.isValid() && index.row() < rowCount();
    if (!isThere || numberOf(index.row()) < m_rows->inspection().firstNumber()) {
        return QVariant();
    }
    const Call &call = m_calls[size_t(index.row())];
    const InspectionRow &row = m_rows->inspection().row(call.number);
    if (role == Qt::ForegroundRole) {
        return call.index == 0 ? DeskColours::Text : DeskColours::Dim;
    }
    if (role == Qt::ToolTipRole) {
        return row.calls.value(call.index);
    }
    // The time stands at the first call of a row only.
    const QString time =
        call.index == 0 ? QString::number(double(row.microseconds) / 1e6, 'f', 3) : QString();
    return role == Qt::DisplayRole
               ? QVariant(QStringLiteral("%1  %2").arg(time, 9).arg(row.calls.value(call.index)))
               : QVariant();
}
