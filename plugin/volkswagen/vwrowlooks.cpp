#include "vwrowlooks.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

namespace Vw {
namespace {

const char DropDownMark[] = ":/dazhong/set/xiala.png";
const char OpenMark[] = ":/dazhong/set/open.png";
const char NumberMark[] = ":/dazhong/set/number.png";
const char ResetMark[] = ":/dazhong/set/act.png";
const char StoreMark[] = ":/dazhong/set/store.png";
const char SentMark[] = ":/dazhong/set/sent.png";

// Named here, where the translators' tools see that it belongs to this namespace.
const char *const Sent = QT_TR_NOOP("Sent");

const char *markOf(const SettingRow &row)
{
    switch (row.kind) {
    case SettingRow::Link:
        return OpenMark;
    case SettingRow::Options:
        return DropDownMark;
    case SettingRow::Number:
        return NumberMark;
    case SettingRow::Action:
    case SettingRow::ConfirmedAction:
        return row.item == TyresSetItem ? StoreMark : ResetMark;
    default:
        return "";
    }
}

int kindLooks(const SettingRow &row)
{
    switch (row.kind) {
    case SettingRow::Options:
    case SettingRow::Number:
        return TableItemDelegate::Changeable;
    case SettingRow::Action:
    case SettingRow::ConfirmedAction:
        return TableItemDelegate::Button;
    case SettingRow::Reading:
        return TableItemDelegate::Inert;
    default:
        return 0;
    }
}

bool hasValue(const SettingRow &row)
{
    return row.kind == SettingRow::Switch || row.kind == SettingRow::Options ||
           row.kind == SettingRow::Number || row.kind == SettingRow::Reading;
}

} // namespace

void setLooks(TableViewItemDatas &item, const SettingRow &row, const RowState &state)
{
    int looks = kindLooks(row);
    if (hasValue(row) && !state.isKnown) {
        looks |= TableItemDelegate::Unknown;
    }
    if (state.isWarning) {
        looks |= TableItemDelegate::Warning;
    }
    item.setBindData(TableItemDelegate::LooksRole, looks);
    item.setMark(QLatin1String(state.isSent ? SentMark : markOf(row)));
    if (state.isSent) {
        item.setBindData(TableItemDelegate::NoteRole, text(Sent));
    }
}

void setReportLooks(TableViewItemDatas &item)
{
    item.setBindData(TableItemDelegate::LooksRole, int(TableItemDelegate::Inert));
}

} // namespace Vw
