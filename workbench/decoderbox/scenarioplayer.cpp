#include "scenarioplayer.h"

ScenarioPlayer::ScenarioPlayer(DecoderBox *box, const Scenario &scenario, QObject *parent)
    : QObject(parent), m_box(box), m_scenario(scenario)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ScenarioPlayer::playDue);
}

void ScenarioPlayer::play()
{
    m_isPlaying = true;
    m_next = 0;
    m_clock.start();
    m_timer.start(0);
}

void ScenarioPlayer::stop()
{
    m_isPlaying = false;
    m_timer.stop();
}

void ScenarioPlayer::playDue()
{
    const QVector<Scenario::Step> &steps = m_scenario.steps;
    while (m_next < steps.size()) {
        const qint64 wait = steps.at(m_next).ms - m_clock.elapsed();
        if (wait > 0) {
            m_timer.start(int(wait));
            return;
        }
        const BoxCommand &command = steps.at(m_next++).command;
        command.carryOut(m_box);
        if (command.isAgain()) {
            play();
            return;
        }
    }
    m_isPlaying = false;
    Q_EMIT finished(!steps.isEmpty() && steps.last().command.isEnd());
}
