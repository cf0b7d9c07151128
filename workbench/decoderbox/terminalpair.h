#ifndef TERMINALPAIR_H
#define TERMINALPAIR_H

#include <QString>

/// A pseudo-terminal in raw mode: the far end of a unit's serial line. It belongs to whoever speaks for the
/// box; the unit opens devicePath(). Nothing here waits: the far end's descriptor does not block.
class TerminalPair
{
public:
    TerminalPair() = default;
    /// Hangs up.
    ~TerminalPair();
    TerminalPair(const TerminalPair &) = delete;
    TerminalPair &operator=(const TerminalPair &) = delete;

    /// Makes the terminal. False, with one sentence in \a error, when the system has none to give.
    bool open(QString *error);

    /// The far end's descriptor, owned here; -1 before open().
    int farEnd() const { return m_farEnd; }
    /// "/dev/pts/7"; empty before open().
    QString devicePath() const { return m_devicePath; }

    /// Has the unit's end open here as well, so that the line stays up while the unit has it closed.
    bool holdLine();
    /// The unit's end of a line that is held, owned here; else -1.
    int unitEnd() const { return m_unitEnd; }

private:
    int openUnitEnd() const;

    int m_farEnd = -1;
    int m_unitEnd = -1; // open while the line is held
    QString m_devicePath;
};

#endif // TERMINALPAIR_H
