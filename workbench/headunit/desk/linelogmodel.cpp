#include "linelogmodel.h"

#include "deskcolours.h"
#include "linerecorder.h"

namespace {

const int ShowInterval = 200; // ms; a busy line has hundreds of records a second

void dropOldest(std::deque<LineRecord> *records, int most)
{
    while (int(records->size()) > most) {
        records->pop_front();
    }
}

} // namespace

LineLogModel::LineLogModel(LineRecorder *recorder, QObject *parent) : QAbstractTableModel(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(ShowInterval);
    connect(&m_timer, &QTimer::timeout, this, &LineLogModel::showWaiting);
    connect(recorder, &LineRecorder::recorded, this, &LineLogModel::take);
    for (const LineRecord &record : recorder->ring().records()) {
        take(record);
    }
}

void LineLogModel::take(const LineRecord &record)
{
    m_waiting.push_back(record);
    dropOldest(&m_waiting, MostRows);
    if (!m_isPaused && !m_timer.isActive()) {
        m_timer.start();
    }
}

void LineLogModel::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    if (isPaused) {
        m_timer.stop();
    } else {
        showWaiting();
    }
}

void LineLogModel::showWaiting()
{
    const int surplus = int(m_records.size() + m_waiting.size()) - MostRows;
    const int gone = qBound(0, surplus, int(m_records.size()));
    if (gone > 0) {
        beginRemoveRows(QModelIndex(), 0, gone - 1);
        m_records.erase(m_records.begin(), m_records.begin() + gone);
        endRemoveRows();
    }
    if (!m_waiting.empty()) {
        const int first = int(m_records.size());
        beginInsertRows(QModelIndex(), first, first + int(m_waiting.size()) - 1);
        m_records.insert(m_records.end(), m_waiting.begin(), m_waiting.end());
        m_waiting.clear();
        endInsertRows();
    }
}

int LineLogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

int LineLogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString LineLogModel::text(const LineRecord &record, int column) const
{
    switch (column) {
    case TimeColumn:
        return QString::number(double(record.microseconds) / 1000000, 'f', 3);
    case DirectionColumn:
        return QString(QLatin1Char(record.sign()));
    default:
        return record.kind == LineRecord::State ? record.text : QString::fromLatin1(record.bytes.toHex(' '));
    }
}

QVariant LineLogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_records.size())) {
        return QVariant();
    }
    const LineRecord &record = m_records[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(record, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == TimeColumn ? int(Qt::AlignRight | Qt::AlignVCenter)
                                            : int(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return record.kind == LineRecord::Unframed ? QVariant(DeskColours::Error)
               : record.kind == LineRecord::State  ? QVariant(DeskColours::Warning)
               : record.kind == LineRecord::ToBox  ? QVariant(DeskColours::Accent)
                                                   : QVariant(DeskColours::Text);
    default:
        return QVariant();
    }
}

QVariant LineLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return section == TimeColumn ? tr("Time, s") : section == DirectionColumn ? QString() : tr("Bytes");
}

QString LineLogModel::line(int row) const
{
    const LineRecord &record = m_records[size_t(row)];
    const QString what =
        record.kind == LineRecord::State ? record.text : QString::fromLatin1(record.bytes.toHex());
    return QStringLiteral("(%1) %2 %3")
        .arg(double(record.microseconds) / 1000000, 0, 'f', 6)
        .arg(QLatin1Char(record.sign()))
        .arg(what);
}
