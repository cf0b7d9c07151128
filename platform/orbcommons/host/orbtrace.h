#ifndef ORBTRACE_H
#define ORBTRACE_H

#include "orbglobal.h"

#include <QString>
#include <QVariantList>

class OrbEvent;

/// Sees the calls that a plug-in makes on the framework, in the order in which they happen, before they take
/// effect. For whoever hosts the framework (a head unit on the desk, a test); plug-ins do not use it.
class OrbTraceListener
{
public:
    virtual ~OrbTraceListener() {}

    /// \a call of \a object ("AirConditionDlg", "setAirVolume", [3]). Byte arrays are raw bytes.
    virtual void called(const QString &object, const QString &call, const QVariantList &args) = 0;

    /// "dispatchOrbEvent" or "event" with its record, valid during the call.
    virtual void eventCalled(const QString &call, const OrbEvent &event) = 0;

    /// A value that the plug-in told by a dynamic property of its ProtocolUtils has changed; an invalid \a value is not
    /// known any more. No call on the framework.
    virtual void valueTold(const QString &name, const QVariant &value) = 0;
};

/// The one listener of the process; null when nobody listens, which then costs one test per call.
namespace OrbTrace {

ORB_EXPORT extern OrbTraceListener *listener;

/// \a next may be null; not owned. Returns the listener before.
ORB_EXPORT OrbTraceListener *setListener(OrbTraceListener *next);

} // namespace OrbTrace

#endif // ORBTRACE_H
