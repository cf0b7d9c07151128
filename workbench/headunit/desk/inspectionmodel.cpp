#include "inspectionmodel.h"

#include "deskcolours.h"
#include "inspectiontext.h"
#include "lineinspector.h"

#include <algorithm>

namespace {

const int LookInterval = 300; // ms
const int BusyInterval = 600; // of a line that fills the table anew each time, which nobody can read
const int BusyRows = 40;      // that came since the last look
const int CallsInCell = 2;

QString caused(const InspectionRow &row)
{
    QStringList texts;
    for (int i = 0; i < qMin(int(row.calls.size()), CallsInCell); ++i) {
        texts << row.calls.at(i).section('.', 1);
    }
    QString text = texts.join(QStringLiteral(" · "));
    if (row.calls.size() > CallsInCell) {
        text += QStringLiteral("  +%1").arg(row.calls.size() - CallsInCell);
    }
    return text;
}

QString cell(const InspectionRow &row, int column)
{
    switch (column) {
    case InspectionModel::TimeColumn:
        return QString::number(double(row.microseconds) / 1e6, 'f', 3);
    case InspectionModel::DirectionColumn:
        return row.isPackage() || row.kind == InspectionRow::Noise
                   ? row.isTowardsUnit ? QStringLiteral("‹") : QStringLiteral("›")
                   : QStringLiteral("·");
    case InspectionModel::SubjectColumn:
        return InspectionModel::subject(row);
    case InspectionModel::BytesColumn:
        return row.isPackage() ? QString::fromLatin1(row.data.toHex(' ')) : InspectionText::bytes(row);
    case InspectionModel::AnswerColumn:
        return InspectionText::acknowledgement(row);
    default:
        return caused(row);
    }
}

QColor colour(const InspectionRow &row)
{
    switch (row.kind) {
    case InspectionRow::BadPackage:
    case InspectionRow::Noise:
        return DeskColours::Error;
    case InspectionRow::State:
        return DeskColours::Warning;
    case InspectionRow::Call:
    case InspectionRow::UnitKey:
        return DeskColours::Good;
    case InspectionRow::Package:
        break;
    }
    return row.isTowardsUnit ? DeskColours::Text : DeskColours::Accent;
}

int alignment(int column)
{
    const bool isNumber = column == InspectionModel::TimeColumn || column == InspectionModel::AnswerColumn;
    return int(Qt::AlignVCenter) | (isNumber ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

InspectionModel::InspectionModel(LineInspector *inspector, QObject *parent)
    : QAbstractTableModel(parent), m_inspector(inspector)
{
    m_timer.setInterval(LookInterval);
    connect(&m_timer, &QTimer::timeout, this, &InspectionModel::look);
}

QString InspectionModel::subject(const InspectionRow &row)
{
    switch (row.kind) {
    case InspectionRow::BadPackage:
        return tr("BAD %1").arg(QString("0x%1").arg(row.command, 2, 16, QLatin1Char('0')));
    case InspectionRow::Noise:
        return tr("NO PACKAGE");
    case InspectionRow::State:
        return tr("LINE");
    case InspectionRow::Call:
        return tr("CALL");
    case InspectionRow::UnitKey:
        return tr("KEY");
    case InspectionRow::Package:
        break;
    }
    return InspectionText::subject(row);
}

const Inspection &InspectionModel::inspection() const
{
    return *m_inspector->inspection();
}

void InspectionModel::setFilter(const InspectionFilter &filter)
{
    beginResetModel();
    m_filter = filter;
    m_numbers.clear();
    const qint64 end = m_next;
    for (m_next = inspection().firstNumber(); m_next < end; ++m_next) {
        if (m_filter.matches(inspection().row(m_next))) {
            m_numbers.push_back(m_next);
        }
    }
    endResetModel();
}

void InspectionModel::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    look();
}

void InspectionModel::setAwake(bool isAwake)
{
    if (!isAwake) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_timer.start();
        look();
    }
}

void InspectionModel::look()
{
    m_inspector->catchUp();
    drop();
    const qint64 end = inspection().endNumber();
    if (!m_isPaused) {
        m_timer.setInterval(end - m_next > BusyRows ? BusyInterval : LookInterval);
        take(qMin(m_ripe, end));
        m_ripe = end;
    }
    Q_EMIT looked();
}

// What the inspection itself has let go.
void InspectionModel::drop()
{
    const qint64 first = inspection().firstNumber();
    m_next = qMax(m_next, first);
    const auto kept = std::lower_bound(m_numbers.begin(), m_numbers.end(), first);
    if (kept != m_numbers.begin()) {
        beginRemoveRows(QModelIndex(), 0, int(kept - m_numbers.begin()) - 1);
        m_numbers.erase(m_numbers.begin(), kept);
        endRemoveRows();
    }
}

void InspectionModel::take(qint64 end)
{
    QVector<qint64> numbers;
    for (; m_next < end; ++m_next) {
        if (m_filter.matches(inspection().row(m_next))) {
            numbers << m_next;
        }
    }
    if (!numbers.isEmpty()) {
        const int first = int(m_numbers.size());
        beginInsertRows(QModelIndex(), first, first + int(numbers.size()) - 1);
        m_numbers.insert(m_numbers.end(), numbers.begin(), numbers.end());
        endInsertRows();
    }
}

int InspectionModel::rowOf(qint64 number) const
{
    return int(std::lower_bound(m_numbers.begin(), m_numbers.end(), number) - m_numbers.begin());
}

int InspectionModel::find(const QString &text, int from, bool isBackwards) const
{
    const int count = rowCount();
    const QString bytes = QString(text).remove(' ');
    for (int i = 0; i < count; ++i) {
        const int row = (from + (isBackwards ? count - i : i)) % count;
        const InspectionRow &one = inspection().row(numberOf(row));
        const bool hasBytes =
            !bytes.isEmpty() && QString::fromLatin1(one.bytes.toHex()).contains(bytes, Qt::CaseInsensitive);
        if (hasBytes || InspectionText::plain(one).contains(text, Qt::CaseInsensitive)) {
            return row;
        }
    }
    return -1;
}

int InspectionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_numbers.size());
}

int InspectionModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant InspectionModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return QVariant();
    }
    const qint64 number = numberOf(index.row());
    if (number < inspection().firstNumber()) { // gone since the last look
        return QVariant();
    }
    const InspectionRow &row = inspection().row(number);
    switch (role) {
    case Qt::DisplayRole:
        return cell(row, index.column());
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    case Qt::ForegroundRole:
        return index.column() == SubjectColumn || index.column() == BytesColumn ||
                       index.column() == DirectionColumn
                   ? colour(row)
                   : DeskColours::Dim;
    default:
        return QVariant();
    }
}

QVariant InspectionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
        return alignment(section);
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    const QString titles[] = {tr("Time, s"), QString(),    tr("Package"),
                              tr("Data"),    tr("Answer"), tr("Caused")};
    return titles[section];
}
