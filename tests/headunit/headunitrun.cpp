#include "headunitrun.h"

#include <QElapsedTimer>
#include <QJsonDocument>

namespace {

constexpr int Patience = 5000; // ms

} // namespace

HeadUnitRun::~HeadUnitRun()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool HeadUnitRun::start(const QStringList &arguments)
{
    m_process.start(HEADUNIT, arguments);
    return m_process.waitForStarted();
}

bool HeadUnitRun::startProbe(const QStringList &more)
{
    return start(QStringList{"--headless", "--plugin", PROBE_PLUGIN, "--trace", "-", "--script", "-"} + more);
}

QString HeadUnitRun::answer(const QByteArray &line)
{
    write(line + '\n');
    const QJsonObject answered = waitFor("script");
    return answered.isEmpty()
               ? QString()
               : answered.value("call").toString() + ' ' +
                     QJsonDocument(answered.value("args").toArray()).toJson(QJsonDocument::Compact);
}

QJsonObject HeadUnitRun::waitFor(const QString &object, const QString &call)
{
    QElapsedTimer clock;
    clock.start();
    do {
        while (m_passed < m_lines.size()) {
            const QJsonObject line = m_lines.at(m_passed++);
            if (line.value("object") == object && (call.isEmpty() || line.value("call") == call)) {
                return line;
            }
        }
    } while (readLines(int(Patience - clock.elapsed())));
    return {};
}

QList<QJsonObject> HeadUnitRun::take()
{
    while (readLines(0)) {
    }
    m_passed = 0;
    QList<QJsonObject> taken;
    taken.swap(m_lines);
    return taken;
}

QStringList HeadUnitRun::takeReports()
{
    QStringList reports;
    for (const QJsonObject &line : take()) {
        const QJsonObject event = line.value("args").toArray().at(0).toObject();
        if (line.value("call") == "dispatchOrbEvent" && event.value("source") == 7) {
            QStringList words;
            for (const char *key : {"id", "param", "param2"}) {
                words << QString::number(qint64(event.value(QLatin1String(key)).toDouble()));
            }
            words << event.value("string").toString();
            reports << words.join(' ').trimmed();
        }
    }
    return reports;
}

int HeadUnitRun::finish(int timeout)
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(timeout)) {
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

// False when nothing more came in time.
bool HeadUnitRun::readLines(int timeout)
{
    if (!m_process.canReadLine() && (timeout <= 0 || !m_process.waitForReadyRead(timeout))) {
        return false;
    }
    while (m_process.canReadLine()) {
        m_lines << QJsonDocument::fromJson(m_process.readLine()).object();
    }
    return true;
}
