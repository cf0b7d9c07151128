#include "volkswagenwindow.h"

#include "canbus_raise_volkswagen.h"
#include "ui_volkswagenwindow.h"
#include "vwdrivingpage.h"
#include "vwfunctionsetting.h"
#include "vwsettingstable.h"
#include "vwtexts.h"
#include "vwtyrepage.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace {

// The settings pages that are open: \a first before those that it opened.
QList<VWFunctionSetting *> openPages(unsigned int first)
{
    QList<VWFunctionSetting *> pages;
    const QWidgetList widgets = QApplication::allWidgets();
    for (int i = 0; i < widgets.size(); ++i) {
        VWFunctionSetting *const page = qobject_cast<VWFunctionSetting *>(widgets.at(i));
        if (page && !page->isHidden()) {
            pages.insert(page->appId() == first ? 0 : pages.size(), page);
        }
    }
    return pages;
}

} // namespace

VolkswagenWindow::VolkswagenWindow(CanBus_Raise_Volkswagen *adapter, QWidget *parent)
    : OrbMainWindow(CanBus_Raise_Volkswagen::CarInfosApp, parent)
    , m_adapter(adapter)
    , m_ui(new Ui_VolkswagenWindow)
    , m_driving(nullptr)
    , m_tyres(nullptr)
    , m_ageTimer(new QTimer(this))
{
    m_ui->setupUi(this);
    m_driving = new VwDrivingPage(m_ui.data(), adapter, this);
    m_tyres = new VwTyrePage(m_ui.data(), adapter, this);

    m_ageTimer->setInterval(Vw::AgeInterval);
    connect(m_ageTimer, SIGNAL(timeout()), SLOT(showAges()));
    connect(m_ui->tabRange, SIGNAL(sweptLeft()), SLOT(on_btnRight_clicked()));
    connect(m_ui->tabRange, SIGNAL(sweptRight()), SLOT(on_btnLeft_clicked()));
    connect(adapter, SIGNAL(recvCanDatas(quint8, const quint8 *, quint8)), this,
            SLOT(onRecvCanDatas(quint8, const quint8 *, quint8)));
    connect(adapter, SIGNAL(languageChanged()), this, SLOT(retranslate()));
    retranslate();
    adapter->repeatReports(this);
}

VolkswagenWindow::~VolkswagenWindow() {}

void VolkswagenWindow::onLoadUiSkin()
{
    m_driving->turnTo(m_driving->page());
    showTab(m_ui->tabRange);
}

void VolkswagenWindow::onVisibleChange(bool visible)
{
    m_driving->setVisible(visible);
    if (visible) {
        m_tyres->shown();
        showAges();
        m_ageTimer->start();
    } else {
        m_ageTimer->stop();
    }
}

void VolkswagenWindow::changeEvent(QEvent *event)
{
    OrbMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

// ---------------------------------------------------------------------------------------------- buttons

void VolkswagenWindow::on_btnRange_clicked()
{
    showTab(m_ui->tabRange);
}

void VolkswagenWindow::on_btnTPMS_clicked()
{
    showTab(m_ui->tabTPMS);
}

// The car's box has nothing to show here; the button says so.
void VolkswagenWindow::on_btnCarStatus_clicked() {}

void VolkswagenWindow::on_btnSetting_clicked()
{
    openSettings(Vw::CarSettingPage);
}

void VolkswagenWindow::on_btnTyreWarning_clicked()
{
    showTab(m_ui->tabTPMS);
}

void VolkswagenWindow::on_btnServiceWarning_clicked()
{
    openSettings(Vw::ServicePage);
}

void VolkswagenWindow::on_btnLeft_clicked()
{
    changeRangeIndex(m_driving->page() - 1);
}

void VolkswagenWindow::on_btnRight_clicked()
{
    changeRangeIndex(m_driving->page() + 1);
}

void VolkswagenWindow::showTab(QWidget *tab)
{
    m_ui->tabWidget->setCurrentWidget(tab);
    m_ui->btnRange->setChecked(tab == m_ui->tabRange);
    m_ui->btnTPMS->setChecked(tab == m_ui->tabTPMS);
}

// A page that is open already comes to the front, and what was opened from it with it.
void VolkswagenWindow::openSettings(unsigned int page)
{
    const QList<VWFunctionSetting *> pages = openPages(page);
    if (pages.isEmpty() || pages.first()->appId() != page) {
        VWFunctionSetting *const settings = new VWFunctionSetting(page, m_adapter);
        settings->setVisible(true);
        return;
    }
    const bool isMenu = page == Vw::CarSettingPage;
    for (int i = 0; i < (isMenu ? pages.size() : 1); ++i) {
        pages.at(i)->setVisible(true);
    }
}

// ---------------------------------------------------------------------------------------------- reports

void VolkswagenWindow::changeRangeIndex(int index)
{
    m_driving->turnTo(index);
}

void VolkswagenWindow::syncDrivingData(int page)
{
    m_driving->askFor(page);
}

void VolkswagenWindow::onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen)
{
    const PackageView package(cmd, datas, dataLen);
    m_driving->take(package);
    m_tyres->take(package);
    showWarnings();
}

void VolkswagenWindow::showWarnings()
{
    const QString tyres = m_tyres->warning();
    m_ui->btnTyreWarning->setText(tyres);
    m_ui->btnTyreWarning->setVisible(!tyres.isEmpty());
    m_ui->btnTPMS->setBadge(!tyres.isEmpty());
    m_ui->btnServiceWarning->setVisible(m_adapter->isServiceOverdue());
    m_ui->btnSetting->setBadge(m_adapter->isServiceOverdue());
}

void VolkswagenWindow::showAges()
{
    m_driving->showNote();
    m_tyres->showNote();
}

void VolkswagenWindow::retranslate()
{
    m_ui->retranslateUi(this);
    m_ui->btnCarStatus->setReason(tr("not in this car"));
    m_driving->retranslate();
    m_tyres->retranslate();
    showWarnings();
}
