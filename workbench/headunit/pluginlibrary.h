#ifndef PLUGINLIBRARY_H
#define PLUGINLIBRARY_H

#include "orbplugin.h"

#include <QString>

/// A plug-in's shared library and its two C entry points. Once loaded it stays until the process ends: what
/// the plug-in built may outlive its plug-in object.
class PluginLibrary
{
public:
    /// Loads \a path and looks both entry points up. False, with one sentence in \a error, when the file is
    /// not there, does not load or lacks one of them.
    bool load(const QString &path, QString *error);

    /// Calls the entry points; both need a successful load().
    OrbPlugin *create() const { return m_create(); }
    void destroy(OrbPlugin *plugin) const { m_destroy(plugin); }

private:
    OrbPluginCreateFunction m_create = nullptr;
    OrbPluginDestroyFunction m_destroy = nullptr;
};

#endif // PLUGINLIBRARY_H
