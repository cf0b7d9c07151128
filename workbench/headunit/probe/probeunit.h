#ifndef PROBEUNIT_H
#define PROBEUNIT_H

#include "callwatch.h"
#include "headunit.h"
#include "terminalpair.h"
#include "unitscreen.h"

#include <QTemporaryDir>
#include <QVector>

/// A unit with the real plug-in that many packages are tried on, each in the state in which it started: for
/// each trial the process forks, and the child does what the packages bring about and tells its calls. Needs
/// an OrbApplication on the virtual clock, and nothing else that runs in the process.
class ProbeUnit
{
public:
    /// What came of a trial.
    struct Trial
    {
        bool isFramed = false;          ///< the decoder's framer took the last package
        bool hasDialog = false;         ///< a dialog waits for an answer
        QVector<CallWatch::Call> calls; ///< those that the last package caused, without the line's
        QString problem;                ///< why there was no trial, one sentence; empty for none
    };

    /// Starts the plug-in \a plugin with the decoder of \a type, feeds it \a greeting, the packages with which
    /// a box begins, and lets it settle. False, with one sentence in \a error, when it does not run.
    bool start(const QString &plugin, int type, const QVector<QByteArray> &greeting, QString *error);

    /// Feeds \a packages, whole frames, one after the other.
    Trial tryOut(const QVector<QByteArray> &packages);

private:
    [[noreturn]] void play(const QVector<QByteArray> &packages, int result);
    void feed(const QVector<QByteArray> &packages, int index, int result);
    [[noreturn]] void tell(const QByteArray &package, int result);
    void drainLine();

    QTemporaryDir m_settings;
    TerminalPair m_line;
    std::unique_ptr<UnitScreen> m_screen;
    std::unique_ptr<HeadUnit> m_unit;
    std::unique_ptr<CallWatch> m_watch;
};

#endif // PROBEUNIT_H
