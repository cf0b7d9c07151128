#include "volkswagenwindow.h"

#include "canbus_raise_volkswagen.h"
#include "ui_volkswagenwindow.h"
#include "vwcommands.h"
#include "vwfunctionsetting.h"
#include "vwsettingstable.h"

#include <QEvent>

namespace {

const char *const PageTitles[Vw::TripPageCount] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Since start"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Since refueling"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Long-term"),
};

const char *const TyreStateTexts[] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Normal pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Low pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Hight pressure"),
};

// By message number; the box leaves 1 out.
const char *const TyreMessages[] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure is normal"),
    nullptr,
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Please check the tire pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure is too low"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure loss"),
};
const int TyreMessageCount = sizeof TyreMessages / sizeof TyreMessages[0];

const char MarkedTyreStyle[] = "border:2px solid #ff0;background-color:#ff0;border-radius:10px;";
const char UnmarkedTyreStyle[] = "border-color:transparent;";
const char NormalTyreStyle[] = "border-color:#fff";
const char FaultyTyreStyle[] = "border-color:#f00;color:#f00;";
const int TyreLabelWidth = 220;

const char TyreMessageStyle[] = "color:#F2F5F8;background-color:#171C24;";
const char TyreAlarmStyle[] = "color:#0E1116;background-color:#FFB020;font-weight:bold;";

const char CurrentDotStyle[] = "background-color:#2EA8FF;border-radius:5px;";
const char OtherDotStyle[] = "background-color:#3A4350;border-radius:5px;";

const char NoFigure[] = "--";

} // namespace

VolkswagenWindow::VolkswagenWindow(CanBus_Raise_Volkswagen *adapter, QWidget *parent)
    : OrbMainWindow(CanBus_Raise_Volkswagen::CarInfosApp, parent)
    , m_adapter(adapter)
    , m_ui(new Ui_VolkswagenWindow)
    , m_page(Vw::SinceStart)
    , m_tyres(Vw::TyreStates())
    , m_tyreMessage(-1)
    , m_figures()
    , m_tyreLabels()
    , m_tyreFrames()
{
    m_ui->setupUi(this);

    m_figures[Vw::TripValue::Range] = m_ui->labelRange;
    m_figures[Vw::TripValue::Consumption] = m_ui->labelConsumption;
    m_figures[Vw::TripValue::AverageConsumption] = m_ui->labelAverageConsumption;
    m_figures[Vw::TripValue::Distance] = m_ui->labelDistance;
    m_figures[Vw::TripValue::AverageSpeed] = m_ui->labelAverageSpeed;
    m_figures[Vw::TripValue::DrivingTime] = m_ui->labelDrivingTime;
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        m_values[kind].kind = Vw::TripValue::NoValue;
    }

    m_tyreLabels[Vw::LeftFront] = m_ui->labelTyreLeftFront;
    m_tyreLabels[Vw::RightFront] = m_ui->labelTyreRightFront;
    m_tyreLabels[Vw::LeftRear] = m_ui->labelTyreLeftRear;
    m_tyreLabels[Vw::RightRear] = m_ui->labelTyreRightRear;
    m_tyreFrames[Vw::LeftFront] = m_ui->frameTyreLeftFront;
    m_tyreFrames[Vw::RightFront] = m_ui->frameTyreRightFront;
    m_tyreFrames[Vw::LeftRear] = m_ui->frameTyreLeftRear;
    m_tyreFrames[Vw::RightRear] = m_ui->frameTyreRightRear;
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_tyreLabels[i]->hide();
        m_tyreFrames[i]->hide();
        m_ui->carPicture->setTyreFrame(static_cast<Vw::Tyre>(i), m_tyreFrames[i]);
    }

    connect(adapter, SIGNAL(recvCanDatas(quint8, const quint8 *, quint8)), this,
            SLOT(onRecvCanDatas(quint8, const quint8 *, quint8)));
    connect(adapter, SIGNAL(languageChanged()), this, SLOT(retranslate()));
    retranslate();
    adapter->repeatReports(this);
}

VolkswagenWindow::~VolkswagenWindow() {}

void VolkswagenWindow::onLoadUiSkin()
{
    changeRangeIndex(m_page);
    showTab(m_ui->tabRange);
}

void VolkswagenWindow::onVisibleChange(bool visible)
{
    if (visible) {
        m_adapter->syncData(Vw::TripReply, Vw::RangeRequest);
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

// The car's box has nothing to show here; the button is drawn as one that has no use.
void VolkswagenWindow::on_btnCarStatus_clicked() {}

void VolkswagenWindow::on_btnSetting_clicked()
{
    VWFunctionSetting *const settings = new VWFunctionSetting(Vw::CarSettingPage, m_adapter);
    settings->setVisible(true);
}

void VolkswagenWindow::on_btnLeft_clicked()
{
    changeRangeIndex(m_page - 1);
}

void VolkswagenWindow::on_btnRight_clicked()
{
    changeRangeIndex(m_page + 1);
}

void VolkswagenWindow::showTab(QWidget *tab)
{
    m_ui->tabWidget->setCurrentWidget(tab);
    m_ui->btnRange->setChecked(tab == m_ui->tabRange);
    m_ui->btnTPMS->setChecked(tab == m_ui->tabTPMS);
}

// ---------------------------------------------------------------------------------------------- trip computer

void VolkswagenWindow::changeRangeIndex(int index)
{
    if (index < 0) {
        m_page = Vw::TripPageCount - 1;
    } else {
        m_page = index < Vw::TripPageCount ? index : 0;
    }

    // What the page before showed means nothing here.
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        if (!m_values[kind].isOn(m_page)) {
            m_values[kind].kind = Vw::TripValue::NoValue;
            showFigure(kind);
        }
    }
    syncDrivingData(m_page);
    showPageTitle();
}

void VolkswagenWindow::syncDrivingData(int page)
{
    if (page < 0 || page >= Vw::TripPageCount) {
        return;
    }
    for (int i = 0; i < Vw::TripRequestCount; ++i) {
        m_adapter->syncData(Vw::TripReply, quint8(Vw::TripRequests[i] + page));
    }
}

void VolkswagenWindow::showPageTitle()
{
    m_ui->labelPageTitle->setText(tr(PageTitles[m_page]));
    QFrame *const dots[Vw::TripPageCount] = {m_ui->dotSinceStart, m_ui->dotSinceRefueling, m_ui->dotLongTerm};
    for (int i = 0; i < Vw::TripPageCount; ++i) {
        dots[i]->setStyleSheet(QLatin1String(i == m_page ? CurrentDotStyle : OtherDotStyle));
    }
}

void VolkswagenWindow::showFigure(int kind)
{
    const Vw::TripValue &value = m_values[kind];
    QString text = QLatin1String(NoFigure);
    if (value.kind != Vw::TripValue::NoValue) {
        text = value.figure;
        if (value.unit) {
            text += QLatin1Char(' ') + tr(value.unit);
        }
    }
    m_figures[kind]->setText(text);
}

void VolkswagenWindow::showTripValue(const Vw::TripValue &value)
{
    if (!value.isOn(m_page)) {
        return;
    }
    m_values[value.kind] = value;
    showFigure(value.kind);
}

// ---------------------------------------------------------------------------------------------- tyres

void VolkswagenWindow::showTyreStates(const Vw::TyreStates &states)
{
    if (!states.valid) {
        return;
    }
    m_tyres = states;
    showTyreTexts();
    for (int i = 0; i < Vw::TyreCount; ++i) {
        QLabel *const label = m_tyreLabels[i];
        label->setFixedWidth(TyreLabelWidth);
        label->setStyleSheet(QLatin1String(states.state[i] == 0 ? NormalTyreStyle : FaultyTyreStyle));
        label->setVisible(true);
    }
}

// A warning replaces the texts of the single tyres until the next package with their states.
void VolkswagenWindow::showTyreWarning(const Vw::TyreWarning &warning)
{
    if (!warning.valid) {
        return;
    }
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_tyreLabels[i]->hide();
        QFrame *const frame = m_tyreFrames[i];
        frame->setStyleSheet(QLatin1String(warning.marked[i] ? MarkedTyreStyle : UnmarkedTyreStyle));
        frame->show();
    }
    m_tyreMessage = warning.message;
    const bool normal = m_tyreMessage >= TyreMessageCount || m_tyreMessage <= 1;
    m_ui->labelTpmsState->setStyleSheet(QLatin1String(normal ? TyreMessageStyle : TyreAlarmStyle));
    showTyreTexts();
}

void VolkswagenWindow::showTyreTexts()
{
    if (m_tyres.valid) {
        for (int i = 0; i < Vw::TyreCount; ++i) {
            m_tyreLabels[i]->setText(tr(TyreStateTexts[m_tyres.state[i]]));
        }
    }
    const bool known =
        m_tyreMessage >= 0 && m_tyreMessage < TyreMessageCount && TyreMessages[m_tyreMessage] != nullptr;
    m_ui->labelTpmsState->setText(known ? tr(TyreMessages[m_tyreMessage]) : QString());
    m_ui->labelTpmsState->setVisible(known);
}

// ---------------------------------------------------------------------------------------------- both

void VolkswagenWindow::onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen)
{
    const PackageView package(cmd, datas, dataLen);
    if (cmd == Vw::TripReply) {
        showTripValue(Vw::tripValue(package));
    } else if (cmd == Vw::TyreStatesReply) {
        showTyreStates(Vw::tyreStates(package));
    } else if (cmd == Vw::TyreWarningReply) {
        showTyreWarning(Vw::tyreWarning(package));
    }
}

void VolkswagenWindow::retranslate()
{
    m_ui->retranslateUi(this);
    showPageTitle();
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        showFigure(kind);
    }
    showTyreTexts();
}
