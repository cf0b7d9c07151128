#ifndef EXPECTATION_H
#define EXPECTATION_H

#include "callwatch.h"

#include <QPointer>
#include <QTimer>

/// Waits for a call of the plug-in, or for its absence: what `expect` of a script does. It looks at the calls
/// since the watch last forgot, and at what comes until its time is over.
class Expectation : public QObject
{
    Q_OBJECT

public:
    explicit Expectation(CallWatch *watch, QObject *parent = nullptr);

    /// Reads `[none] [OBJECT.]CALL [ARG...] within MS`; false, with the reason in \a error, when it is wrong.
    /// ARGs stand for the call's first ones, `*` for any; of an event a KEY=VALUE stands for that member.
    bool read(const QStringList &words, QString *error);
    /// decided() follows, never from within.
    void begin();

    bool isMet() const { return m_isMet; }
    /// The call that was met, or in words what came instead.
    const QString &outcome() const { return m_outcome; }

Q_SIGNALS:
    void decided();

private:
    void onCall(const CallWatch::Call &call);
    void onTimeout();
    void decide(bool isMet, const QString &outcome);
    bool fits(const CallWatch::Call &call) const;
    bool isNamed(const CallWatch::Call &call) const;
    QString instead() const;

    CallWatch *m_watch;
    bool m_isNone = false;
    QString m_name;
    QStringList m_args;
    int m_ms = 0;
    bool m_isOpen = false;
    bool m_isMet = false;
    QString m_outcome;
    QTimer m_timer;
};

#endif // EXPECTATION_H
