#ifndef PTYBOX_H
#define PTYBOX_H

#include <QByteArray>
#include <QString>

#include <functional>

/// The far end of a decoder box's serial line: a pseudo-terminal in raw mode. The unit under test opens
/// path() like any serial port; the test speaks for the box. Waiting keeps the event loop running.
class PtyBox
{
public:
    PtyBox();
    ~PtyBox();
    PtyBox(const PtyBox &) = delete;
    PtyBox &operator=(const PtyBox &) = delete;

    /// Device file for the unit; empty when no pseudo-terminal could be had.
    QString path() const { return m_path; }

    /// Writes all of \a bytes to the unit; while the line is full the event loop runs. False after 5 s.
    bool send(const QByteArray &bytes);

    /// What the unit has sent since the last take().
    QByteArray received();
    QByteArray take();

    /// Waits until the unit has sent \a count bytes since the last take(); false after \a timeout ms.
    bool waitForBytes(int count, int timeout = 10000);

    /// Takes what the unit sends until nothing came for \a quiet ms.
    QByteArray takeUntilQuiet(int quiet = 80);

    /// Runs the event loop until \a condition holds; false after \a timeout ms.
    static bool waitUntil(const std::function<bool()> &condition, int timeout = 10000);

private:
    int m_master = -1;
    int m_slave = -1; // held open, so that the line stays up while the unit has it closed
    QString m_path;
    QByteArray m_received;
};

#endif // PTYBOX_H
