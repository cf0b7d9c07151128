#include "vwfunctionsetting.h"

#include "canbus_raise_volkswagen.h"
#include "selectdialog.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QEvent>

VWFunctionSetting::VWFunctionSetting(unsigned int appId, CanBus_Raise_Volkswagen *adapter, QWidget *parent)
    : OrbMainWindow(appId, parent)
    , m_adapter(adapter)
    , m_state(appId)
    , m_model(new TableViewModel(this))
    , m_list(new TableListView(this))
    , m_left(false)
{
    setWindowTitle(getAppTitleFromId(appId));
    m_list->setObjectName(QLatin1String("listSettings"));
    m_list->setModel(m_model);
    setCentralWidget(m_list);
    connect(adapter, SIGNAL(recvCanDatas(quint8, const quint8 *, quint8)), this,
            SLOT(onRecvCanDatas(quint8, const quint8 *, quint8)));
    connect(adapter, SIGNAL(languageChanged()), this, SLOT(retranslate()));
}

VWFunctionSetting::~VWFunctionSetting()
{
    // The framework has put the dialog on the unit's screen, so it does not go with its page by itself.
    delete m_dialog;
}

void VWFunctionSetting::onLoadUiSkin()
{
    refresh();
    m_adapter->repeatReports(this);
    sendRequests();
    connect(m_list, SIGNAL(itemColumnClicked(QAbstractItemModel *, QModelIndex)), this,
            SLOT(onItemColumnClicked(QAbstractItemModel *, QModelIndex)));
    connect(m_list, SIGNAL(pressed(QModelIndex)), this, SLOT(onItemPressed(QModelIndex)));
}

void VWFunctionSetting::sendRequests()
{
    const Vw::SettingPage *const page = Vw::settingPage(appId());
    for (int i = 0; page && i < page->requestCount; ++i) {
        m_adapter->syncData(page->requestCommand, page->requests[i]);
    }
}

void VWFunctionSetting::onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen)
{
    if (m_state.take(PackageView(cmd, datas, dataLen))) {
        refresh();
    }
}

void VWFunctionSetting::refresh()
{
    const QList<TableViewItemDatas> rows = m_state.rows();
    const int present = m_model->rowCount();
    m_model->removeItemDatas(rows.size(), present - rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        if (i < present) {
            m_model->setItemDatas(i, rows.at(i));
        } else {
            m_model->appendItemDatas(rows.at(i));
        }
    }
}

void VWFunctionSetting::send(int item, int value)
{
    m_adapter->writeSettingData(quint8(item), quint8(value));
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
    } else if (index.column() == TableViewItemDatas::ValueColumn) {
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
        send(row.item, 1);
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
    m_state.setValue(item, value);
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
    m_state.setValue(row.item, chosen);
    if (Vw::dropsProfileRows(appId(), row.item)) {
        m_state.dropProfileRows();
    }
    refresh();
}

void VWFunctionSetting::chooseNumber(const Vw::SettingRow &row, const QModelIndex &index)
{
    const QPointer<VWFunctionSetting> self(this);
    const QSize range = index.data(Vw::RangeRole).toSize();
    const QString unit = QLatin1Char(' ') + index.data(Vw::UnitRole).toString();
    const int chosen =
        showSelectSliderModeDialog(range.width(), range.height(), index.data(Vw::StepRole).toInt(), unit,
                                   index.data(Vw::ValueRole).toInt(), index);
    if (!self || m_left) {
        return;
    }
    if (chosen >= 0) {
        m_state.setValue(row.item, chosen);
        refresh();
    }
    if (chosen >= 0 || (Vw::sendsWhenCancelled(row.item) && m_state.isKnown(row.item))) {
        send(row.item, m_state.value(row.item, 0));
    }
}

void VWFunctionSetting::confirmAction(const Vw::SettingRow &row)
{
    const QPointer<VWFunctionSetting> self(this);
    const QString label = Vw::text(row.label);
    bool confirmed;
    if (appId() == Vw::FactoryPage) {
        confirmed = showConfirmDialog(
            tr("Factory settings"),
            QString::fromLatin1("%1 %2 %3 ?").arg(tr("Are you sure restore"), label, tr("settings")));
    } else {
        confirmed = showConfirmDialog(tr("Driving data"), tr("Are you sure ") + label + QLatin1Char('?'));
    }
    if (self && !m_left && confirmed) {
        send(row.item, 1);
    }
}

// ---------------------------------------------------------------------------------------------- dialogs
//
// A dialog runs an event loop of its own, in which the page may be left and deleted; the dialog then ends as
// if it had been cancelled, and nothing of the page may be touched any more.

SelectDialog *VWFunctionSetting::newDialog(const QString &title)
{
    m_dialog = new SelectDialog(this);
    m_dialog->setWindowTitle(title);
    return m_dialog;
}

int VWFunctionSetting::showSelectCheckBoxModeDialog(const QStringList &options, int current,
                                                    const QModelIndex &index)
{
    const QPointer<SelectDialog> dialog(newDialog(getItemText(index)));
    dialog->setCheckBoxListMode(options, options.value(current), true);
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
    const QPointer<SelectDialog> dialog(newDialog(getItemText(index)));
    dialog->setSliderMode(minimum, maximum, step, value, unit);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) {
        return -1;
    }
    const int chosen = accepted ? dialog->getSliderValue() : -1;
    delete dialog;
    return chosen;
}

bool VWFunctionSetting::showConfirmDialog(const QString &title, const QString &text)
{
    const QPointer<SelectDialog> dialog(newDialog(title));
    dialog->setContentText(text);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) {
        return false;
    }
    delete dialog;
    return accepted;
}

// ---------------------------------------------------------------------------------------------- leaving

void VWFunctionSetting::onBackEvent()
{
    leave();
}

void VWFunctionSetting::onHomeEvent()
{
    leave();
}

void VWFunctionSetting::leave()
{
    m_left = true;
    if (m_dialog) {
        m_dialog->reject();
    }
    deleteLater();
}

// ---------------------------------------------------------------------------------------------- texts

void VWFunctionSetting::changeEvent(QEvent *event)
{
    OrbMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void VWFunctionSetting::retranslate()
{
    setWindowTitle(getAppTitleFromId(appId()));
    refresh();
}

QString VWFunctionSetting::getAppTitleFromId(unsigned int appId)
{
    const Vw::SettingPage *const page = Vw::settingPage(appId);
    return page ? Vw::text(page->title) : QString();
}

/// The row's label, which titles its dialog.
QString VWFunctionSetting::getItemText(const QModelIndex &index) const
{
    return m_model->itemDatas(index.row()).text();
}

QString VWFunctionSetting::getItemSliderValueText(const TableViewItemDatas &row)
{
    return Vw::numberText(row.bindData(Vw::ValueRole).toInt(), row.bindData(Vw::UnitRole).toString());
}
