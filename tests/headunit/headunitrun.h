#ifndef HEADUNITRUN_H
#define HEADUNITRUN_H

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

/// One run of the program: its script goes in line by line, its trace comes out as JSON objects. A run that
/// is still under way at the end of its life is killed.
class HeadUnitRun
{
public:
    ~HeadUnitRun();

    /// Starts the program with \a arguments. False when it does not start.
    bool start(const QStringList &arguments);
    /// Headless with the probe plug-in, a trace and a script, and \a more arguments.
    bool startProbe(const QStringList &more = {});

    /// Writes \a line and waits for its answer, the next line of the object "script", as "CALL ARGS" with
    /// compact JSON: `key ["delivered"]`. Empty when none came.
    QString answer(const QByteArray &line);

    void write(const QByteArray &text) { m_process.write(text); }
    QProcess &process() { return m_process; }

    /// Waits for the next trace line of \a object and \a call, from the last one waited for on; empty when
    /// none came in time.
    QJsonObject waitFor(const QString &object, const QString &call = QString());

    /// All trace lines since the last take, in order. A line that is no JSON object is an empty one.
    QList<QJsonObject> take();
    /// Of those what the probe plug-in reported: "ID PARAM PARAM2 TEXT", the text only if there is any.
    QStringList takeReports();

    /// Waits for the end: the exit code, -1 after a crash or when it does not come in time.
    int finish(int timeout = 5000);
    /// What the program wrote to standard error; complete after finish().
    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    bool readLines(int timeout);

    QProcess m_process;
    QList<QJsonObject> m_lines;
    int m_passed = 0; // lines that a wait has passed
};

#endif // HEADUNITRUN_H
