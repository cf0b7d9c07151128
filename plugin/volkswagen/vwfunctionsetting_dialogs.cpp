// The page under a finger: what a tap does, and the dialogs that it opens.

#include "canbus_raise_volkswagen.h"
#include "selectdialog.h"
#include "vwfunctionsetting.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

namespace {

// Behind the number, in its dialog.
QString unitText(const Vw::NumberRange &range)
{
    return QLatin1Char(' ') + Vw::text(range.unit);
}

const int SentShownFor = 3000; // ms

} // namespace

void VWFunctionSetting::send(int item, int value)
{
    m_adapter->writeSettingData(quint8(item), quint8(value));
}

void VWFunctionSetting::choose(int item, int value)
{
    m_state.setValue(item, value);
    m_memory.keep(item, value);
}

// The car answers nothing that could be shown, so the row says itself that the order has left.
void VWFunctionSetting::act(int item)
{
    send(item, 1);
    m_memory.forgetAfter(item, m_state);
    m_state.setSent(item);
    refresh();
    m_sentTimer.start(SentShownFor);
}

// ---------------------------------------------------------------------------------------------- clicks

void VWFunctionSetting::onItemColumnClicked(QAbstractItemModel *, const QModelIndex &index)
{
    const Vw::SettingRow *const row = m_state.row(index.row());
    if (m_dialog || m_left || !row) {
        return;
    }
    if (row->kind != Vw::SettingRow::Switch) {
        onItemClicked(index);
    } else if (index.column() == TableListView::ValueColumn) {
        toggleSwitch(*row);
    }
}

void VWFunctionSetting::onItemClicked(const QModelIndex &index)
{
    // A copy: replies that arrive while a dialog is open may change the rows.
    const Vw::SettingRow row = *m_state.row(index.row());
    switch (row.kind) {
    case Vw::SettingRow::Link:
        openPage(row.opens);
        break;
    case Vw::SettingRow::Options:
        chooseOption(row, index);
        break;
    case Vw::SettingRow::Number:
        chooseNumber(row, index);
        break;
    case Vw::SettingRow::Action:
        act(row.item);
        break;
    case Vw::SettingRow::ConfirmedAction:
        confirmAction(row);
        break;
    case Vw::SettingRow::Heading:
    case Vw::SettingRow::Switch:
    case Vw::SettingRow::Reading:
        break;
    }
}

void VWFunctionSetting::toggleSwitch(const Vw::SettingRow &row)
{
    const int item = row.item;
    const int value = m_state.value(item, 0) == 0 ? 1 : 0;
    choose(item, value);
    refresh();
    if (item != Vw::NoItem) {
        send(item, value);
    }
}

void VWFunctionSetting::openPage(unsigned int appId)
{
    VWFunctionSetting *const page = new VWFunctionSetting(appId, m_adapter);
    page->setVisible(true);
}

void VWFunctionSetting::chooseOption(const Vw::SettingRow &row, const QModelIndex &index)
{
    const QPointer<VWFunctionSetting> self(this);
    const QStringList options = index.data(Vw::OptionsRole).toStringList();
    const int chosen = showSelectCheckBoxModeDialog(options, m_state.value(row.item, -1), index);
    if (!self || m_left || row.codeOf(chosen) < 0) {
        return;
    }
    send(row.item, row.codeOf(chosen));
    choose(row.item, chosen);
    if (Vw::dropsProfileRows(appId(), row.item)) {
        m_state.dropProfileRows();
    }
    refresh();
}

void VWFunctionSetting::chooseNumber(const Vw::SettingRow &row, const QModelIndex &index)
{
    const QPointer<VWFunctionSetting> self(this);
    const QSize range = index.data(Vw::RangeRole).toSize();
    const int chosen =
        showSelectSliderModeDialog(range.width(), range.height(), index.data(Vw::StepRole).toInt(),
                                   unitText(m_state.rangeOf(row)), index.data(Vw::ValueRole).toInt(), index);
    if (!self || m_left) {
        return;
    }
    if (chosen >= 0) {
        choose(row.item, chosen);
        refresh();
    }
    if (chosen >= 0 || (Vw::sendsWhenCancelled(row.item) && m_state.isKnown(row.item))) {
        send(row.item, m_state.value(row.item, 0));
    }
}

void VWFunctionSetting::confirmAction(const Vw::SettingRow &row)
{
    const QPointer<VWFunctionSetting> self(this);
    const bool confirmed = showConfirmDialog(row);
    if (self && !m_left && confirmed) {
        act(row.item);
    }
}

// ---------------------------------------------------------------------------------------------- dialogs
//
// A dialog runs an event loop of its own, in which the page may be left and deleted; the dialog then ends as
// if it had been cancelled, and nothing of the page may be touched any more.

SelectDialog *VWFunctionSetting::newDialog(const Vw::SettingRow &row)
{
    m_dialog = new SelectDialog(this);
    m_asked = row;
    return m_dialog;
}

int VWFunctionSetting::showSelectCheckBoxModeDialog(const QStringList &options, int current,
                                                    const QModelIndex &index)
{
    const QPointer<SelectDialog> dialog(newDialog(*m_state.row(index.row())));
    dialog->setCheckBoxListMode(options, options.value(current), true);
    translateDialog();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) {
        return -1;
    }
    const int chosen = accepted ? dialog->getCheckedIndex() : -1;
    delete dialog;
    return chosen;
}

int VWFunctionSetting::showSelectSliderModeDialog(int minimum, int maximum, int step, const QString &unit,
                                                  int value, const QModelIndex &index)
{
    const QPointer<SelectDialog> dialog(newDialog(*m_state.row(index.row())));
    dialog->setSliderMode(minimum, maximum, step, value, unit);
    translateDialog();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) {
        return -1;
    }
    const int chosen = accepted ? dialog->getSliderValue() : -1;
    delete dialog;
    return chosen;
}

bool VWFunctionSetting::showConfirmDialog(const Vw::SettingRow &row)
{
    const QPointer<SelectDialog> dialog(newDialog(row));
    dialog->setContentText(questionOf(row));
    translateDialog();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) {
        return false;
    }
    delete dialog;
    return accepted;
}

// ---------------------------------------------------------------------------------------------- its texts

// Everything that the open dialog says, in the language that the unit speaks now.
void VWFunctionSetting::translateDialog()
{
    if (!m_dialog) {
        return;
    }
    if (m_asked.kind == Vw::SettingRow::ConfirmedAction) {
        m_dialog->setWindowTitle(questionTitle());
        m_dialog->retranslate(QStringList(questionOf(m_asked)));
        return;
    }
    m_dialog->setWindowTitle(Vw::text(m_asked.label));
    if (m_asked.kind == Vw::SettingRow::Options) {
        m_dialog->retranslate(Vw::optionTexts(m_asked));
    } else {
        m_dialog->retranslate(QStringList(unitText(m_state.rangeOf(m_asked))));
    }
    const bool isTold = m_state.isKnown(m_asked.item) || Vw::unreportedItems().contains(m_asked.item);
    m_dialog->setHint(isTold ? QString() : tr("The car has not told its value"));
}

QString VWFunctionSetting::questionTitle() const
{
    return appId() == Vw::FactoryPage ? tr("Factory settings") : tr("Driving data");
}

QString VWFunctionSetting::questionOf(const Vw::SettingRow &row) const
{
    const QString label = Vw::text(row.label);
    if (appId() == Vw::FactoryPage) {
        // The whole is translated as well: languages differ in the order of its parts.
        return tr("%1 %2 %3 ?").arg(tr("Are you sure restore"), label, tr("settings"));
    }
    return tr("Are you sure ") + label + tr("?");
}
