#include "probeunit.h"

#include "headunitoptions.h"

#include "orbhost.h"

#include <QDataStream>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// Time of the virtual clock.
const int StartMs = 1500;   // until the unit has greeted its box
const int SettleMs = 120;   // until what a package brings about is over
const uint LongestRun = 20; // s of real time, for a plug-in that never comes back

void letPass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

QByteArray readAll(int descriptor)
{
    QByteArray bytes;
    char part[4096];
    for (ssize_t count = 1; count > 0;) {
        count = ::read(descriptor, part, sizeof part);
        bytes.append(part, int(qMax(ssize_t(0), count)));
    }
    return bytes;
}

} // namespace

bool ProbeUnit::start(const QString &plugin, int type, const QVector<QByteArray> &greeting, QString *error)
{
    if (!m_line.open(error)) {
        return false;
    }
    OrbHost *host = OrbHost::instance();
    host->setSettingsDir(m_settings.path());
    host->setTag(HeadUnitOptions::CanBusTypeTag, type);
    host->setProductValue("CANPortName", m_line.devicePath());
    m_screen.reset(new UnitScreen(UnitScreen::standardSize()));
    m_screen->setUpdatesEnabled(false);
    m_screen->show();
    m_watch.reset(new CallWatch(nullptr));
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
        letPass(SettleMs);
    }
    drainLine();
    return true;
}

ProbeUnit::Trial ProbeUnit::tryOut(const QVector<QByteArray> &packages)
{
    Trial trial;
    int ends[2];
    if (::pipe(ends) != 0) {
        trial.problem = "the system has no pipe to give";
        return trial;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        play(packages, ends[1]);
    }
    ::close(ends[1]);
    const QByteArray told = readAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    drainLine();
    QDataStream stream(told);
    qint32 count = -1;
    stream >> trial.isFramed >> trial.hasDialog >> count;
    for (int i = 0; i < count; ++i) {
        CallWatch::Call call;
        stream >> call.object >> call.name >> call.args;
        trial.calls << call;
    }
    if (child < 0 || count < 0 || stream.status() != QDataStream::Ok) {
        trial.problem =
            child < 0 ? "the system has no process to give"
                      : QString("the plug-in did not survive the package (signal %1)").arg(WTERMSIG(status));
    }
    return trial;
}

// The child's life. A dialog that opens runs a loop of its own in here: only timers go on.
void ProbeUnit::play(const QVector<QByteArray> &packages, int result)
{
    ::alarm(LongestRun);
    feed(packages, 0, result);
    QEventLoop().exec();
    ::_exit(1);
}

void ProbeUnit::feed(const QVector<QByteArray> &packages, int index, int result)
{
    if (index == packages.size()) {
        tell(packages.last(), result);
    }
    m_watch->forget();
    const QByteArray &package = packages.at(index);
    if (::write(m_line.farEnd(), package.constData(), size_t(package.size())) != package.size()) {
        ::_exit(1);
    }
    QTimer::singleShot(SettleMs, m_screen.get(), [=] { feed(packages, index + 1, result); });
}

void ProbeUnit::tell(const QByteArray &package, int result)
{
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
    stream << isFramed << (QThread::currentThread()->loopLevel() > 1) << qint32(calls.size());
    for (const CallWatch::Call &call : std::as_const(calls)) {
        stream << call.object << call.name << call.args;
    }
    for (int written = 0; written < told.size();) {
        const ssize_t count = ::write(result, told.constData() + written, size_t(told.size() - written));
        if (count <= 0) {
            ::_exit(1);
        }
        written += int(count);
    }
    ::_exit(0);
}

// What the unit said is of no interest here, and would fill the line.
void ProbeUnit::drainLine()
{
    readAll(m_line.farEnd());
}
