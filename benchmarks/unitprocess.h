#ifndef UNITPROCESS_H
#define UNITPROCESS_H

#include "terminalpair.h"

#include <string>

#include <sys/types.h>

/// The program headunit as a process of its own with a Toyota's adapter, on a pseudo-terminal whose far end
/// is held here.
class UnitProcess
{
public:
    /// Starts it; the clock of sinceStart() runs from here.
    explicit UnitProcess(const std::string &program);
    ~UnitProcess();
    UnitProcess(const UnitProcess &) = delete;
    UnitProcess &operator=(const UnitProcess &) = delete;

    /// Seconds until the next byte of the unit has come; negative when none comes within \a timeout seconds.
    double waitForByte(unsigned char *byte, double timeout);

    /// Reads and drops what comes until the unit has been quiet for \a quiet seconds.
    void drain(double quiet);

    void send(const std::string &bytes);

    double sinceStart() const;

    /// Processor time so far in seconds, and resident memory in KiB.
    double processorTime() const;
    long residentMemory() const;

private:
    TerminalPair m_terminal;
    pid_t m_pid;
    double m_started;
};

#endif // UNITPROCESS_H
