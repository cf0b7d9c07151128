#include "scriptrunner.h"

#include "scriptline.h"
#include "tracewriter.h"

#include <cstdint>

#include <unistd.h>

namespace {

// Rounds through the posted events until a command has taken effect: its own event is in the first, what that
// one posts is in the second.
constexpr int SettlingRounds = 2;

} // namespace

ScriptRunner::ScriptRunner(int descriptor, HeadUnit *unit, TraceWriter *writer, QObject *parent)
    : QObject(parent), m_lines(descriptor), m_commands(unit), m_writer(writer)
{
    m_waitTimer.setSingleShot(true);
    m_waitTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_waitTimer, &QTimer::timeout, this, &ScriptRunner::answer);
    connect(&m_lines, &DescriptorLines::arrived, this, &ScriptRunner::work);
    if (VirtualClock::isOn()) {
        m_idleNotifier.reset(new QSocketNotifier(VirtualClock::idleDescriptor(), QSocketNotifier::Read));
        connect(m_idleNotifier.get(), &QSocketNotifier::activated, this, &ScriptRunner::onIdle);
        goOn();
    }
}

void ScriptRunner::work()
{
    while (isFree() && m_lines.hasLine()) {
        QString line;
        if (m_lines.takeLine(&line)) {
            carryOut(line.trimmed());
        } else {
            answerError("the line is too long");
        }
    }
    if (isFree() && m_lines.isAtEnd()) {
        m_isOver = true;
        Q_EMIT finished();
    }
    m_hold.reset(isFree() ? new VirtualClock::Hold : nullptr);
}

void ScriptRunner::carryOut(const QString &line)
{
    QStringList words;
    if (line.isEmpty() || line.startsWith('#')) {
        return;
    }
    if (!ScriptLine::split(line, &words)) {
        answerError("a quote is left open");
        return;
    }
    m_command = words.first();
    m_isBusy = true;
    switch (m_commands.carryOut(words)) {
    case ScriptCommands::Failed:
        m_isBusy = false;
        answerError(m_commands.error());
        break;
    case ScriptCommands::Done:
        answer();
        break;
    case ScriptCommands::Posted:
        settle(SettlingRounds);
        break;
    case ScriptCommands::Waits:
        m_waitTimer.start(m_commands.waitMs());
        break;
    case ScriptCommands::Ends:
        m_lines.stop();
        answer();
        break;
    }
}

void ScriptRunner::settle(int rounds)
{
    if (rounds == 0) {
        answer();
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, rounds] { settle(rounds - 1); }, Qt::QueuedConnection);
}

void ScriptRunner::answer()
{
    m_isBusy = false;
    m_writer->called("script", m_command, m_commands.result());
    goOn();
}

void ScriptRunner::goOn()
{
    if (m_idleNotifier) {
        m_isIdle = false;
        VirtualClock::askIdle();
    } else {
        QMetaObject::invokeMethod(this, &ScriptRunner::work, Qt::QueuedConnection);
    }
}

void ScriptRunner::onIdle()
{
    std::uint64_t count = 0;
    m_isIdle = ::read(VirtualClock::idleDescriptor(), &count, sizeof count) == sizeof count;
    work();
}

void ScriptRunner::answerError(const QString &reason)
{
    m_writer->called("script", "error", {reason});
}
