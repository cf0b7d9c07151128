#ifndef VWPAGESTATE_H
#define VWPAGESTATE_H

#include "packageview.h"
#include "vwreports.h"
#include "vwrowlooks.h"
#include "vwsettingstable.h"

#include <QHash>
#include <QList>
#include <QStringList>

class TableViewItemDatas;

namespace Vw {

/// Roles of the bind data of a settings row.
enum BindRole {
    PageRole = 4096,    ///< unsigned: page that the row opens, 0 for none
    OptionsRole = 4097, ///< string list: texts to choose from
    RangeRole = 4098,   ///< size: minimum (width) and maximum (height) of a number
    ValueRole = 4099,   ///< int: the number
    StepRole = 4100,    ///< int: step of the number, non-zero for a number
    UnitRole = 4101     ///< string: unit of the number
};

/// What one settings page knows: its rows and the values that the car reported or the driver chose. Knows no
/// widgets; the page is drawn anew from rows() after every change.
class PageState
{
public:
    /// An unknown \a page has no rows.
    explicit PageState(unsigned int page);

    /// Takes a package of the box; false when it says nothing that this page shows. What a short package lacks
    /// stays as it was; values that a row has no text for are left out.
    bool take(const PackageView &package);

    /// The command of the report that the page shows, which nobody can ask for; 0 for a page of settings.
    quint8 reportCommand() const;

    /// The page's requests that the box has not answered yet, in their order.
    QList<quint8> unanswered() const;
    /// Whether the page shows what the car tells, and it has told nothing yet.
    bool isSilent() const;

    /// What the list shows, in the unit's language.
    QList<TableViewItemDatas> rows() const;

    /// The settings row at \a index of the list; null for a row that only reports, and past the list.
    const SettingRow *row(int index) const;

    /// The present value of \a item (0 or 1, index of an option, or number); \a otherwise when nobody has
    /// told it yet.
    int value(int item, int otherwise) const { return m_values.value(item, otherwise); }
    bool isKnown(int item) const { return m_values.contains(item); }
    /// The driver's choice; it stands until the car reports something else.
    void setValue(int item, int value) { m_values.insert(item, value); }
    void forgetValue(int item) { m_values.remove(item); }

    /// The row of \a item says "Sent" from now on, until it is another one's turn; NoItem: none's.
    void setSent(int item) { m_sent = item; }

    NumberRange rangeOf(const SettingRow &row) const;

    /// Takes the rows of an individual driving mode away until the car reports its mode again.
    void dropProfileRows();

private:
    bool takeReport(const PackageView &d);
    bool takeSettings(const PackageView &d);
    bool takeField(const SettingRow &row, const ReplyField &field, const PackageView &d);
    void showProfileRows();

    TableViewItemDatas itemOf(const SettingRow &row) const;
    RowState stateOf(const SettingRow &row) const;
    QString valueText(const SettingRow &row) const;
    QList<TableViewItemDatas> startStopRows() const;
    QList<TableViewItemDatas> reportRows() const;
    QList<TableViewItemDatas> consumerRows() const;

    const unsigned int m_id;
    const SettingPage *const m_page;
    QList<quint8> m_unanswered;
    QList<SettingRow> m_rows;
    int m_sent;
    QHash<int, int> m_values; // by item
    bool m_speedInMph;
    QHash<int, ServiceReading> m_readings; // by item
    StartStopReport m_startStop;
    NumbersReport m_numbers; // vehicle reports or consumers
};

/// Texts of the options of \a row, in the unit's language.
QStringList optionTexts(const SettingRow &row);

/// Value and unit of a number's row ("80 km/h"); the value alone without a unit.
QString numberText(int value, const QString &unit);

} // namespace Vw

#endif // VWPAGESTATE_H
