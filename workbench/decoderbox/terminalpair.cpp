#include "terminalpair.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace {

void closeEnd(int end)
{
    if (end >= 0) {
        ::close(end);
    }
}

// Raw mode belongs to the terminal and outlives this opening of the unit's end.
bool makeRaw(int unitEnd)
{
    termios settings;
    if (unitEnd < 0 || ::tcgetattr(unitEnd, &settings) != 0) {
        return false;
    }
    ::cfmakeraw(&settings);
    return ::tcsetattr(unitEnd, TCSANOW, &settings) == 0;
}

} // namespace

TerminalPair::~TerminalPair()
{
    closeEnd(m_unitEnd);
    closeEnd(m_farEnd);
}

bool TerminalPair::open(QString *error)
{
    m_farEnd = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    const bool isMade = m_farEnd >= 0 && ::grantpt(m_farEnd) == 0 && ::unlockpt(m_farEnd) == 0;
    if (isMade) {
        m_devicePath = QFile::decodeName(::ptsname(m_farEnd));
    }
    const int unitEnd = isMade ? openUnitEnd() : -1;
    const bool isRaw = makeRaw(unitEnd);
    if (!isRaw) {
        *error =
            QString("no pseudo-terminal in raw mode: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
    }
    closeEnd(unitEnd);
    return isRaw;
}

bool TerminalPair::holdLine()
{
    m_unitEnd = openUnitEnd();
    return m_unitEnd >= 0;
}

int TerminalPair::openUnitEnd() const
{
    return ::open(QFile::encodeName(m_devicePath).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
}
