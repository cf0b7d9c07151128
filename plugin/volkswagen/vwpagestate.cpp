#include "vwpagestate.h"

#include "vwcommands.h"
#include "vwrowlooks.h"
#include "vwtexts.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QSize>

namespace Vw {
namespace {

const char IconFolder[] = ":/dazhong/set/";
const char InfoIcon[] = "info.png";
const char ReportIcon[] = "report.png";
const char ConsumerIcon[] = "consumer.png";
const char NoReading[] = "--";

// Named here, where the translators' tools see that they belong to this namespace.
const char *const NoEntries = QT_TR_NOOP("No entries available");
const char *const Overdue = QT_TR_NOOP("overdue by");
const char *const StartStopOff = QT_TR_NOOP("Start-stop system is deactivated");
const char *const StartStopOn = QT_TR_NOOP("Start-stop system is activated");
const char *const ReportCode = QT_TR_NOOP("Report code");

QString iconPath(const char *fileName)
{
    return fileName ? QLatin1String(IconFolder) + QLatin1String(fileName) : QString();
}

TableViewItemDatas reportItem(const QString &label, const char *icon, const QString &value = QString())
{
    TableViewItemDatas item(NoItem, label, iconPath(icon));
    item.setValue(TableListView::ValueColumn, value);
    setReportLooks(item);
    return item;
}

// The lines of a report that has come, or one that says that there are none.
QList<TableViewItemDatas> orNoEntries(const QList<TableViewItemDatas> &items)
{
    if (!items.isEmpty()) {
        return items;
    }
    return QList<TableViewItemDatas>() << reportItem(text(NoEntries), InfoIcon);
}

QString readingText(const ServiceReading &reading)
{
    const QString count = numberText(reading.count, text(reading.unit));
    switch (reading.form) {
    case ServiceReading::Text:
        return reading.text;
    case ServiceReading::Count:
        return count;
    case ServiceReading::Overdue:
        return text(Overdue) + QLatin1Char(' ') + count;
    default:
        return QLatin1String(NoReading);
    }
}

} // namespace

QStringList optionTexts(const SettingRow &row)
{
    QStringList texts;
    for (int i = 0; i < row.optionCount(); ++i) {
        texts.append(text(row.options[i]));
    }
    return texts;
}

QString numberText(int value, const QString &unit)
{
    return unit.isEmpty() ? QString::number(value) : QString::number(value) + QLatin1Char(' ') + unit;
}

PageState::PageState(unsigned int page)
    : m_id(page)
    , m_page(settingPage(page))
    , m_sent(NoItem)
    , m_speedInMph(false)
    , m_startStop(StartStopReport())
    , m_numbers(NumbersReport())
{
    for (int i = 0; m_page && i < m_page->rowCount; ++i) {
        m_rows.append(m_page->rows[i]);
    }
    for (int i = 0; m_page && i < m_page->requestCount; ++i) {
        m_unanswered.append(m_page->requests[i]);
    }
}

// ---------------------------------------------------------------------------------------------- replies

quint8 PageState::reportCommand() const
{
    switch (m_id) {
    case StartStopPage:
        return StartStopReply;
    case ReportsPage:
        return ReportsReply;
    case ConsumersPage:
        return ConsumersReply;
    default:
        return 0;
    }
}

bool PageState::take(const PackageView &d)
{
    if (reportCommand() != 0) {
        return d.command() == reportCommand() && takeReport(d);
    }
    if (!m_page || m_page->requestCount == 0 || d.command() != m_page->requestCommand || d.n() == 0) {
        return false;
    }
    // Most replies share one command: what another page asked for is no news here.
    const bool isAnswer = m_unanswered.removeAll(d.d(0)) > 0;
    return takeSettings(d) || isAnswer;
}

bool PageState::takeReport(const PackageView &d)
{
    if (m_id == StartStopPage) {
        const StartStopReport report = startStopReport(d);
        if (report.valid) {
            m_startStop = report;
        }
        return report.valid;
    }
    const NumbersReport report = m_id == ReportsPage ? vehicleReports(d) : consumersReport(d);
    if (report.valid) {
        m_numbers = report;
    }
    return report.valid;
}

QList<quint8> PageState::unanswered() const
{
    return m_unanswered;
}

bool PageState::isSilent() const
{
    if (reportCommand() != 0) {
        return !m_startStop.valid && !m_numbers.valid;
    }
    return m_page && m_page->requestCount > 0 && m_unanswered.size() == m_page->requestCount;
}

bool PageState::takeSettings(const PackageView &d)
{
    bool isTaken = false;
    if (d.command() == ServiceReply) {
        const ServiceReading reading = serviceReading(d);
        if (reading.form != ServiceReading::Absent) {
            m_readings.insert(reading.item, reading);
            isTaken = true;
        }
    }
    if (m_id == TyresPage && WarningSpeedUnitField.isIn(d)) {
        m_speedInMph = WarningSpeedUnitField.valueIn(d) != 0;
        isTaken = true;
    }

    for (int i = 0; i < m_rows.size(); ++i) {
        // A new driving mode changes the rows behind it, which this reply then fills as well.
        const SettingRow row = m_rows.at(i);
        isTaken = takeField(row, row.field, d) || isTaken;
        if (row.item == DrivingModeItem) {
            isTaken = takeField(row, SecondDrivingModeField, d) || isTaken;
        }
    }
    return isTaken;
}

bool PageState::takeField(const SettingRow &row, const ReplyField &field, const PackageView &d)
{
    if (!field.isIn(d)) {
        return false;
    }
    int value = field.valueIn(d);
    if (row.kind == SettingRow::Options) {
        value = row.optionOf(value);
    }
    if (value < 0) {
        return false;
    }
    m_values.insert(row.item, value);
    if (row.item == DrivingModeItem) {
        showProfileRows();
    }
    return true;
}

// ---------------------------------------------------------------------------------------------- profile

void PageState::showProfileRows()
{
    dropProfileRows();
    m_rows.append(profileRows(value(DrivingModeItem, -1)));
}

void PageState::dropProfileRows()
{
    while (m_page && m_rows.size() > m_page->rowCount) {
        m_rows.removeLast();
    }
}

// ---------------------------------------------------------------------------------------------- rows

const SettingRow *PageState::row(int index) const
{
    return index >= 0 && index < m_rows.size() ? &m_rows.at(index) : nullptr;
}

NumberRange PageState::rangeOf(const SettingRow &row) const
{
    return row.item == WarningSpeedItem && m_speedInMph ? WarningSpeedMph : row.range;
}

QList<TableViewItemDatas> PageState::rows() const
{
    if (reportCommand() != 0 && isSilent()) {
        return QList<TableViewItemDatas>();
    }
    if (m_id == StartStopPage) {
        return startStopRows();
    }
    if (m_id == ReportsPage) {
        return reportRows();
    }
    if (m_id == ConsumersPage) {
        return consumerRows();
    }
    QList<TableViewItemDatas> items;
    for (int i = 0; i < m_rows.size(); ++i) {
        items.append(itemOf(m_rows.at(i)));
    }
    return items;
}

RowState PageState::stateOf(const SettingRow &row) const
{
    const ServiceReading::Form form = m_readings.value(row.item).form;
    const bool isRead =
        form == ServiceReading::Count || form == ServiceReading::Overdue || form == ServiceReading::Text;
    const bool isReading = row.kind == SettingRow::Reading;
    const RowState state = {isReading ? isRead : isKnown(row.item),
                            isReading && form == ServiceReading::Overdue,
                            row.item != NoItem && row.item == m_sent};
    return state;
}

TableViewItemDatas PageState::itemOf(const SettingRow &row) const
{
    TableViewItemDatas item(row.item, text(row.label), iconPath(row.icon));
    item.setHeading(row.kind == SettingRow::Heading);
    item.setBindData(PageRole, row.opens);
    setLooks(item, row, stateOf(row));
    if (row.kind == SettingRow::Switch) {
        item.setValue(TableListView::ValueColumn, value(row.item, 0) != 0);
        return item;
    }
    item.setValue(TableListView::ValueColumn, valueText(row));
    if (row.kind == SettingRow::Options) {
        item.setBindData(OptionsRole, optionTexts(row));
    } else if (row.kind == SettingRow::Number) {
        const NumberRange range = rangeOf(row);
        item.setBindData(RangeRole, QSize(range.minimum, range.maximum));
        item.setBindData(ValueRole, value(row.item, range.minimum));
        item.setBindData(StepRole, range.step);
        item.setBindData(UnitRole, text(range.unit));
    }
    return item;
}

QString PageState::valueText(const SettingRow &row) const
{
    if (row.kind == SettingRow::Reading) {
        return m_readings.contains(row.item) ? readingText(m_readings.value(row.item))
                                             : QString::fromLatin1(NoReading);
    }
    if (!isKnown(row.item)) {
        return QString();
    }
    if (row.kind == SettingRow::Options) {
        return text(row.options[value(row.item, 0)]);
    }
    return row.kind == SettingRow::Number ? numberText(value(row.item, 0), text(rangeOf(row).unit))
                                          : QString();
}

QList<TableViewItemDatas> PageState::startStopRows() const
{
    QList<TableViewItemDatas> reasons;
    for (int i = 0; i < m_startStop.texts.size(); ++i) {
        const QString reason = getStartStopInfo(m_startStop.texts.at(i));
        if (!reason.isEmpty()) {
            reasons.append(reportItem(reason, InfoIcon));
        }
    }
    QList<TableViewItemDatas> items;
    if (!m_startStop.active) {
        items.append(reportItem(text(StartStopOff), "startstop.png"));
    } else if (reasons.isEmpty()) {
        items.append(reportItem(text(StartStopOn), "startstop.png"));
    }
    return orNoEntries(items + reasons);
}

QList<TableViewItemDatas> PageState::reportRows() const
{
    QList<TableViewItemDatas> items;
    for (int i = 0; i < m_numbers.numbers.size(); ++i) {
        items.append(reportItem(text(ReportCode), ReportIcon, getReportInfo(m_numbers.numbers.at(i))));
    }
    return orNoEntries(items);
}

QList<TableViewItemDatas> PageState::consumerRows() const
{
    QList<TableViewItemDatas> items;
    for (int i = 0; i < m_numbers.numbers.size(); ++i) {
        const QString consumer = getConvConsumerInfo(m_numbers.numbers.at(i));
        if (!consumer.isEmpty()) {
            items.append(reportItem(consumer, ConsumerIcon));
        }
    }
    return orNoEntries(items);
}

} // namespace Vw
