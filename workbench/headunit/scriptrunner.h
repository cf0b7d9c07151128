#ifndef SCRIPTRUNNER_H
#define SCRIPTRUNNER_H

#include "descriptorlines.h"
#include "junitreport.h"
#include "scriptcommands.h"
#include "virtualclock.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

class TraceWriter;

/// Carries a script out, line by line, from the event loop, which may be the one of a modal dialog. Each
/// command is answered by one line of the trace when it has taken effect, and only then comes the next:
///
///     {"t": 2.500, "object": "script", "call": "key", "args": ["delivered"]}
///
/// Under the virtual clock a line is carried out when everything that the one before has brought about at its
/// time is over, and time stands still while the next line is not there yet: it makes no difference how
/// quickly they are written.
///
/// A line that cannot be carried out, or an expectation that is not met, is answered as the call "error" with
/// the reason. Empty lines and those that begin with # are passed over.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    /// What the script acts on. All must outlive the runner; \a box may be null, \a report as well.
    struct Surroundings
    {
        HeadUnit *unit;
        DecoderBox *box;
        CallWatch *watch;
        TraceWriter *writer;
        JUnitReport *report;
    };

    /// Reads from \a descriptor, which stays the caller's. With \a isStrict the first error is the last line.
    ScriptRunner(int descriptor, const Surroundings &surroundings, bool isStrict, QObject *parent = nullptr);

Q_SIGNALS:
    /// After `quit` or the end of the input; nothing is carried out any more.
    void finished();
    /// In place of finished(), when a strict script met an error: \a line, counted from 1, the command, and
    /// what is wrong.
    void failed(int line, const QString &command, const QString &reason);

private:
    void work();
    void carryOut(const QString &line);
    void settle(int rounds);
    void answer();
    void answerError(const QString &reason, JUnitReport::Outcome outcome = JUnitReport::Broken);
    void onDecided();
    void report(JUnitReport::Outcome outcome, const QString &message);
    void goOn();
    void onIdle();
    bool isFree() const { return m_isIdle && !m_isBusy && !m_isOver; }

    DescriptorLines m_lines;
    ScriptCommands m_commands;
    TraceWriter *m_writer;
    JUnitReport *m_report;
    bool m_isStrict;
    int m_lineNumber = 0;
    QString m_line;
    QElapsedTimer m_lineClock;
    QTimer m_waitTimer;
    QString m_command;     // under way
    bool m_isBusy = false; // with m_command
    bool m_isOver = false;
    bool m_isIdle = true; // nothing is left to do at the present time; in real time nobody can tell
    std::unique_ptr<QSocketNotifier> m_idleNotifier; // virtual clock only
    std::unique_ptr<VirtualClock::Hold> m_hold;      // while the next line is waited for
};

#endif // SCRIPTRUNNER_H
