#ifndef REPLAYCARD_H
#define REPLAYCARD_H

#include "panelcard.h"

#include <QTimer>

class LineReplayer;
class QLabel;
class QProgressBar;
class QPushButton;

/// The log that is replayed: where it is, and pause, going on and single steps.
class ReplayCard : public PanelCard
{
    Q_OBJECT

public:
    /// \a replayer is not owned and must outlive the card.
    explicit ReplayCard(LineReplayer *replayer, QWidget *parent = nullptr);

    /// Pauses what plays, and goes on with what pauses.
    void toggle();
    /// Plays the next chunk and pauses behind it.
    void step();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showPlace();
    void setTexts();

    LineReplayer *m_replayer;
    QTimer m_timer;
    QLabel *m_place;
    QProgressBar *m_progress;
    QPushButton *m_pause;
    QPushButton *m_step;
};

#endif // REPLAYCARD_H
