#include "vwdrivingpage.h"

#include "canbus_raise_volkswagen.h"
#include "figurelabel.h"
#include "ui_volkswagenwindow.h"
#include "volkswagenwindow.h"
#include "vwcommands.h"
#include "vwtexts.h"

#include <QTimer>

namespace {

const char *const PageTitles[Vw::TripPageCount] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Since start"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Since refueling"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Long-term"),
};

// As wide as the kind's values usually get, by TripValue::Kind.
const struct
{
    const char *figure;
    const char *unit;
} UsualValues[Vw::TripValue::KindCount] = {{"1888", "km"},  {"18", "L/100km"}, {"18.8", "L/100km"},
                                           {"88888", "km"}, {"188", "km/h"},   {"88:88", ""}};

const char CurrentDotStyle[] = "background-color:#2EA8FF;border-radius:5px;";
const char OtherDotStyle[] = "background-color:#3A4350;border-radius:5px;";

const char NoFigure[] = "--";

} // namespace

VwDrivingPage::VwDrivingPage(Ui_VolkswagenWindow *ui, CanBus_Raise_Volkswagen *adapter, QObject *window)
    : QObject(window)
    , m_ui(ui)
    , m_adapter(adapter)
    , m_page(Vw::SinceStart)
    , m_figures()
    , m_group(new FigureGroup(this))
    , m_patience(new QTimer(this))
    , m_askedTwice(false)
    , m_visible(false)
{
    m_reported.invalidate();
    m_figures[Vw::TripValue::Range] = ui->labelRange;
    m_figures[Vw::TripValue::Consumption] = ui->labelConsumption;
    m_figures[Vw::TripValue::AverageConsumption] = ui->labelAverageConsumption;
    m_figures[Vw::TripValue::Distance] = ui->labelDistance;
    m_figures[Vw::TripValue::AverageSpeed] = ui->labelAverageSpeed;
    m_figures[Vw::TripValue::DrivingTime] = ui->labelDrivingTime;
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        m_values[kind].kind = Vw::TripValue::NoValue;
        m_figures[kind]->setUsual(QLatin1String(UsualValues[kind].figure),
                                  QLatin1String(UsualValues[kind].unit));
        m_group->add(m_figures[kind]);
    }
    m_patience->setSingleShot(true);
    m_patience->setInterval(Vw::AnswerPatience);
    connect(m_patience, SIGNAL(timeout()), SLOT(askOnceMore()));
}

// ---------------------------------------------------------------------------------------------- asking

void VwDrivingPage::turnTo(int page)
{
    if (page < 0) {
        m_page = Vw::TripPageCount - 1;
    } else {
        m_page = page < Vw::TripPageCount ? page : 0;
    }

    // What the page before showed means nothing here.
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        if (!m_values[kind].isOn(m_page)) {
            m_values[kind].kind = Vw::TripValue::NoValue;
            showFigure(kind);
        }
    }
    if (!isPageKnown()) {
        m_reported.invalidate();
    }
    m_awaited.clear();
    m_askedTwice = false;
    askFor(m_page);
    showTitle();
    showNote();
}

void VwDrivingPage::askFor(int page)
{
    if (page < 0 || page >= Vw::TripPageCount) {
        return;
    }
    for (int i = 0; i < Vw::TripRequestCount; ++i) {
        ask(quint8(Vw::TripRequests[i] + page));
    }
}

void VwDrivingPage::askForRange()
{
    ask(Vw::RangeRequest);
}

void VwDrivingPage::ask(quint8 subType)
{
    m_adapter->syncData(Vw::TripReply, subType);
    m_awaited.removeAll(subType);
    m_awaited.append(subType);
    m_patience->start();
}

void VwDrivingPage::askOnceMore()
{
    if (!m_visible || m_awaited.isEmpty()) {
        return;
    }
    for (int i = 0; i < m_awaited.size(); ++i) {
        m_adapter->syncData(Vw::TripReply, m_awaited.at(i));
    }
    m_awaited.clear();
    m_askedTwice = true;
    showNote();
}

void VwDrivingPage::setVisible(bool visible)
{
    m_visible = visible;
    if (visible) {
        askForRange();
    } else {
        m_patience->stop();
    }
    showNote();
}

// ---------------------------------------------------------------------------------------------- values

void VwDrivingPage::take(const PackageView &package)
{
    const Vw::TripValue value = package.command() == Vw::TripReply
                                    ? Vw::tripValue(package)
                                    : Vw::TripValue{Vw::TripValue::NoValue, -1, QString(), nullptr};
    if (value.kind != Vw::TripValue::NoValue) {
        m_awaited.removeAll(package.d(0));
    }
    if (!value.isOn(m_page)) {
        return;
    }
    m_values[value.kind] = value;
    showFigure(value.kind);
    if (value.page >= 0) {
        m_reported.start();
        showNote();
    }
}

bool VwDrivingPage::isPageKnown() const
{
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        if (m_values[kind].kind != Vw::TripValue::NoValue && m_values[kind].page >= 0) {
            return true;
        }
    }
    return false;
}

// ---------------------------------------------------------------------------------------------- looks

void VwDrivingPage::showTitle()
{
    m_ui->labelPageTitle->setText(VolkswagenWindow::tr(PageTitles[m_page]));
    QFrame *const dots[Vw::TripPageCount] = {m_ui->dotSinceStart, m_ui->dotSinceRefueling, m_ui->dotLongTerm};
    for (int i = 0; i < Vw::TripPageCount; ++i) {
        dots[i]->setStyleSheet(QLatin1String(i == m_page ? CurrentDotStyle : OtherDotStyle));
    }
}

void VwDrivingPage::showFigure(int kind)
{
    const Vw::TripValue &value = m_values[kind];
    QString text = QLatin1String(NoFigure);
    if (value.kind != Vw::TripValue::NoValue) {
        text = value.figure;
        if (value.unit) {
            text += QLatin1Char(' ') + VolkswagenWindow::tr(value.unit);
        }
    }
    if (text != m_figures[kind]->text()) {
        m_figures[kind]->setText(text);
        m_group->textChanged();
    }
}

void VwDrivingPage::showNote()
{
    QString note;
    if (m_reported.isValid()) {
        note = Vw::ageText(m_reported.elapsed());
    } else if (m_askedTwice) {
        note = Vw::waitingText();
    }
    m_ui->labelTripNote->setText(note);
    m_ui->labelTripNote->setVisible(!note.isEmpty());
}

void VwDrivingPage::retranslate()
{
    showTitle();
    showNote();
    for (int kind = 0; kind < Vw::TripValue::KindCount; ++kind) {
        showFigure(kind);
    }
}
