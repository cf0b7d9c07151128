#include "headunit.h"

#include "orbapplication.h"
#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost.h"
#include "orbmainwindow.h"

HeadUnit::HeadUnit(QObject *parent) : QObject(parent) {}

HeadUnit::~HeadUnit()
{
    unloadPlugin();
}

bool HeadUnit::loadPlugin(const QString &path, QString *error)
{
    if (m_plugin) {
        *error = "a plug-in is loaded already";
        return false;
    }
    if (!m_library.load(path, error)) {
        return false;
    }
    m_plugin = m_library.create();
    if (!m_plugin) {
        *error = path + ": its entry point 'create' built no plug-in";
    }
    return m_plugin != nullptr;
}

void HeadUnit::unloadPlugin()
{
    if (OrbPlugin *plugin = m_plugin) {
        m_plugin = nullptr;
        m_library.destroy(plugin);
        m_library.unload();
    }
}

void HeadUnit::post(OrbEvent *event)
{
    if (m_plugin) {
        QCoreApplication::postEvent(m_plugin, event);
    } else {
        delete event;
    }
}

void HeadUnit::showApp(uint appId)
{
    postNumbers(OrbEventType::ShowApp, appId, 0);
}

void HeadUnit::notify(uint param, uint param2)
{
    postNumbers(OrbEventType::Notify, param, param2);
}

void HeadUnit::changeState(uint state, uint mask)
{
    postNumbers(OrbEventType::AppState, state, mask);
}

QVector<OrbMainWindow *> HeadUnit::launcherWindows()
{
    QVector<OrbMainWindow *> windows;
    for (QWidget *window : OrbHost::instance()->windows()) {
        OrbMainWindow *main = qobject_cast<OrbMainWindow *>(window);
        if (main && main->appId() == 0 && !main->windowTitle().isEmpty()) {
            windows << main;
        }
    }
    return windows;
}

bool HeadUnit::key(uint code, KeyPhase phase)
{
    Q_EMIT keyUsed(code, phase);
    if (OrbHost::instance()->filterKey(code, phase != KeyReleased, phase == KeyRepeated)) {
        return true;
    }
    postNumbers(OrbEventType::Key, code, phase);
    return false;
}

void HeadUnit::setMode(uint mode, uint other)
{
    m_mode = mode;
    Q_EMIT modeChanged(mode);
    Q_EMIT OrbApplication::instance()->modeAppChanged(mode, other);
}

void HeadUnit::setDisk(int disk, int status, const QStringList &partitions)
{
    OrbHost::instance()->setDiskPartitions(disk, partitions);
    Q_EMIT OrbApplication::instance()->diskDeviceStatusChange(disk, status);
}

void HeadUnit::postNumbers(int type, uint param, uint param2)
{
    OrbEvent *event = new OrbEvent(0, 0, type);
    event->setParams(param, param2);
    post(event);
}
