#ifndef BOXPAGE_H
#define BOXPAGE_H

#include "decoderbox.h"

#include <QVector>
#include <QWidget>

#include <memory>

class PanelCard;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class ScenarioPlayer;

/// The box itself: its state, faults to order, scenarios to play, what the unit has told it, and its log.
class BoxPage : public QWidget
{
    Q_OBJECT

public:
    /// \a box is not owned and must outlive the page.
    explicit BoxPage(DecoderBox *box, QWidget *parent = nullptr);
    ~BoxPage() override;

    /// Plays the scenario file \a path, or shows why it cannot be played.
    void play(const QString &path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addStateCard();
    void addScenarioCard();
    void addFaultCard();
    void order(const QString &text);
    void choose();
    void stopPlaying();
    void showState();
    static QString breakable(const QString &text);
    void showObservations();
    void setTexts();

    DecoderBox *m_box;
    std::unique_ptr<ScenarioPlayer> m_player;
    QString m_scenario;
    QString m_error;

    PanelCard *m_stateCard;
    QLabel *m_state;
    QPushButton *m_start;
    QPushButton *m_stop;
    PanelCard *m_scenarioCard;
    QLabel *m_scenarioState;
    QPushButton *m_choose;
    QPushButton *m_playButton;
    PanelCard *m_faultCard;
    QVector<QPushButton *> m_faults; // in the order of their table
    PanelCard *m_observationCard;
    QLabel *m_observations;
    PanelCard *m_logCard;
    QPlainTextEdit *m_log;
};

#endif // BOXPAGE_H
