#ifndef PTYBOX_H
#define PTYBOX_H

#include "terminalpair.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <functional>

/// The far end of a decoder box's serial line: the unit under test opens path() like any serial port, the test
/// speaks for the box. Waiting keeps the event loop running; the box hangs up when it goes.
class PtyBox
{
public:
    /// Holds the line up while the unit has it closed.
    PtyBox();

    /// Device file for the unit: a name of this line alone. The system gives the number of a terminal that is gone
    /// to the next one, which may be another test's, and a unit tries for ever to open what it has lost.
    QString path() const { return m_folder.filePath("line"); }

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
    QTemporaryDir m_folder;
    TerminalPair m_terminal;
    QByteArray m_received;
};

#endif // PTYBOX_H
