#include "replayrun.h"

#include "boxcatalog.h"
#include "linerecorder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString hexCommand(quint8 command)
{
    return "0x" + QString("%1").arg(command, 2, 16, QChar('0')).toUpper();
}

qint64 total(const QMap<quint8, qint64> &counts)
{
    qint64 sum = 0;
    for (const qint64 count : counts) {
        sum += count;
    }
    return sum;
}

} // namespace

ReplayRun::ReplayRun(const ReplayOptions &options, int type, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_type(type)
    , m_replayer(new LineReplayer(options, BoxCatalog::frameOf(type), this))
{
    connect(m_replayer, &LineReplayer::finished, this, &ReplayRun::finished);
}

ReplayRun::~ReplayRun()
{
    if (m_watch) {
        OrbTrace::setListener(m_listener);
    }
}

bool ReplayRun::open(QString *error)
{
    return m_replayer->open(error);
}

void ReplayRun::begin(LineRecorder *recorder)
{
    m_listener = OrbTrace::setListener(nullptr);
    const QList<quint8> known = BoxCatalog::reportedBy(m_type).keys();
    m_watch = new PackageWatch(BoxCatalog::frameOf(m_type), QSet<quint8>(known.begin(), known.end()),
                               m_listener, this);
    OrbTrace::setListener(m_watch);
    if (!m_options.untilCall.isEmpty()) {
        connect(m_watch, &PackageWatch::callSeen, this, &ReplayRun::onCall);
    }
    connect(recorder, &LineRecorder::lineOpened, m_replayer, &LineReplayer::start);
}

// The call is still under way: the line is not to end below it.
void ReplayRun::onCall(const QString &call)
{
    if (call == m_options.untilCall && m_replayer->isPlaying()) {
        m_hasSeenCall = true;
        QMetaObject::invokeMethod(m_replayer, &LineReplayer::finish, Qt::QueuedConnection);
    }
}

bool ReplayRun::hasReachedEnd() const
{
    return (m_options.untilCommand < 0 || m_replayer->hasReachedCommand()) &&
           (m_options.untilCall.isEmpty() || m_hasSeenCall);
}

bool ReplayRun::isFine() const
{
    return hasReachedEnd() && m_replayer->badPackages() == 0 && m_replayer->skippedBytes() == 0 &&
           m_replayer->problem().isEmpty() && m_replayer->log().unread().isEmpty() &&
           m_replayer->log().error().isEmpty();
}

QString ReplayRun::summary() const
{
    const QMap<quint8, qint64> unknown = m_watch ? m_watch->unknown() : QMap<quint8, qint64>();
    QStringList commands;
    for (auto row = unknown.cbegin(); row != unknown.cend(); ++row) {
        commands << hexCommand(row.key());
    }
    QString text =
        QString("%1 packages: %2 explained, %3 acknowledged only, %4 unknown%5, %6 bad; %7 bytes skipped")
            .arg(m_replayer->packages())
            .arg(m_watch ? m_watch->explained() : 0)
            .arg(m_watch ? m_watch->acknowledgedOnly() : 0)
            .arg(total(unknown))
            .arg(commands.isEmpty() ? QString() : " (" + commands.join(", ") + ')')
            .arg(m_replayer->badPackages())
            .arg(m_replayer->skippedBytes());
    for (const QString &line : m_replayer->log().unread().texts()) {
        text += "\nin the log: " + line;
    }
    if (!m_replayer->log().error().isEmpty()) {
        text += '\n' + m_options.log + ": " + m_replayer->log().error();
    }
    if (!m_replayer->problem().isEmpty()) {
        text += "\nthe line did not come back: " + m_replayer->problem();
    }
    return text + (hasReachedEnd() ? QString() : "\nwhat --until names never came");
}

QByteArray ReplayRun::json() const
{
    QJsonArray commands;
    const QMap<quint8, qint64> unknown = m_watch ? m_watch->unknown() : QMap<quint8, qint64>();
    for (auto row = unknown.cbegin(); row != unknown.cend(); ++row) {
        commands << hexCommand(row.key());
    }
    QJsonArray unread;
    for (const QString &line : m_replayer->log().unread().texts()) {
        unread << line;
    }
    const QJsonObject object{{"type", m_type},
                             {"packages", m_replayer->packages()},
                             {"explained", m_watch ? m_watch->explained() : 0},
                             {"acknowledged-only", m_watch ? m_watch->acknowledgedOnly() : 0},
                             {"unknown", total(unknown)},
                             {"unknown-commands", commands},
                             {"bad", m_replayer->badPackages()},
                             {"skipped-bytes", m_replayer->skippedBytes()},
                             {"unread", unread},
                             {"reached-until", hasReachedEnd()}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
