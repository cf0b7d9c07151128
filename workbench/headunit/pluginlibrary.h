#ifndef PLUGINLIBRARY_H
#define PLUGINLIBRARY_H

#include "orbplugin.h"

#include <QLibrary>
#include <QString>

/// A plug-in's shared library and its two C entry points. As a head unit does, it lets go of the library when
/// it is told to; a plug-in of which something lives on has to see to it that its library stays.
class PluginLibrary
{
public:
    /// Loads \a path and looks both entry points up. False, with one sentence in \a error, when the file is
    /// not there, does not load or lacks one of them.
    bool load(const QString &path, QString *error);

    /// Lets go of the library. What create() returned must be destroyed before.
    void unload() { m_library.unload(); }

    /// Calls the entry points; both need a successful load().
    OrbPlugin *create() const { return m_create(); }
    void destroy(OrbPlugin *plugin) const { m_destroy(plugin); }

private:
    QLibrary m_library;
    OrbPluginCreateFunction m_create = nullptr;
    OrbPluginDestroyFunction m_destroy = nullptr;
};

#endif // PLUGINLIBRARY_H
