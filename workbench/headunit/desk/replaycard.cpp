#include "replaycard.h"

#include "linereplayer.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

const int LookInterval = 100; // ms; a log may bring thousands of chunks a second
const int Whole = 1000;       // of the bar

} // namespace

ReplayCard::ReplayCard(LineReplayer *replayer, QWidget *parent)
    : PanelCard(QString(), parent)
    , m_replayer(replayer)
    , m_place(plainLabel("controlValue"))
    , m_progress(new QProgressBar)
    , m_pause(chip())
    , m_step(chip())
{
    m_progress->setObjectName(QStringLiteral("replayBar"));
    m_progress->setRange(0, Whole);
    m_progress->setTextVisible(false);
    m_pause->setFocusPolicy(Qt::NoFocus); // the space bar pauses, whatever was clicked last
    m_step->setFocusPolicy(Qt::NoFocus);
    rows()->addWidget(m_place);
    rows()->addWidget(m_progress);
    rows()->addLayout(pair(m_pause, m_step));
    connect(m_pause, &QPushButton::clicked, this, &ReplayCard::toggle);
    connect(m_step, &QPushButton::clicked, this, &ReplayCard::step);
    connect(replayer, &LineReplayer::stateChanged, this, &ReplayCard::setTexts);
    connect(&m_timer, &QTimer::timeout, this, &ReplayCard::showPlace);
    m_timer.start(LookInterval);
    setTexts();
}

void ReplayCard::toggle()
{
    if (m_replayer->isPaused()) {
        m_replayer->play();
    } else {
        m_replayer->pause();
    }
}

void ReplayCard::step()
{
    m_replayer->pause();
    m_replayer->step();
    showPlace();
}

void ReplayCard::showPlace()
{
    const double seconds = double(m_replayer->place()) / 1e6;
    const double part = m_replayer->isOver() ? 1 : m_replayer->progress();
    m_place->setText(tr("%1 s of the log, %2 packages").arg(seconds, 0, 'f', 3).arg(m_replayer->packages()));
    m_progress->setValue(int(part * Whole));
}

void ReplayCard::setTexts()
{
    setTitle(m_replayer->isOver()     ? tr("Replay: at its end")
             : m_replayer->isPaused() ? tr("Replay: paused")
                                      : tr("Replay"));
    m_pause->setText(m_replayer->isPaused() ? tr("Go on") : tr("Pause"));
    m_pause->setToolTip(tr("Space bar"));
    m_step->setText(tr("Step"));
    m_step->setToolTip(tr("Plays the next bytes and pauses (full stop)"));
    m_pause->setEnabled(!m_replayer->isOver());
    m_step->setEnabled(!m_replayer->isOver());
    showPlace();
}

void ReplayCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    PanelCard::changeEvent(event);
}
