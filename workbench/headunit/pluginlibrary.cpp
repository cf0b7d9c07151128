#include "pluginlibrary.h"

#include <QFileInfo>

bool PluginLibrary::load(const QString &path, QString *error)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        *error = path + ": there is no such plug-in";
        return false;
    }
    m_library.setFileName(file.absoluteFilePath());
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!m_library.load()) {
        *error = m_library.errorString();
        return false;
    }
    m_create = reinterpret_cast<OrbPluginCreateFunction>(m_library.resolve("create"));
    m_destroy = reinterpret_cast<OrbPluginDestroyFunction>(m_library.resolve("destroy"));
    if (!m_create || !m_destroy) {
        *error = QString("%1: no plug-in, it lacks the entry point '%2'")
                     .arg(path, QLatin1String(m_create ? "destroy" : "create"));
        return false;
    }
    return true;
}
