#ifndef SCENARIOPLAYER_H
#define SCENARIOPLAYER_H

#include "scenario.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Replays a scenario on a box.
class ScenarioPlayer : public QObject
{
    Q_OBJECT

public:
    /// \a box, for which \a scenario was read, is not owned and must outlive the player.
    ScenarioPlayer(DecoderBox *box, const Scenario &scenario, QObject *parent = nullptr);

    /// Plays from the beginning; a play under way starts over.
    void play();
    void stop();
    bool isPlaying() const { return m_isPlaying; }
    /// Whether the scenario starts over and over: finished() then never comes.
    bool isEndless() const
    {
        return !m_scenario.steps.isEmpty() && m_scenario.steps.last().command.isAgain();
    }

Q_SIGNALS:
    /// After the last order, with \a byOrder true when it was `end`.
    void finished(bool byOrder);

private:
    void playDue();

    DecoderBox *m_box;
    Scenario m_scenario;
    bool m_isPlaying = false;
    int m_next = 0;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

#endif // SCENARIOPLAYER_H
