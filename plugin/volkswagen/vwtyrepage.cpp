#include "vwtyrepage.h"

#include "canbus_raise_volkswagen.h"
#include "ui_volkswagenwindow.h"
#include "volkswagenwindow.h"
#include "vwcommands.h"
#include "vwtexts.h"

#include <QTimer>

namespace {

const char *const StateTexts[] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Normal pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Low pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Hight pressure"),
};

// By message number; the box leaves 1 out.
const char *const Messages[] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure is normal"),
    nullptr,
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Please check the tire pressure"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure is too low"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "Tire pressure loss"),
};
const int MessageCount = sizeof Messages / sizeof Messages[0];
const int NormalMessage = 0;
const int CheckMessage = 2;

const char MarkedTyreStyle[] = "border:2px solid #ff0;background-color:#ff0;border-radius:10px;";
const char UnmarkedTyreStyle[] = "border-color:transparent;";
const char NormalTyreStyle[] = "border-color:#fff";
const char FaultyTyreStyle[] = "border-color:#f00;color:#f00;";
const int TyreLabelWidth = 220;
const QSize WarningSpacer(20, 20);

const char MessageStyle[] = "color:#F2F5F8;background-color:#171C24;";
const char AlarmStyle[] = "color:#0E1116;background-color:#FFB020;font-weight:bold;";

bool hasText(int message)
{
    return message >= 0 && message < MessageCount && Messages[message] != nullptr;
}

// To be given a sheet costs a widget its looks for a moment, also when it is the one that it has.
void setStyle(QWidget *widget, const char *style)
{
    const QString sheet = QLatin1String(style);
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}

} // namespace

VwTyrePage::VwTyrePage(Ui_VolkswagenWindow *ui, const CanBus_Raise_Volkswagen *adapter, QObject *window)
    : QObject(window)
    , m_ui(ui)
    , m_adapter(adapter)
    , m_newest(0)
    , m_states(Vw::TyreStates())
    , m_warning(Vw::TyreWarning())
    , m_waited(false)
    , m_labels()
    , m_slots()
    , m_marks()
{
    const struct
    {
        Vw::Tyre tyre;
        QLabel *label;
        TyreSlot *slot;
        TyreMark *mark;
    } tyres[Vw::TyreCount] = {
        {Vw::LeftFront, ui->labelTyreLeftFront, ui->slotTyreLeftFront, ui->frameTyreLeftFront},
        {Vw::RightFront, ui->labelTyreRightFront, ui->slotTyreRightFront, ui->frameTyreRightFront},
        {Vw::LeftRear, ui->labelTyreLeftRear, ui->slotTyreLeftRear, ui->frameTyreLeftRear},
        {Vw::RightRear, ui->labelTyreRightRear, ui->slotTyreRightRear, ui->frameTyreRightRear},
    };
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_labels[tyres[i].tyre] = tyres[i].label;
        m_slots[tyres[i].tyre] = tyres[i].slot;
        m_marks[tyres[i].tyre] = tyres[i].mark;
        ui->carPicture->setTyreFrame(tyres[i].tyre, tyres[i].mark);
    }
    showLooks();
}

// ---------------------------------------------------------------------------------------------- reports

void VwTyrePage::take(const PackageView &package)
{
    if (package.command() == Vw::TyreStatesReply) {
        takeStates(Vw::tyreStates(package));
    } else if (package.command() == Vw::TyreWarningReply) {
        takeWarning(Vw::tyreWarning(package));
    }
}

void VwTyrePage::takeStates(const Vw::TyreStates &states)
{
    if (!states.valid) {
        return;
    }
    m_newest = Vw::TyreStatesReply;
    m_states = states;
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_labels[i]->setFixedWidth(TyreLabelWidth);
        setStyle(m_labels[i], states.state[i] == 0 ? NormalTyreStyle : FaultyTyreStyle);
    }
    retranslate();
}

// A warning replaces the texts of the single tyres until the next package with their states.
void VwTyrePage::takeWarning(const Vw::TyreWarning &warning)
{
    if (!warning.valid) {
        return;
    }
    m_newest = Vw::TyreWarningReply;
    m_warning = warning;
    m_ui->spacerCar->changeSize(WarningSpacer.width(), WarningSpacer.height(), QSizePolicy::Preferred,
                                QSizePolicy::Minimum);
    m_ui->layoutCar->invalidate();
    for (int i = 0; i < Vw::TyreCount; ++i) {
        setStyle(m_marks[i], warning.marked[i] ? MarkedTyreStyle : UnmarkedTyreStyle);
        m_marks[i]->setMarked(warning.marked[i]);
    }
    retranslate();
}

bool VwTyrePage::isAnyTyreFaulty() const
{
    for (int i = 0; i < Vw::TyreCount; ++i) {
        if (m_newest == Vw::TyreStatesReply ? m_states.state[i] != 0 : m_warning.marked[i]) {
            return true;
        }
    }
    return false;
}

// Whether the message may be shown: that all is normal does not go with a marked tyre.
bool VwTyrePage::isMessageTrue() const
{
    return m_newest == Vw::TyreWarningReply && hasText(m_warning.message) &&
           (m_warning.message != NormalMessage || !isAnyTyreFaulty());
}

QString VwTyrePage::warning() const
{
    if (isMessageTrue() && m_warning.message != NormalMessage) {
        return VolkswagenWindow::tr(Messages[m_warning.message]);
    }
    return m_newest != 0 && isAnyTyreFaulty() ? VolkswagenWindow::tr(Messages[CheckMessage]) : QString();
}

// ---------------------------------------------------------------------------------------------- looks

void VwTyrePage::showLooks()
{
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_slots[i]->setKnown(m_newest != 0);
        m_labels[i]->setVisible(m_newest == Vw::TyreStatesReply);
        m_marks[i]->setVisible(m_newest == Vw::TyreWarningReply);
    }
    const bool isNormal = warning().isEmpty();
    setStyle(m_ui->labelTpmsState, isNormal ? MessageStyle : AlarmStyle);
    m_ui->labelTpmsState->setVisible(isMessageTrue());
    m_ui->labelTyreAlert->setText(warning());
    m_ui->labelTyreAlert->setVisible(!isNormal && !isMessageTrue());
}

void VwTyrePage::shown()
{
    if (m_newest == 0) {
        QTimer::singleShot(Vw::AnswerPatience, this, SLOT(onNothingTold()));
    }
}

void VwTyrePage::onNothingTold()
{
    m_waited = true;
    showNote();
}

void VwTyrePage::showNote()
{
    QString note;
    if (m_newest != 0) {
        note = Vw::ageText(m_adapter->reportAge(m_newest));
    } else if (m_waited) {
        note = Vw::waitingText();
    }
    m_ui->labelTyreNote->setText(note);
}

void VwTyrePage::retranslate()
{
    for (int i = 0; m_states.valid && i < Vw::TyreCount; ++i) {
        m_labels[i]->setText(VolkswagenWindow::tr(StateTexts[m_states.state[i]]));
    }
    const bool known = m_warning.valid && hasText(m_warning.message);
    m_ui->labelTpmsState->setText(known ? VolkswagenWindow::tr(Messages[m_warning.message]) : QString());
    showLooks();
    showNote();
}
