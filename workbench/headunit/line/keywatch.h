#ifndef KEYWATCH_H
#define KEYWATCH_H

#include "keytester.h"

#include <QTimer>

class LineInspector;
class OrbTraceListener;

/// Tests the keys of a unit that runs.
class KeyWatch : public QObject
{
    Q_OBJECT

public:
    /// Follows \a inspector, which is not owned and must outlive it.
    explicit KeyWatch(LineInspector *inspector, QObject *parent = nullptr);

    KeyTester *tester() { return &m_tester; }
    /// The line's time, in microseconds.
    qint64 now() const;

    /// Writes what becomes of keys into \a trace, which is not owned, as rows of the object "keys":
    ///
    ///     "pressed" [GROUP, COMMAND, CODE, NAME, [KEY...], [KEY...]]   the keys that it becomes, and those that a key
    ///                                                                  set makes of a unit's key; COMMAND -1 for such
    ///     "released" [GROUP, COMMAND, CODE, NAME, DOWN, HOLDS, [KEY...], [KEY...]]   DOWN in ms, -1 without a press
    ///     "turned" [GROUP, COMMAND, CODE, NAME, CLICKS, [KEY...]]
    ///     "stuck" [GROUP, COMMAND, CODE, NAME, SENTENCE]               once, after 10 s
    void trace(OrbTraceListener *trace);

Q_SIGNALS:
    /// Keys, or how long they are down, may be others than before.
    void looked();

private:
    void look();

    LineInspector *m_inspector;
    KeyTester m_tester;
    QTimer m_timer;
    qint64 m_next = 0; // number of the first row that was not looked at
};

#endif // KEYWATCH_H
