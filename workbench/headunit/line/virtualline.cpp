#include "virtualline.h"

#include "terminalpair.h"
#include "virtualclock.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

const int MostLooks = 1000;
const useconds_t LookInterval = 20; // us

} // namespace

int VirtualLine::waitingAtUnit(const TerminalPair &terminal)
{
    int count = 0;
    return ::ioctl(terminal.unitEnd(), FIONREAD, &count) == 0 ? count : 0;
}

void VirtualLine::waitUntilThere(const TerminalPair &terminal, int count)
{
    const VirtualClock::Hold hold;
    for (int i = 0; VirtualClock::isOn() && i < MostLooks && waitingAtUnit(terminal) < count; ++i) {
        ::usleep(LookInterval);
    }
}
