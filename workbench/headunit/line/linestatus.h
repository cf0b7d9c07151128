#ifndef LINESTATUS_H
#define LINESTATUS_H

#include <QCoreApplication>
#include <QString>

/// How the line to the box is at a moment.
struct LineStatus
{
    Q_DECLARE_TR_FUNCTIONS(LineStatus)

public:
    enum State {
        NotWatched,   ///< the serial library in use tells nothing
        NotOpened,    ///< the unit has no line, or has closed it
        NoDevice,     ///< the port is no file
        NoPermission, ///< who: the group to join, empty when none may
        InUse,        ///< who: the process that has it
        NoTerminal,   ///< the port is no serial device
        CannotOpen,   ///< who: why not
        Lost,         ///< hung up, unplugged
        OtherRate,    ///< bytes, but no packages
        Waiting,      ///< open, and not a byte yet
        Talking,
        Silent,     ///< no package for LineHealth::Patience
        Slow,       ///< the box repeats what the unit has not acknowledged in time
        BoxStopped, ///< the virtual box was told to stop
        BoxHushed   ///< the virtual box was told to be silent for a while
    };

    State state = NotOpened;
    QString port;
    QString who;
    int packagesPerSecond = 0; ///< whole ones with a good checksum from the box, in the last second
    qint64 packages = 0;       ///< in all, as all counts
    qint64 badChecksums = 0;
    qint64 skippedBytes = 0; ///< that were nothing
    qint64 repetitions = 0;
    qint64 packageAge = -1;      ///< ms since the last package; -1 before the first
    qint64 acknowledgement = -1; ///< microseconds that the unit's last answer took; -1 before the first

    /// The state in words: "silent for 12 s".
    QString text() const;
    /// What the state is called, for traces and tests: "silent", "no-device".
    const char *name() const;

    /// Whether the unit can talk with the box, as far as anyone can tell.
    bool isWell() const { return state == Talking || state == Waiting; }
    /// Whether what was reported may be true no longer.
    bool isDoubtful() const { return state != Talking && state != Slow && state != NotWatched; }
};

#endif // LINESTATUS_H
