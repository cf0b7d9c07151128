#include "probeunit.h"

#include "childprocess.h"
#include "headunitoptions.h"
#include "virtualline.h"

#include "orbhost.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace {

const QString Withdrawn = QStringLiteral("unknown");

// Time of the virtual clock.
const int StartMs = 3000;     // until the unit has greeted its box, and missed its answers
const int SettleMs = 12;      // until what a package brings about is over; the unit reads every 4 ms
const int TakenMs = 8;        // until a package is decoded that only brings about a state
const int TurnMs = 1000;      // of trials in turn: what the first one brings about later comes no sooner
const int MostWaits = 8;      // for a time in which the plug-in says nothing by itself
const uint LongestTrial = 10; // s of real time, for a plug-in that never comes back

// A unit's maker lists by number which settings its car has; a decoder leaves out those that it does not know.
QStringList everySetting()
{
    return QString("1 2 3 4 128 129 130 131 132 133 134 135 136 137 138 144 145 146 147 148").split(' ');
}

void letPass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

/// The values that the car tells by name, which are no calls.
class ProbeUnit::ValueWatch : public OrbTraceListener
{
public:
    void called(const QString &, const QString &, const QVariantList &) override {}
    void eventCalled(const QString &, const OrbEvent &) override {}
    void valueTold(const QString &name, const QVariant &value) override
    {
        values.insert(name, value.isValid() ? value.toString() : Withdrawn);
    }

    QMap<QString, QString> values;
};

ProbeUnit::ProbeUnit() = default;
ProbeUnit::~ProbeUnit() = default;

bool ProbeUnit::start(const QString &plugin, int type, const Packages &greeting, QString *error)
{
    if (!m_line.open(error)) {
        return false;
    }
    m_line.holdLine();
    OrbHost *host = OrbHost::instance();
    host->setSettingsDir(m_settings.path());
    host->setTag(HeadUnitOptions::CanBusTypeTag, type);
    host->setProductValue("CANPortName", m_line.devicePath());
    host->setFactorySetting("SettingItemTypes", everySetting());
    m_screen.reset(new UnitScreen(UnitScreen::standardSize()));
    m_screen->setUpdatesEnabled(false);
    m_screen->show();
    m_values.reset(new ValueWatch);
    m_watch.reset(new CallWatch(m_values.get()));
    m_unit.reset(new HeadUnit);
    if (!m_unit->loadPlugin(plugin, error)) {
        return false;
    }
    letPass(StartMs);
    for (const QByteArray &package : greeting) {
        if (::write(m_line.farEnd(), package.constData(), size_t(package.size())) != package.size()) {
            *error = "the unit does not read its line";
            return false;
        }
        VirtualLine::waitUntilThere(m_line, int(package.size()));
        letPass(SettleMs);
    }
    m_sentAtStart = sent();
    m_tour.reset(new ScreenTour(this));
    m_tour->open(m_unit.get());
    letPass(StartMs);
    // A clock that is told every ten seconds is no answer to a package.
    for (int i = 0; i < MostWaits && !sentAfter([](HeadUnit *) {}, 2 * TurnMs).isEmpty(); ++i) {
        letPass(TurnMs);
    }
    settle(0);
    m_screen->hide(); // nobody looks, so nothing has to be laid out
    return true;
}

void ProbeUnit::settle(int ms)
{
    letPass(ms);
    drainLine();
    m_watch->forget(); // else each child does so, on pages of its own
    m_reader.remember();
}

void ProbeUnit::tapAll()
{
    m_turn = -1;
    m_screen->show(); // a dialog has to be where its buttons are tapped
    settle(SettleMs);
    m_tour->tapAll();
}

void ProbeUnit::turnTo(int number)
{
    m_turn = number;
    if (number < 0) {
        return;
    }
    const QByteArray told = observe([this] { turn(); }, SettleMs,
                                    [this](QDataStream *stream) { *stream << m_reader.remembered(); });
    m_turnedTexts.clear();
    QDataStream stream(told);
    stream >> m_turnedTexts;
}

// In a child.
void ProbeUnit::turn()
{
    if (m_turn >= 0) {
        m_tour->turns().at(m_turn).tap();
        letPass(TakenMs);
        m_reader.remember();
    }
}

QVector<ProbeUnit::Trial> ProbeUnit::tryFresh(const QVector<Packages> &trials)
{
    QVector<Trial> results(trials.size());
    for (int i = 0; i < trials.size(); ++i) {
        QVector<Trial> one(1);
        runChild({trials.at(i)}, 0, &one);
        results[i] = one.first();
    }
    return results;
}

QVector<ProbeUnit::Trial> ProbeUnit::tryInTurn(const QVector<Packages> &trials)
{
    QVector<Trial> results(trials.size());
    for (int next = 0; next < trials.size();) {
        next = runChild(trials, next, &results);
    }
    return results;
}

// Trials from \a from on, as many as one child survives; the number of the next one.
int ProbeUnit::runChild(const QVector<Packages> &trials, int from, QVector<Trial> *results)
{
    QByteArray told;
    int status = 0;
    const bool isRun = ChildProcess::run(
        [&](int result) {
            QElapsedTimer clock;
            clock.start();
            ::alarm(LongestTrial);
            turn();
            for (int i = from; i < trials.size() && clock.elapsed() < TurnMs; ++i) {
                ::alarm(LongestTrial);
                play(trials.at(i), 0, result);
            }
        },
        &told, &status);
    drainLine();
    ::tcflush(m_line.unitEnd(), TCIFLUSH); // what a child has not read is not the next one's
    QDataStream stream(told);
    int next = from;
    for (; isRun && next < trials.size() && !stream.atEnd(); ++next) {
        Trial trial;
        qint32 count = 0;
        stream >> trial.isFramed >> trial.hasDialog >> trial.values >> trial.texts >> count;
        for (int i = 0; i < count; ++i) {
            CallWatch::Call call;
            stream >> call.object >> call.name >> call.args;
            trial.calls << call;
        }
        if (stream.status() != QDataStream::Ok) {
            break; // died while it told
        }
        (*results)[next] = trial;
        ++m_trialCount;
    }
    const bool isWell = isRun && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (next < trials.size() && !isWell) {
        (*results)[next].end = !isRun                ? QString("there is no process to give")
                               : WIFSIGNALED(status) ? QString("signal %1").arg(WTERMSIG(status))
                                                     : QString("exit %1").arg(WEXITSTATUS(status));
        ++m_trialCount;
        ++next;
    }
    return next;
}

// The child's life: feeds \a packages from number \a from on, and tells what the last one caused. A dialog that
// opens runs a loop of its own in here, so that what comes behind it is fed from there, and the child then ends.
void ProbeUnit::play(const Packages &packages, int from, int result)
{
    for (int i = from; i < packages.size(); ++i) {
        drainLine();
        m_watch->forget();
        if (i + 1 == packages.size()) {
            m_before = shown();
            m_clean = m_isFirst ? m_before : m_clean;
            m_isFirst = false;
        }
        const QByteArray &package = packages.at(i);
        if (::write(m_line.farEnd(), package.constData(), size_t(package.size())) != package.size()) {
            ::_exit(1);
        }
        VirtualLine::waitUntilThere(m_line, int(package.size()));
        QEventLoop loop;
        const int level = QThread::currentThread()->loopLevel() + 1;
        const int ms = i + 1 < packages.size() ? TakenMs : SettleMs;
        QTimer::singleShot(ms, Qt::PreciseTimer, &loop, [&] {
            if (QThread::currentThread()->loopLevel() > level) {
                m_isInDialog = true;
                play(packages, i + 1, result);
            }
            loop.quit();
        });
        loop.exec();
    }
    tell(packages.last(), result);
    if (m_isInDialog) {
        ::_exit(0);
    }
}

ProbeUnit::Shown ProbeUnit::shown()
{
    return {m_reader.changes(), m_values->values};
}

// Whether something stands there that stood there before the package already, and in the first trial did not.
bool ProbeUnit::isLeftBehind(const Shown &now) const
{
    // A value is withdrawn only when it was told before.
    for (auto at = now.values.cbegin(); m_before.values != m_clean.values && at != now.values.cend(); ++at) {
        if (at.value() == Withdrawn && !m_clean.values.contains(at.key())) {
            return true;
        }
    }
    const auto isAny = [](const ScreenReader::Texts &clean, const ScreenReader::Texts &before,
                          const ScreenReader::Texts &after) {
        bool isLeft = false;
        for (auto at = after.cbegin(); before != clean && at != after.cend(); ++at) {
            isLeft = isLeft || (before.value(at.key()) == at.value() && clean.value(at.key()) != at.value());
        }
        for (auto at = clean.cbegin(); before != clean && at != clean.cend(); ++at) {
            isLeft = isLeft || (!before.contains(at.key()) && !after.contains(at.key()));
        }
        return isLeft;
    };
    return isAny(m_clean.texts, m_before.texts, now.texts) ||
           isAny(m_clean.values, m_before.values, now.values);
}

void ProbeUnit::tell(const QByteArray &package, int result)
{
    const Shown now = shown();
    if (isLeftBehind(now)) {
        ::_exit(0); // untold: it is tried again in a child of its own
    }
    QVector<CallWatch::Call> calls;
    bool isFramed = false;
    for (const CallWatch::Call &call : m_watch->calls()) {
        const bool isRead = call.name == "recvProtocolData";
        isFramed = isFramed || (isRead && call.args == QStringList(QString::fromLatin1(package.toHex())));
        if (!isRead && call.name != "writeDatas_direct") {
            calls << call;
        }
    }
    QByteArray told;
    QDataStream stream(&told, QIODevice::WriteOnly);
    stream << isFramed << m_isInDialog << now.values << now.texts << qint32(calls.size());
    for (const CallWatch::Call &call : std::as_const(calls)) {
        stream << call.object << call.name << call.args;
    }
    ChildProcess::writeAll(result, told);
}

QByteArray ProbeUnit::observe(const std::function<void()> &act, int ms,
                              const std::function<void(QDataStream *)> &report)
{
    QByteArray told;
    int status = 0;
    ChildProcess::run(
        [&](int result) {
            ::alarm(LongestTrial);
            m_watch->forget();
            QTimer::singleShot(ms, Qt::PreciseTimer, m_screen.get(), [&] {
                QByteArray bytes;
                QDataStream stream(&bytes, QIODevice::WriteOnly);
                report(&stream);
                ChildProcess::writeAll(result, bytes);
                ::_exit(0);
            });
            act();
            QEventLoop().exec();
        },
        &told, &status);
    drainLine();
    return told;
}

ProbeUnit::Packages ProbeUnit::sentAfter(const std::function<void(HeadUnit *)> &act, int ms)
{
    const QByteArray told =
        observe([&] { act(m_unit.get()); }, ms, [this](QDataStream *stream) { *stream << sent(); });
    Packages packages;
    QDataStream stream(told);
    stream >> packages;
    return packages;
}

// Acknowledgements are single bytes, and go another way.
ProbeUnit::Packages ProbeUnit::sent() const
{
    Packages packages;
    for (const CallWatch::Call &call : m_watch->calls()) {
        const QByteArray bytes = QByteArray::fromHex(call.args.value(0).toLatin1());
        if ((call.name == "writeDatas" || call.name == "writeDatas_direct") && bytes.size() > 1 &&
            !packages.contains(bytes)) {
            packages << bytes;
        }
    }
    return packages;
}

// What the unit said is of no interest here, and would fill the line.
void ProbeUnit::drainLine()
{
    ChildProcess::readAll(m_line.farEnd());
}
