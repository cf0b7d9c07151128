#ifndef LINEOUTPUT_H
#define LINEOUTPUT_H

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

/// Lines to a file descriptor, each written at once. A reader that is slow keeps nobody waiting: what it does
/// not take yet waits here, up to a bound past which lines are lost. A reader that is gone ends the output.
class LineOutput : public QObject
{
    Q_OBJECT

public:
    /// Bytes that may wait for a slow reader.
    static constexpr int Capacity = 16 * 1024 * 1024;

    /// \a descriptor, open for writing, stays the caller's and must outlive the output. The process has to
    /// ignore SIGPIPE.
    explicit LineOutput(int descriptor, QObject *parent = nullptr);
    /// Gives a slow reader one more second.
    ~LineOutput() override;

    /// From now on whoever writes waits for the reader and no line is lost; a signal that asks the program to
    /// quit ends the wait.
    void waitForReader() { m_waitsForReader = true; }

    /// Writes \a line, which has no line end, and the line end.
    void writeLine(const QByteArray &line);

    /// False once a write failed: further lines are dropped.
    bool isOpen() const { return m_isOpen; }

private:
    void flush();
    bool isReady(int timeoutMs);
    void writeSome();
    void close();

    int m_descriptor;
    bool m_isOpen = true;
    bool m_hasLostLines = false;
    bool m_waitsForReader = false;
    QByteArray m_waiting;
    QSocketNotifier m_notifier;
};

#endif // LINEOUTPUT_H
