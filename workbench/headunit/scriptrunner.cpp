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

ScriptRunner::ScriptRunner(int descriptor, const Surroundings &surroundings, bool isStrict, QObject *parent)
    : QObject(parent)
    , m_lines(descriptor)
    , m_commands(surroundings.unit, surroundings.box, surroundings.watch)
    , m_writer(surroundings.writer)
    , m_report(surroundings.report)
    , m_isStrict(isStrict)
{
    m_waitTimer.setSingleShot(true);
    m_waitTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_waitTimer, &QTimer::timeout, this, &ScriptRunner::answer);
    connect(&m_lines, &DescriptorLines::arrived, this, &ScriptRunner::work);
    connect(&m_commands, &ScriptCommands::decided, this, &ScriptRunner::onDecided);
    if (VirtualClock::isOn()) {
        m_idleNotifier.reset(new QSocketNotifier(VirtualClock::idleDescriptor(), QSocketNotifier::Read));
        connect(m_idleNotifier.get(), &QSocketNotifier::activated, this, &ScriptRunner::onIdle);
        goOn();
    }
}

void ScriptRunner::work()
{
    while (isFree() && m_lines.hasLine()) {
        const bool isWhole = m_lines.takeLine(&m_line);
        ++m_lineNumber;
        m_line = m_line.trimmed();
        m_lineClock.start();
        if (isWhole) {
            carryOut(m_line);
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
    case ScriptCommands::Expects:
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
    report(JUnitReport::Passed, QString());
    goOn();
}

void ScriptRunner::onDecided()
{
    if (m_commands.error().isEmpty()) {
        answer();
        return;
    }
    m_isBusy = false;
    answerError(m_commands.error(), JUnitReport::Failed);
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

void ScriptRunner::answerError(const QString &reason, JUnitReport::Outcome outcome)
{
    m_writer->called("script", "error", {reason});
    report(outcome, reason);
    if (m_isStrict) {
        m_isOver = true;
        m_lines.stop();
        Q_EMIT failed(m_lineNumber, m_line, reason);
    }
}

void ScriptRunner::report(JUnitReport::Outcome outcome, const QString &message)
{
    if (m_report) {
        m_report->add(m_lineNumber, m_line, double(m_lineClock.elapsed()) / 1000, outcome, message);
    }
}
