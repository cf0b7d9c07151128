#ifndef DEBUGLOG_H
#define DEBUGLOG_H

#include <QStringList>
#include <QtGlobal>

/// Collects the debug output while it lives; every other message goes on to where it went before.
class DebugLog
{
public:
    DebugLog() : m_outer(current())
    {
        current() = this;
        m_previous = qInstallMessageHandler(&DebugLog::handle);
    }
    ~DebugLog()
    {
        qInstallMessageHandler(m_previous);
        current() = m_outer;
    }
    DebugLog(const DebugLog &) = delete;
    DebugLog &operator=(const DebugLog &) = delete;

    QStringList lines() const { return m_lines; }

private:
    static DebugLog *&current()
    {
        static DebugLog *log = nullptr;
        return log;
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        DebugLog *log = current();
        if (type == QtDebugMsg) {
            log->m_lines << message;
        } else if (log->m_previous) {
            log->m_previous(type, context, message);
        }
    }

    DebugLog *m_outer;
    QtMessageHandler m_previous;
    QStringList m_lines;
};

#endif // DEBUGLOG_H
