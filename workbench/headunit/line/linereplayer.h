#ifndef LINEREPLAYER_H
#define LINEREPLAYER_H

#include "lineframer.h"
#include "replaylog.h"
#include "terminalpair.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

/// Plays what a log holds towards the unit through a pseudo-terminal, in the chunks and with the gaps with
/// which it came. The unit's answers are taken and, but for ReplayOptions::waitsForAnswer, forgotten. Where the logged
/// line was lost the device goes, and a new one stands behind the same name where it came back, unless the log is played
/// as fast as it goes; no other state is played.
class LineReplayer : public QObject
{
    Q_OBJECT

public:
    /// \a format: how the packages in the log look; null when nobody knows, and then no package is counted.
    LineReplayer(const ReplayOptions &options, const FrameFormat *format, QObject *parent = nullptr);

    /// Opens log and pseudo-terminal. False, with one sentence in \a error, when that fails.
    bool open(QString *error);
    /// The unit's serial port, a link; empty before open().
    QString portPath() const { return m_link; }

    /// Begins to play, once: this is the moment of the log's time 0, or of ReplayOptions::from.
    void start();
    /// Stops the log's time; play() goes on.
    void pause();
    void play();
    /// While it pauses: plays the next chunk at once.
    void step();
    /// Plays nothing more.
    void finish();

    bool isPlaying() const { return m_state == Playing; }
    bool isPaused() const { return m_state == Paused; }
    bool isOver() const { return m_state == Finished; }
    /// The time in the log of what was played last, in microseconds, and how much of the file was read, 0 to 1.
    qint64 place() const { return m_place; }
    double progress() const { return m_log.progress(); }

    /// What has gone to the unit.
    qint64 packages() const { return m_packages; }
    qint64 badPackages() const { return m_badPackages; }
    qint64 skippedBytes() const { return m_skippedBytes; }
    /// Whether ReplayOptions::untilCommand was played.
    bool hasReachedCommand() const { return m_hasReachedCommand; }
    const ReplayLog &log() const { return m_log; }
    /// Why the line did not come back; empty while all is well.
    QString problem() const { return m_problem; }

Q_SIGNALS:
    /// The bytes of \a record have gone to the unit, or what it tells of the line has come about.
    void played(const LineRecord &record);
    /// It plays, pauses, or does so no longer.
    void stateChanged();
    /// There is nothing more to play.
    void finished();

private:
    enum State { Waiting, Playing, Paused, Finished };

    bool openTerminal(QString *error);
    void hangUp();
    void comeBack();
    void changeLine(const LineRecord &change);
    void setState(State state);
    void work();
    bool fetch();
    qint64 dueIn() const;
    void playNext();
    void send(const QByteArray &bytes);
    void flush();
    void drainFramer();
    void takeAnswers();
    bool mayPlay();

    const ReplayOptions m_options;
    QTemporaryDir m_folder; // of the link
    QString m_link;
    std::unique_ptr<TerminalPair> m_terminal; // outlives the notifiers on it; null while the line is lost
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::unique_ptr<QSocketNotifier> m_writeNotifier;
    QTimer m_timer;

    ReplayLog m_log;
    LineRecord m_next;
    bool m_hasNext = false;
    State m_state = Waiting;
    qint64 m_place = 0;
    QString m_problem;
    qint64 m_origin = 0; // when the log's time 0 is, on the tap's clock
    qint64 m_pausedAt = 0;
    QByteArray m_unsent;

    std::unique_ptr<LineFramer> m_framer;  // of what was played
    std::unique_ptr<LineFramer> m_answers; // of what the unit says
    int m_unanswered = 0;
    qint64 m_lastPackageAt = 0;
    qint64 m_packages = 0;
    qint64 m_badPackages = 0;
    qint64 m_skippedBytes = 0;
    bool m_hasReachedCommand = false;
};

#endif // LINEREPLAYER_H
