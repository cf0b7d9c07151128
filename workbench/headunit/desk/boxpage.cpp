#include "boxpage.h"

#include "boxcommand.h"
#include "observationwords.h"
#include "panelcard.h"
#include "scenarioplayer.h"

#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <limits>

namespace {

const int Gap = 8;
const int WatchInterval = 250;      // ms
const int LongestSilence = 3600000; // ms; a box that is silent for longer was stopped
const int LogLines = 500;
const int LogHeight = 260;

// What a finger can do to the line.
struct FaultButton
{
    const char *text;
    const char *order;
};

const FaultButton FaultButtons[] = {
    {QT_TRANSLATE_NOOP("BoxPage", "Noise"), "fault noise 24"},
    {QT_TRANSLATE_NOOP("BoxPage", "Silence, 3 s"), "fault silence 3000"},
    {QT_TRANSLATE_NOOP("BoxPage", "Cut a package"), "fault cut 3"},
    {QT_TRANSLATE_NOOP("BoxPage", "Corrupt a package"), "fault corrupt"},
    {QT_TRANSLATE_NOOP("BoxPage", "Flip a bit"), "fault flip"},
    {QT_TRANSLATE_NOOP("BoxPage", "Lose a byte"), "fault drop"},
    {QT_TRANSLATE_NOOP("BoxPage", "Double a byte"), "fault double"},
    {QT_TRANSLATE_NOOP("BoxPage", "Wrong length"), "fault length"},
    {QT_TRANSLATE_NOOP("BoxPage", "Stall, 300 ms"), "fault stall 300"},
    {QT_TRANSLATE_NOOP("BoxPage", "Garbage"), "fault garbage 8"},
    {QT_TRANSLATE_NOOP("BoxPage", "Late answer"), "fault late 400"},
    {QT_TRANSLATE_NOOP("BoxPage", "Cut the update"), "fault update 10"},
    {QT_TRANSLATE_NOOP("BoxPage", "Pull the line"), "fault unplug"},
    {QT_TRANSLATE_NOOP("BoxPage", "Plug it in"), "fault replug"},
    {QT_TRANSLATE_NOOP("BoxPage", "Bad line"),
     "fault flip 2%; fault drop 2%; fault double 2%; fault garbage 5 2%; fault length 1%"},
    {QT_TRANSLATE_NOOP("BoxPage", "Good line"), "fault none"},
};

} // namespace

BoxPage::BoxPage(DecoderBox *box, QWidget *parent) : QWidget(parent), m_box(box)
{
    setObjectName(QStringLiteral("sidePage"));
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Gap);
    for (PanelCard **card : {&m_stateCard, &m_scenarioCard, &m_faultCard, &m_observationCard, &m_logCard}) {
        *card = new PanelCard(QString());
        page->addWidget(*card);
    }
    addStateCard();
    addScenarioCard();
    addFaultCard();
    m_observations = PanelCard::plainLabel("controlName");
    m_observationCard->rows()->addWidget(m_observations);
    m_log = new QPlainTextEdit;
    m_log->setObjectName(QStringLiteral("boxLog"));
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(LogLines);
    m_log->setWordWrapMode(QTextOption::WrapAnywhere);
    m_log->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_log->setFixedHeight(LogHeight);
    m_logCard->rows()->addWidget(m_log);
    page->addStretch();

    connect(box, &DecoderBox::stateChanged, this, &BoxPage::showState);
    connect(box, &DecoderBox::unitCame, this, &BoxPage::showState);
    connect(box, &DecoderBox::unitLeft, this, &BoxPage::showState);
    connect(box, &DecoderBox::observed, this, &BoxPage::showObservations);
    connect(box, &DecoderBox::logLine, m_log, &QPlainTextEdit::appendPlainText);
    // A silence ends without a word.
    QTimer *watch = new QTimer(this);
    connect(watch, &QTimer::timeout, this, &BoxPage::showState);
    watch->start(WatchInterval);
    setTexts();
}

BoxPage::~BoxPage() = default;

void BoxPage::addStateCard()
{
    m_state = PanelCard::plainLabel("controlValue");
    m_start = PanelCard::chip();
    m_stop = PanelCard::chip();
    m_stateCard->rows()->addWidget(m_state);
    m_stateCard->rows()->addLayout(PanelCard::pair(m_start, m_stop));
    connect(m_start, &QPushButton::clicked, m_box, [this] {
        m_box->holdTongue(0);
        m_box->start();
    });
    connect(m_stop, &QPushButton::clicked, m_box,
            [this] { m_box->holdTongue(std::numeric_limits<int>::max()); });
}

void BoxPage::addScenarioCard()
{
    m_scenarioState = PanelCard::plainLabel("controlName");
    m_choose = PanelCard::chip();
    m_playButton = PanelCard::chip();
    m_scenarioCard->rows()->addWidget(m_scenarioState);
    m_scenarioCard->rows()->addLayout(PanelCard::pair(m_choose, m_playButton));
    connect(m_choose, &QPushButton::clicked, this, &BoxPage::choose);
    connect(m_playButton, &QPushButton::clicked, this, [this] {
        if (m_player) {
            stopPlaying();
        } else {
            play(m_scenario);
        }
    });
}

void BoxPage::addFaultCard()
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(Gap);
    m_faultCard->rows()->addLayout(grid);
    for (const FaultButton &fault : FaultButtons) {
        BoxCommand command;
        QString error;
        QPushButton *button = PanelCard::chip();
        const int place = int(m_faults.size());
        const QString text = QString::fromLatin1(fault.order);
        // A box without firmware or acknowledgements has no such fault.
        button->setEnabled(command.parse(text.section(QLatin1Char(';'), 0, 0), *m_box, &error));
        connect(button, &QPushButton::clicked, this, [this, text] { order(text); });
        grid->addWidget(button, place / 2, place % 2);
        m_faults << button;
    }
}

void BoxPage::order(const QString &text)
{
    for (const QString &part : text.split(QLatin1Char(';'))) {
        BoxCommand command;
        QString error;
        if (command.parse(part, *m_box, &error)) {
            command.carryOut(m_box);
        }
    }
}

void BoxPage::choose()
{
    const QString path =
        QFileDialog::getOpenFileName(window(), tr("Scenario"), m_scenario, tr("Scenarios (*.scn)"));
    if (!path.isEmpty()) {
        play(path);
    }
}

void BoxPage::play(const QString &path)
{
    stopPlaying();
    m_scenario = path;
    Scenario scenario;
    if (scenario.load(path, *m_box, &m_error)) {
        m_error.clear();
        m_player.reset(new ScenarioPlayer(m_box, scenario));
        connect(m_player.get(), &ScenarioPlayer::finished, this, &BoxPage::stopPlaying, Qt::QueuedConnection);
        m_player->play();
    }
    setTexts();
}

void BoxPage::stopPlaying()
{
    m_player.reset();
    setTexts();
}

void BoxPage::showState()
{
    QString text;
    switch (m_box->state()) {
    case DecoderBox::WaitsForReady:
        text = tr("Waits for the unit's ready");
        break;
    case DecoderBox::Talks:
        text = tr("Talks with the unit");
        break;
    case DecoderBox::Silent:
        text = tr("Silent: the unit did not acknowledge");
        break;
    }
    const int silence = m_box->silenceLeft();
    if (silence > LongestSilence) {
        text = tr("Stopped");
    } else if (silence > 0) {
        text = tr("Silent by order");
    }
    m_state->setText(m_box->isUnitThere() ? text : tr("The unit has not opened the port"));
}

/// A long word (a checksum) may be broken anywhere.
QString BoxPage::breakable(const QString &text)
{
    const int longest = 24;
    const QChar zeroWidthSpace(0x200B);
    QString result;
    int letters = 0;
    for (const QChar &letter : text) {
        letters = letter.isSpace() ? 0 : letters + 1;
        result += letter;
        if (letters > longest) {
            result += zeroWidthSpace;
        }
    }
    return result;
}

void BoxPage::showObservations()
{
    QStringList lines;
    const QMap<QString, QString> &all = m_box->observations();
    for (auto row = all.begin(); row != all.end(); ++row) {
        lines << breakable(ObservationWords::line(m_box->speaker(), row.key(), row.value()));
    }
    m_observations->setText(lines.isEmpty() ? tr("Nothing yet") : lines.join(QLatin1Char('\n')));
}

void BoxPage::setTexts()
{
    m_stateCard->setTitle(tr("Box at %1").arg(m_box->portPath()));
    m_start->setText(tr("Start"));
    m_stop->setText(tr("Stop"));
    m_scenarioCard->setTitle(tr("Scenario"));
    m_choose->setText(tr("Open ..."));
    m_playButton->setText(m_player ? tr("Stop") : tr("Play"));
    m_playButton->setEnabled(!m_scenario.isEmpty());
    const QString name = m_scenario.mid(m_scenario.lastIndexOf(QLatin1Char('/')) + 1);
    m_scenarioState->setText(!m_error.isEmpty() ? m_error
                             : name.isEmpty()   ? tr("None chosen")
                             : m_player         ? tr("%1 plays").arg(name)
                                                : name);
    m_faultCard->setTitle(tr("Line faults"));
    for (int i = 0; i < m_faults.size(); ++i) {
        m_faults.at(i)->setText(tr(FaultButtons[i].text));
    }
    m_observationCard->setTitle(tr("What the unit told the box"));
    m_logCard->setTitle(tr("Line log"));
    showState();
    showObservations();
}

void BoxPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QWidget::changeEvent(event);
}
