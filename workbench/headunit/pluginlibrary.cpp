#include "pluginlibrary.h"

#include <QFileInfo>
#include <QLibrary>

bool PluginLibrary::load(const QString &path, QString *error)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        *error = path + ": there is no such plug-in";
        return false;
    }
    QLibrary library(file.absoluteFilePath());
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load()) {
        *error = library.errorString();
        return false;
    }
    m_create = reinterpret_cast<OrbPluginCreateFunction>(library.resolve("create"));
    m_destroy = reinterpret_cast<OrbPluginDestroyFunction>(library.resolve("destroy"));
    if (!m_create || !m_destroy) {
        *error = QString("%1: no plug-in, it lacks the entry point '%2'")
                     .arg(path, QLatin1String(m_create ? "destroy" : "create"));
        return false;
    }
    return true;
}
