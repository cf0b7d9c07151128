#ifndef VIRTUALCLOCK_H
#define VIRTUALCLOCK_H

#include <ctime>

/// A clock for a whole program that jumps to the next thing due as soon as nothing is left to do, so that a
/// minute takes milliseconds and passes in the same way each time, however busy the machine is.
///
/// Linking the library puts its own `clock_gettime`, `gettimeofday`, `time`, `poll`, `ppoll`, `nanosleep` and
/// their like before the system's, for the program and for every library in it: timers, event loop, elapsed
/// times and the time of day follow without a change. Until start() they pass every call on.
///
/// Once started, time stands still for the thread that started it while its code runs. A wait of that thread
/// looks at the real descriptors first; when none is ready, the clock moves by the wait's timeout and the
/// wait is over. A wait without a timeout really waits. What is outside of the process (another program on a
/// pipe, a child) or in another thread is not waited for unless a Hold says so. A loop that neither waits nor
/// sleeps until a time has come never ends. Other threads keep the real clock.
///
/// Qt's event loop takes part from start() on, which has to come before the application object: time jumps
/// then, and Qt is told to use its own dispatcher.
namespace VirtualClock {

/// Midnight of 2026-01-01, UTC.
const std::time_t UsualStart = 1767225600;

/// Starts the clock for good, with the time of day \a timeOfDay (seconds since 1970, UTC). False when another
/// library's functions stand before these ones, and nothing happens then; an already started clock stays as
/// it is and gives true. It is the clock of the calling thread.
bool start(std::time_t timeOfDay = UsualStart);

/// True from start() on.
bool isOn();

/// While one exists time stands still: a wait with a timeout really waits, for no longer than that, and the
/// clock does not move. For waits on what is outside of the process. Without a started clock it does nothing.
/// Only on the thread that started the clock.
class Hold
{
public:
    Hold();
    ~Hold();
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;
};

/// A descriptor that becomes readable once after each askIdle(), as soon as nothing is left to do at the
/// present time: before a wait for descriptors moves the clock or really waits. Read eight bytes from it
/// then. It is the clock's own; -1 before start().
int idleDescriptor();
void askIdle();

} // namespace VirtualClock

#endif // VIRTUALCLOCK_H
