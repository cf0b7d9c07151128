#include "boxscript.h"

#include "boxcommand.h"
#include "decoderbox.h"

namespace {
const int LongestWaitMs = 600000;
} // namespace

BoxScript::BoxScript(DecoderBox *box, int descriptor, QObject *parent)
    : QObject(parent), m_box(box), m_lines(descriptor)
{
    m_waitTimer.setSingleShot(true);
    connect(&m_waitTimer, &QTimer::timeout, this, &BoxScript::work);
    connect(&m_lines, &DescriptorLines::arrived, this, &BoxScript::work);
}

void BoxScript::work()
{
    while (m_lines.hasLine() && !m_waitTimer.isActive()) {
        QString line;
        const bool isWhole = m_lines.takeLine(&line);
        line = line.trimmed();
        if (!isWhole) {
            Q_EMIT answered("error: line too long");
        } else if (line == "quit") {
            m_lines.stop();
        } else if (!line.isEmpty() && !line.startsWith('#')) {
            Q_EMIT answered(answer(line));
        }
    }
    if (m_lines.isAtEnd() && !m_waitTimer.isActive()) {
        Q_EMIT finished();
    }
}

QString BoxScript::answer(const QString &line)
{
    static const char *const states[] = {"waits", "talks", "silent"};
    const QString verb = line.section(' ', 0, 0);
    const QString rest = line.section(' ', 1).trimmed();
    if (verb == "get") {
        return SimulatedCar::has(rest) ? rest + ' ' + m_box->car()->text(rest)
                                       : QString("error: unknown property '%1'").arg(rest);
    }
    if (verb == "observed") {
        return m_box->observations().contains(rest) ? rest + ' ' + m_box->observation(rest)
                                                    : QString("error: nothing heard of '%1'").arg(rest);
    }
    if (line == "state") {
        return states[m_box->state()];
    }
    if (verb == "wait") {
        bool ok = false;
        const int ms = rest.toInt(&ok);
        if (!ok || ms < 0 || ms > LongestWaitMs) {
            return "error: expected: wait MS";
        }
        m_waitTimer.start(ms);
        return "ok";
    }
    BoxCommand command;
    QString error;
    if (!command.parse(line, *m_box, &error)) {
        return "error: " + error;
    }
    if (command.isAgain()) {
        return "error: 'again' is for scenarios";
    }
    command.carryOut(m_box);
    return "ok";
}
