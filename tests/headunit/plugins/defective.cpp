#include "orbplugin.h"

// A shared library that is no proper plug-in, in the way that the build says.

extern "C" {

#ifdef DEFECT_NO_DESTROY
Q_DECL_EXPORT OrbPlugin *create()
{
    return nullptr;
}
#else
Q_DECL_EXPORT void destroy(OrbPlugin *) {}
#endif

#ifdef DEFECT_NO_OBJECT
Q_DECL_EXPORT OrbPlugin *create()
{
    return nullptr;
}
#endif
}
