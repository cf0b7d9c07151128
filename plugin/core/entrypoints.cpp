#include "canbusplugin.h"

// What the framework looks up in the shared library; nothing else is visible in it.

extern "C" {

Q_DECL_EXPORT OrbPlugin *create()
{
    return new CanBusPlugin;
}

Q_DECL_EXPORT void destroy(OrbPlugin *plugin)
{
    delete plugin;
}
}
