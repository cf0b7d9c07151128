#ifndef ORBEVENTTYPES_H
#define ORBEVENTTYPES_H

#include <QEvent>

/// The numbers of the framework's events. Whoever sends or gets an OrbEvent goes by its number alone: a plug-in
/// may be built without run-time type information, or with another compiler.
namespace OrbEventType {

enum Type {
    First = 51000,
    ShowApp = 51001, ///< show the application with id getParam() (to the application: param2 is the id)
    Return = 51003,  ///< leave what was shown last
    AppProtocol = 51005, ///< a data packet of another application: getByteArrayParam()
    Key = 51006,         ///< getParam(): key code; getParam2(): 0 released, 1 pressed, 2 auto-repeat
    Notify = 51007,      ///< notification, getParam() says which
    AppState = 51011,    ///< getParam(): state bits, getParam2(): the bits that changed
    AppIcon = 51013,     ///< getParam(): application id, getStringParam(): "normal icon,highlighted icon"
    Last = 51015
};

/// True when \a event is an OrbEvent: its number lies in First..Last.
inline bool isOrbEvent(const QEvent *event)
{
    return event && int(event->type()) >= First && int(event->type()) <= Last;
}

} // namespace OrbEventType

#endif // ORBEVENTTYPES_H
