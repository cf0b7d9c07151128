#ifndef SCRIPTRUNNER_H
#define SCRIPTRUNNER_H

#include "descriptorlines.h"
#include "scriptcommands.h"

#include <QTimer>

class TraceWriter;

/// Carries a script out, line by line, from the event loop, which may be the one of a modal dialog. Each
/// command is answered by one line of the trace when it has taken effect, and only then comes the next:
///
///     {"t": 2.500, "object": "script", "call": "key", "args": ["delivered"]}
///
/// A line that cannot be carried out is answered as the call "error" with the reason. Empty lines and those
/// that begin with # are passed over.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    /// Reads from \a descriptor, which stays the caller's. \a unit and \a writer must outlive the runner.
    ScriptRunner(int descriptor, HeadUnit *unit, TraceWriter *writer, QObject *parent = nullptr);

Q_SIGNALS:
    /// After `quit` or the end of the input; nothing is carried out any more.
    void finished();

private:
    void work();
    void carryOut(const QString &line);
    void settle(int rounds);
    void answer();
    void answerError(const QString &reason);

    DescriptorLines m_lines;
    ScriptCommands m_commands;
    TraceWriter *m_writer;
    QTimer m_waitTimer;
    QString m_command;     // under way
    bool m_isBusy = false; // with m_command
    bool m_isOver = false;
};

#endif // SCRIPTRUNNER_H
