#ifndef PORTCHECK_H
#define PORTCHECK_H

#include "portlist.h"

#include <QString>

class PortListener;

/// One thing about a serial line that is in order or is not.
struct CheckResult
{
    enum Status { Ok, Warning, Failure };

    QString what; ///< "permission", one word
    Status status = Ok;
    QString finding; ///< one sentence without its point
    QString advice;  ///< what to do; empty when nothing is

    QString statusText() const;
};

/// Looks at a serial port and at the box behind it, thing by thing. Each is looked at also when one before
/// has failed, unless it cannot be.
class PortCheck
{
public:
    /// \a path: of the device, or of a link to it. \a root: see PortList.
    explicit PortCheck(const QString &path, const QString &root = "/");

    /// Whether the device may be opened at all; no byte goes over the line. The later ones need the earlier.
    CheckResult device() const;
    CheckResult permission() const;
    CheckResult holders() const;
    /// How long the adapter keeps bytes back.
    CheckResult latency() const;

private:
    QString m_path;
    QString m_root;
    SerialDevice m_device;
};

/// What the box says, heard by a listener that has greeted it.
namespace BoxCheck {

CheckResult bytes(const PortListener &listener);
CheckResult packages(const PortListener &listener, int baud);
CheckResult acknowledgement(const PortListener &listener, const CheckResult &latency);
CheckResult handshake(const PortListener &listener);
CheckResult version(const PortListener &listener);

} // namespace BoxCheck

#endif // PORTCHECK_H
