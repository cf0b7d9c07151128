#include "vwfunctionsetting.h"

#include "canbus_raise_volkswagen.h"
#include "selectdialog.h"
#include "vwcommands.h"
#include "vwtexts.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const char FootStyle[] = "color:#C3CBD6;border-top:1px solid #2A323E;font-size:20px;padding:12px 24px;";

} // namespace

VWFunctionSetting::VWFunctionSetting(unsigned int appId, CanBus_Raise_Volkswagen *adapter, QWidget *parent)
    : OrbMainWindow(appId, parent)
    , m_adapter(adapter)
    , m_state(appId)
    , m_model(new TableViewModel(this))
    , m_list(new TableListView(this))
    , m_foot(new QLabel(this))
    , m_asked(Vw::SettingRow())
    , m_left(false)
{
    setWindowTitle(getAppTitleFromId(appId));
    m_list->setObjectName(QLatin1String("listSettings"));
    m_list->setModel(m_model);
    // Below the rows, so that none moves under a finger when it comes or goes.
    m_foot->setObjectName(QLatin1String("labelFoot"));
    m_foot->setAlignment(Qt::AlignCenter);
    m_foot->setStyleSheet(QLatin1String(FootStyle));
    m_foot->hide();
    QWidget *const content = new QWidget(this);
    QVBoxLayout *const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_list);
    column->addWidget(m_foot);
    setCentralWidget(content);

    m_memory.recall(m_state);
    m_silenceTimer.setSingleShot(true);
    m_sentTimer.setSingleShot(true);
    connect(&m_silenceTimer, SIGNAL(timeout()), SLOT(onCarSilent()));
    connect(&m_ageTimer, SIGNAL(timeout()), SLOT(showFoot()));
    connect(&m_sentTimer, SIGNAL(timeout()), SLOT(onSentShown()));
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
    m_silenceTimer.start(Vw::AnswerPatience);
    refresh();
    m_adapter->repeatReports(this);
    sendRequests();
    if (m_state.reportCommand() != 0) {
        m_ageTimer.start(Vw::AgeInterval);
    }
    connect(m_list, SIGNAL(itemColumnClicked(QAbstractItemModel *, QModelIndex)), this,
            SLOT(onItemColumnClicked(QAbstractItemModel *, QModelIndex)));
    connect(m_list, SIGNAL(pressed(QModelIndex)), this, SLOT(onItemPressed(QModelIndex)));
}

void VWFunctionSetting::sendRequests()
{
    const Vw::SettingPage *const page = Vw::settingPage(appId());
    const QList<quint8> requests = m_state.unanswered();
    for (int i = 0; page && i < requests.size(); ++i) {
        m_adapter->syncData(page->requestCommand, requests.at(i));
    }
}

// A package may have been lost on the way; a car that still says nothing has nothing to say.
void VWFunctionSetting::onCarSilent()
{
    sendRequests();
    showFoot();
}

void VWFunctionSetting::showFoot()
{
    const bool waits = m_state.isSilent() && !m_silenceTimer.isActive();
    const QString text =
        waits ? Vw::waitingText() : Vw::ageText(m_adapter->reportAge(m_state.reportCommand()));
    m_foot->setText(text);
    m_foot->setVisible(!text.isEmpty());
    // Without rows the words have the page for themselves.
    m_list->setMaximumHeight(waits && m_model->rowCount() == 0 ? 0 : QWIDGETSIZE_MAX);
}

void VWFunctionSetting::onSentShown()
{
    m_state.setSent(Vw::NoItem);
    refresh();
}

void VWFunctionSetting::onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen)
{
    if (m_state.take(PackageView(cmd, datas, dataLen))) {
        refresh();
        showFoot();
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
    showFoot();
    translateDialog();
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
