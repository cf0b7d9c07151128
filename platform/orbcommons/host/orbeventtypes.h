#ifndef ORBEVENTTYPES_H
#define ORBEVENTTYPES_H

/// The numbers of the framework's events, which lie in 51000..51015.
namespace OrbEventType {

enum Type {
    ShowApp = 51001,     ///< show the application with id getParam() (to the application: param2 is the id)
    Return = 51003,      ///< leave what was shown last
    AppProtocol = 51005, ///< a data packet of another application: getByteArrayParam()
    Key = 51006,         ///< getParam(): key code; getParam2(): 0 released, 1 pressed, 2 auto-repeat
    Notify = 51007,      ///< notification, getParam() says which
    AppState = 51011,    ///< getParam(): state bits, getParam2(): the bits that changed
    AppIcon = 51013      ///< getParam(): application id, getStringParam(): "normal icon,highlighted icon"
};

} // namespace OrbEventType

#endif // ORBEVENTTYPES_H
