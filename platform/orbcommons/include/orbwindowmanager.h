#ifndef ORBWINDOWMANAGER_H
#define ORBWINDOWMANAGER_H

#include "orbglobal.h"

/// What the framework knows of the windows on the unit's screen.
class ORB_EXPORT OrbWindowManager
{
public:
    /// Id of the application whose window is in front; 0 for the launcher.
    static unsigned int getCurWindowAppId();
};

#endif // ORBWINDOWMANAGER_H
