#include "expectation.h"

#include "numbertext.h"

namespace {

const quint32 LongestMs = 24 * 3600 * 1000;
const int MostTold = 5; // calls that came instead

} // namespace

Expectation::Expectation(CallWatch *watch, QObject *parent) : QObject(parent), m_watch(watch)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Expectation::onTimeout);
    connect(watch, &CallWatch::came, this, &Expectation::onCall);
}

bool Expectation::read(const QStringList &words, QString *error)
{
    quint32 ms = 0;
    const int count = int(words.size());
    const int first = words.value(0) == "none" ? 1 : 0;
    if (count < first + 3 || words.at(count - 2) != "within" || !NumberText::read(words.last(), &ms) ||
        ms > LongestMs) {
        *error = "expected: expect [none] [OBJECT.]CALL [ARG...] within MS";
        return false;
    }
    m_isNone = first == 1;
    m_name = words.at(first);
    m_args = words.mid(first + 1, count - first - 3);
    m_ms = int(ms);
    return true;
}

void Expectation::begin()
{
    m_isOpen = true;
    m_timer.start(m_ms);
    for (const CallWatch::Call &call : m_watch->calls()) {
        onCall(call);
    }
}

void Expectation::onCall(const CallWatch::Call &call)
{
    if (m_isOpen && fits(call)) {
        decide(!m_isNone, call.text());
    }
}

void Expectation::onTimeout()
{
    if (!m_isNone) {
        decide(false, instead());
    } else if (m_watch->hasLost()) {
        decide(false, QString("more than %1 calls, nobody can tell").arg(CallWatch::Capacity));
    } else {
        decide(true, "none");
    }
}

// The trace is still about to write the call that decides.
void Expectation::decide(bool isMet, const QString &outcome)
{
    m_isOpen = false;
    m_timer.stop();
    m_isMet = isMet;
    m_outcome = outcome;
    QMetaObject::invokeMethod(this, &Expectation::decided, Qt::QueuedConnection);
}

bool Expectation::isNamed(const CallWatch::Call &call) const
{
    return m_name == call.name || m_name == call.object + '.' + call.name;
}

bool Expectation::fits(const CallWatch::Call &call) const
{
    if (!isNamed(call)) {
        return false;
    }
    const bool isEvent = call.name == "event" || call.name == "dispatchOrbEvent";
    for (int i = 0; i < m_args.size(); ++i) {
        const QString &arg = m_args.at(i);
        if (isEvent ? !call.args.contains(arg)
                    : i >= call.args.size() || (arg != "*" && arg != call.args.at(i))) {
            return false;
        }
    }
    return true;
}

// The same call with other arguments tells most; else whatever it was but the packages.
QString Expectation::instead() const
{
    QStringList same;
    QStringList others;
    for (const CallWatch::Call &call : m_watch->calls()) {
        if (isNamed(call)) {
            same << call.text();
        } else if (call.object != "ProtocolUtils") {
            others << call.text();
        }
    }
    const QStringList &told = same.isEmpty() ? others : same;
    return told.isEmpty() ? "nothing came"
                          : "came instead: " + told.mid(qMax(0, int(told.size()) - MostTold)).join("; ");
}
