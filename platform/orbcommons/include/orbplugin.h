#ifndef ORBPLUGIN_H
#define ORBPLUGIN_H

#include "orbglobal.h"

#include <QObject>

class OrbMainWindow;

/// Base of every plug-in object. A plug-in is a shared library with two C entry points: `create`, which
/// builds the object on the GUI thread, and `destroy`, which deletes it. Between the two the framework sends
/// it OrbEvents, which arrive in customEvent.
class ORB_EXPORT OrbPlugin : public QObject
{
    Q_OBJECT

public:
    OrbPlugin();
    ~OrbPlugin() override;

    /// The window that the framework shows for the plug-in itself, or null when it has none. The caller owns
    /// it.
    virtual OrbMainWindow *createMainWindow() = 0;

private:
    Q_DISABLE_COPY(OrbPlugin)
};

/// The entry points' types, and the names to look them up by: "create" and "destroy", both with C linkage.
typedef OrbPlugin *(*OrbPluginCreateFunction)();
typedef void (*OrbPluginDestroyFunction)(OrbPlugin *);

#endif // ORBPLUGIN_H
