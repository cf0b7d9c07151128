#ifndef VWROWLOOKS_H
#define VWROWLOOKS_H

#include "vwsettingstable.h"

class TableViewItemDatas;

namespace Vw {

/// What the looks of a row depend on besides its kind.
struct RowState
{
    bool isKnown; ///< somebody has told its value
    bool isWarning;
    bool isSent; ///< its order has just left
};

/// Gives \a item, the list's record of \a row, what tells a driver what the row is for before any text is
/// read: its mark, and the looks of its value.
void setLooks(TableViewItemDatas &item, const SettingRow &row, const RowState &state);

/// The looks of a line that only reports.
void setReportLooks(TableViewItemDatas &item);

} // namespace Vw

#endif // VWROWLOOKS_H
