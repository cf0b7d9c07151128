#ifndef HEADUNIT_H
#define HEADUNIT_H

#include "linehealth.h"
#include "linerecorder.h"
#include "pluginlibrary.h"

#include <QObject>
#include <QStringList>

class OrbEvent;
class OrbMainWindow;

/// The head unit without its looks: the plug-in that it has loaded, and what a head unit tells a plug-in. The
/// desk and the script are two hands on the same one. Values that the plug-in asks for (tags, product values,
/// the window in front) are OrbHost's. Needs an OrbApplication; GUI thread only.
class HeadUnit : public QObject
{
    Q_OBJECT

public:
    enum KeyPhase { KeyReleased = 0, KeyPressed = 1, KeyRepeated = 2 };

    explicit HeadUnit(QObject *parent = nullptr);
    /// Unloads the plug-in.
    ~HeadUnit() override;

    /// Loads the shared library \a path and builds its plug-in object. Configure the unit before: the plug-in
    /// asks for its decoder type while it is built. False, with one sentence in \a error, when that fails or
    /// a plug-in is loaded already.
    bool loadPlugin(const QString &path, QString *error);
    /// Has the plug-in delete its object and lets go of its library. Does nothing without a plug-in.
    void unloadPlugin();

    /// Posts \a event, which becomes the unit's, to the plug-in object: the handler runs from the event loop,
    /// so a dialog that it opens keeps no caller waiting. Without a plug-in the event is dropped.
    void post(OrbEvent *event);

    /// Asks the plug-in to show the screen of application \a appId.
    void showApp(uint appId);
    /// The plug-in's windows that belong to no application, so that nothing but the unit's launcher opens them.
    static QVector<OrbMainWindow *> launcherWindows();
    /// A notification to the plug-in: 20486 says that the language changed.
    void notify(uint param, uint param2 = 0);
    /// Tells the plug-in the unit's \a state bits; \a mask says which of them changed.
    void changeState(uint state, uint mask);

    /// A key of the unit: offered to the registered filters, and posted to the plug-in when none consumed it.
    /// True when one did.
    bool key(uint code, KeyPhase phase);

    /// The application mode in front changes to \a mode (2 to 18). \a other is what plug-ins hear as the mode
    /// before.
    void setMode(uint mode, uint other);
    void setMode(uint mode) { setMode(mode, m_mode); }
    /// Hears the unit's serial line from the unit's first moment on.
    LineRecorder *lineRecorder() { return &m_lineRecorder; }
    /// How that line is.
    LineHealth *lineHealth() { return &m_lineHealth; }

    /// 0 until it was set.
    uint mode() const { return m_mode; }

    /// A removable disk comes (\a status 1, with the mount points of its partitions) or goes (0).
    void setDisk(int disk, int status, const QStringList &partitions);

Q_SIGNALS:
    void modeChanged(uint mode);
    /// key() was called; told before anything comes of it. \a phase is a KeyPhase.
    void keyUsed(uint code, int phase);

private:
    void postNumbers(int type, uint param, uint param2);

    LineRecorder m_lineRecorder;
    LineHealth m_lineHealth;
    PluginLibrary m_library;
    OrbPlugin *m_plugin = nullptr;
    uint m_mode = 0;
};

#endif // HEADUNIT_H
