#include "orbwindowmanager.h"

#include "orbhost_p.h"
#include "windowstack.h"

unsigned int OrbWindowManager::getCurWindowAppId()
{
    const int overridden = OrbHostPrivate::get()->curWindowAppId;
    return overridden >= 0 ? unsigned(overridden) : WindowStack::instance()->frontAppId();
}
