#ifndef REPLAYRUN_H
#define REPLAYRUN_H

#include "linereplayer.h"
#include "packagewatch.h"

#include <QObject>

class LineRecorder;

/// A log that is replayed to the unit, and what the plug-in made of it.
class ReplayRun : public QObject
{
    Q_OBJECT

public:
    /// \a type: the unit's decoder.
    ReplayRun(const ReplayOptions &options, int type, QObject *parent = nullptr);
    /// Takes its place as the listener of the process away.
    ~ReplayRun() override;

    /// False, with one sentence in \a error, when there is nothing to replay or nowhere to.
    bool open(QString *error);
    QString portPath() const { return m_replayer->portPath(); }

    /// From now on watches what the plug-in calls, with the process's listener behind, and plays once
    /// \a recorder hears the line being opened.
    void begin(LineRecorder *recorder);

    LineReplayer *replayer() { return m_replayer; }

    /// What came of it, for people and for a script (one line of JSON).
    QString summary() const;
    QByteArray json() const;
    /// Whether the log was played as far as was asked for, and nothing was wrong with it.
    bool isFine() const;

Q_SIGNALS:
    void finished();

private:
    void onCall(const QString &call);
    bool hasReachedEnd() const;

    const ReplayOptions m_options;
    const int m_type;
    LineReplayer *m_replayer;
    PackageWatch *m_watch = nullptr;
    OrbTraceListener *m_listener = nullptr; // of the process, before
    bool m_hasSeenCall = false;
};

#endif // REPLAYRUN_H
