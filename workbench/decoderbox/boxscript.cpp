#include "boxscript.h"

#include "boxcommand.h"
#include "decoderbox.h"

#include <QSocketNotifier>

#include <unistd.h>

namespace {
const int longestWaitMs = 600000;
const int longestLine = 64 * 1024;
} // namespace

BoxScript::BoxScript(DecoderBox *box, int descriptor, QObject *parent)
    : QObject(parent)
    , m_box(box)
    , m_descriptor(descriptor)
    , m_notifier(new QSocketNotifier(descriptor, QSocketNotifier::Read, this))
{
    m_waitTimer.setSingleShot(true);
    connect(&m_waitTimer, &QTimer::timeout, this, &BoxScript::work);
    connect(m_notifier, &QSocketNotifier::activated, this, &BoxScript::read);
}

void BoxScript::read()
{
    char bytes[4096];
    const ssize_t count = ::read(m_descriptor, bytes, sizeof bytes);
    if (count > 0) {
        m_unread.append(bytes, int(count));
    } else {
        m_notifier->setEnabled(false);
        m_isAtEnd = true;
        m_unread += '\n';
    }
    for (int end = m_unread.indexOf('\n'); end >= 0; end = m_unread.indexOf('\n')) {
        m_lines.enqueue(QString::fromUtf8(m_unread.left(end)).trimmed());
        m_unread.remove(0, end + 1);
    }
    if (m_unread.size() > longestLine) {
        m_unread.clear();
        emit answered("error: line too long");
    }
    work();
}

void BoxScript::work()
{
    while (!m_lines.isEmpty() && !m_waitTimer.isActive()) {
        const QString line = m_lines.dequeue();
        if (line == "quit") {
            m_notifier->setEnabled(false);
            m_isAtEnd = true;
            m_lines.clear();
        } else if (!line.isEmpty() && !line.startsWith('#')) {
            emit answered(answer(line));
        }
    }
    if (m_isAtEnd && m_lines.isEmpty() && !m_waitTimer.isActive()) {
        emit finished();
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
        if (!ok || ms < 0 || ms > longestWaitMs) {
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
    command.carryOut(m_box);
    return "ok";
}
