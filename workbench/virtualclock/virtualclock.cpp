// The fortified headers define some of these functions in their own way.
#undef _FORTIFY_SOURCE

#include "virtualclock.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

const int64_t Second = 1000000000; // ns
const int64_t Millisecond = 1000000;
const int64_t NoTimeout = -1;

// Monotonic time at the start, in seconds: more than any machine has run for, so that what was taken before
// is over.
const int64_t FirstSecond = 1000000000;

// Looking at the descriptors is what a jump costs most. Only this process makes something ready on most of
// them: as long as it wrote and closed nothing, an empty look need not be repeated, but for a device or a
// signal now and then.
const int JumpsForALook = 32;
const nfds_t MostKept = 16; // descriptors of a look that is remembered

// The system's functions, in front of which the program's own ones stand.
struct System
{
    decltype(&::clock_gettime) clockGettime;
    decltype(&::gettimeofday) getTimeOfDay;
    decltype(&::time) time;
    decltype(&::poll) poll;
    decltype(&::ppoll) ppoll;
    decltype(&::nanosleep) nanosleep;
    decltype(&::clock_nanosleep) clockNanosleep;
    decltype(&::usleep) usleep;
    decltype(&::write) write;
    decltype(&::writev) writev;
    decltype(&::close) close;
};

template <typename Function>
void find(Function *function, const char *name)
{
    void *const found = ::dlsym(RTLD_NEXT, name);
    std::memcpy(function, &found, sizeof found);
}

System findSystem()
{
    System system;
    find(&system.clockGettime, "clock_gettime");
    find(&system.getTimeOfDay, "gettimeofday");
    find(&system.time, "time");
    find(&system.poll, "poll");
    find(&system.ppoll, "ppoll");
    find(&system.nanosleep, "nanosleep");
    find(&system.clockNanosleep, "clock_nanosleep");
    find(&system.usleep, "usleep");
    find(&system.write, "write");
    find(&system.writev, "writev");
    find(&system.close, "close");
    return system;
}

// Libraries call long before main().
const System &real()
{
    static const System system = findSystem();
    return system;
}

struct Clock
{
    std::atomic<bool> isOn;
    int64_t now;       // monotonic, ns
    int64_t dayOffset; // from monotonic time to the time of day, ns
    int64_t lateness;  // of the event loop, which alone calls ppoll, ns
    pthread_t thread;  // whose clock it is
    int holds;
    int idleDescriptor;
    bool isIdleAsked;
    std::atomic<bool> isTouched; // something was written or closed since the last look
    pollfd lastLook[MostKept];   // found nothing ready
    nfds_t lastLookSize;
    int jumpsSinceLook;
};
Clock theClock; // all zero before any code runs

inline bool isOn()
{
    return theClock.isOn.load(std::memory_order_relaxed);
}

// Whether this thread lives by the virtual clock.
inline bool isMine()
{
    return isOn() && ::pthread_equal(theClock.thread, ::pthread_self());
}

inline void touch()
{
    theClock.isTouched.store(true, std::memory_order_relaxed);
}

void jump(int64_t timeout)
{
    theClock.now += timeout;
}

int64_t nanoseconds(const timespec &time)
{
    return int64_t(time.tv_sec) * Second + time.tv_nsec;
}

timespec toTimespec(int64_t nanoseconds)
{
    return {time_t(nanoseconds / Second), long(nanoseconds % Second)};
}

bool isWallClock(clockid_t id)
{
    return id == CLOCK_REALTIME || id == CLOCK_REALTIME_COARSE;
}

// Clocks that count the processor's work stay real.
bool isVirtual(clockid_t id)
{
    return isWallClock(id) || id == CLOCK_MONOTONIC || id == CLOCK_MONOTONIC_COARSE ||
           id == CLOCK_MONOTONIC_RAW || id == CLOCK_BOOTTIME;
}

int64_t read(clockid_t id)
{
    return isWallClock(id) ? theClock.now + theClock.dayOffset : theClock.now;
}

bool isLookKept(const pollfd *entries, nfds_t count)
{
    if (theClock.isTouched.load(std::memory_order_relaxed) || theClock.jumpsSinceLook >= JumpsForALook ||
        count != theClock.lastLookSize || count > MostKept) {
        return false;
    }
    for (nfds_t i = 0; i < count; ++i) {
        if (entries[i].fd != theClock.lastLook[i].fd || entries[i].events != theClock.lastLook[i].events) {
            return false;
        }
    }
    return true;
}

void keepLook(const pollfd *entries, nfds_t count)
{
    theClock.jumpsSinceLook = 0;
    theClock.lastLookSize = count;
    std::copy_n(entries, std::min(count, MostKept), theClock.lastLook);
}

// How many of the descriptors are ready now; -1 as poll() does.
int look(pollfd *entries, nfds_t count, const sigset_t *signals)
{
    if (isLookKept(entries, count)) {
        ++theClock.jumpsSinceLook;
        for (nfds_t i = 0; i < count; ++i) {
            entries[i].revents = 0;
        }
        return 0;
    }
    theClock.isTouched.store(false, std::memory_order_relaxed);
    const timespec noTime = {0, 0};
    const int ready = real().ppoll(entries, count, &noTime, signals);
    if (ready == 0) {
        keepLook(entries, count);
    } else {
        touch(); // what is ready stays so until it is read
    }
    return ready;
}

// Somebody has asked for the moment at which nothing is left to do, and this is it.
bool tellIdle()
{
    if (!theClock.isIdleAsked) {
        return false;
    }
    theClock.isIdleAsked = false;
    const uint64_t one = 1;
    touch();
    return real().write(theClock.idleDescriptor, &one, sizeof one) == sizeof one;
}

int wait(pollfd *entries, nfds_t count, int64_t timeout, const sigset_t *signals)
{
    const timespec time = toTimespec(std::max<int64_t>(timeout, 0));
    if (timeout == 0) {
        return real().ppoll(entries, count, &time, signals);
    }
    do {
        const int ready = look(entries, count, signals);
        if (ready != 0) {
            return ready;
        }
    } while (tellIdle());
    if (timeout == NoTimeout || theClock.holds > 0) {
        touch();
        return real().ppoll(entries, count, timeout == NoTimeout ? nullptr : &time, signals);
    }
    jump(timeout);
    return 0;
}

// A sleep; really sleeps while the clock is held.
int rest(int64_t duration)
{
    if (theClock.holds > 0) {
        const timespec time = toTimespec(duration);
        return real().nanosleep(&time, nullptr);
    }
    jump(duration);
    return 0;
}

// Qt 5's event loop rounds what is left until a timer up to the next millisecond, a whole one too, and so wakes up a
// millisecond late; Qt 6's rounds fractions only. Times have no fractions here, and a trace is the same with both.
int64_t latenessOfEventLoop()
{
    void *const found = ::dlsym(RTLD_DEFAULT, "qVersion");
    const char *(*version)() = nullptr;
    std::memcpy(&version, &found, sizeof version);
    return version && std::atoi(version()) >= 6 ? Millisecond : 0;
}

} // namespace

bool VirtualClock::start(std::time_t timeOfDay)
{
    if (::isOn()) {
        return true;
    }
    // Would a library find this program's function?
    void *const own = reinterpret_cast<void *>(&::ppoll);
    if (::dlsym(RTLD_DEFAULT, "ppoll") != own || !real().ppoll) {
        return false;
    }
    ::setenv("QT_NO_GLIB", "1", 1);
    theClock.idleDescriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    theClock.thread = ::pthread_self();
    theClock.isTouched = true;
    theClock.now = FirstSecond * Second;
    theClock.lateness = latenessOfEventLoop();
    theClock.dayOffset = (int64_t(timeOfDay) - FirstSecond) * Second;
    theClock.isOn = true;
    return true;
}

bool VirtualClock::isOn()
{
    return ::isOn();
}

void VirtualClock::pause()
{
    theClock.isOn = false;
}

void VirtualClock::resume(std::time_t timeOfDay)
{
    theClock.now += Second - theClock.now % Second;
    theClock.dayOffset = int64_t(timeOfDay) * Second - theClock.now;
    theClock.isOn = true;
}

VirtualClock::Hold::Hold()
{
    ++theClock.holds;
}

VirtualClock::Hold::~Hold()
{
    --theClock.holds;
}

int VirtualClock::idleDescriptor()
{
    return ::isOn() ? theClock.idleDescriptor : -1;
}

void VirtualClock::askIdle()
{
    theClock.isIdleAsked = true;
}

// -------------------------------------------------------------------- what the system's callers find

extern "C" {

int clock_gettime(clockid_t id, timespec *time) noexcept
{
    if (!isMine() || !isVirtual(id)) {
        return real().clockGettime(id, time);
    }
    *time = toTimespec(read(id));
    return 0;
}

int gettimeofday(timeval *__restrict time, void *__restrict zone) noexcept
{
    if (!isMine()) {
        return real().getTimeOfDay(time, zone);
    }
    const int64_t now = read(CLOCK_REALTIME);
    *time = {time_t(now / Second), suseconds_t(now % Second / 1000)};
    return 0;
}

time_t time(time_t *result) noexcept
{
    if (!isMine()) {
        return real().time(result);
    }
    const time_t now = time_t(read(CLOCK_REALTIME) / Second);
    if (result) {
        *result = now;
    }
    return now;
}

int ppoll(pollfd *entries, nfds_t count, const timespec *timeout, const sigset_t *signals)
{
    if (!isMine()) {
        return real().ppoll(entries, count, timeout, signals);
    }
    const int64_t time = timeout ? nanoseconds(*timeout) : NoTimeout;
    return wait(entries, count, time > 0 ? time + theClock.lateness : time, signals);
}

int poll(pollfd *entries, nfds_t count, int timeout)
{
    return isMine() ? wait(entries, count, timeout < 0 ? NoTimeout : timeout * Millisecond, nullptr)
                    : real().poll(entries, count, timeout);
}

int nanosleep(const timespec *duration, timespec *rest_)
{
    return isMine() ? rest(nanoseconds(*duration)) : real().nanosleep(duration, rest_);
}

int clock_nanosleep(clockid_t id, int flags, const timespec *duration, timespec *rest_)
{
    if (!isMine() || !isVirtual(id)) {
        return real().clockNanosleep(id, flags, duration, rest_);
    }
    const int64_t from = flags & TIMER_ABSTIME ? read(id) : 0;
    return rest(std::max<int64_t>(nanoseconds(*duration) - from, 0)) == 0 ? 0 : errno;
}

int usleep(useconds_t microseconds)
{
    return isMine() ? rest(int64_t(microseconds) * 1000) : real().usleep(microseconds);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    touch();
    return real().write(descriptor, bytes, size);
}

ssize_t writev(int descriptor, const iovec *parts, int count)
{
    touch();
    return real().writev(descriptor, parts, count);
}

int close(int descriptor)
{
    touch();
    return real().close(descriptor);
}

} // extern "C"
