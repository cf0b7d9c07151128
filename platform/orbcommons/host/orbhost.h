#ifndef ORBHOST_H
#define ORBHOST_H

#include "orbglobal.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QWidget>

/// The framework seen from the head unit that hosts it: everything that on a real unit comes from the
/// product's configuration, its hardware and its window system. One per process; built on first use, lives
/// until the OrbApplication goes. GUI thread only. Plug-ins do not use it.
class ORB_EXPORT OrbHost : public QObject
{
    Q_OBJECT

public:
    static OrbHost *instance();

    /// What OrbApplication::getTag, getOrbProductValue and getFactorySetting answer from now on. An invalid
    /// variant (or an empty list) unsets the value.
    void setTag(unsigned int tag, const QVariant &value);
    void setProductValue(const QString &key, const QVariant &value);
    void setFactorySetting(const QString &key, const QStringList &values);

    /// Folder for OrbIniConfig's files; created when something is written. Without one they live in the
    /// current folder's "settings".
    void setSettingsDir(const QString &path);
    QString settingsDir() const;

    /// What FileSystemService::getDiskPartitionPaths answers.
    void setDiskPartitions(int disk, const QStringList &paths);

    /// Overrides OrbWindowManager::getCurWindowAppId; -1 ends the override.
    void setCurWindowAppId(int appId);

    /// The unit's screen, whose pixels OrbApplication::simulateMouse counts, and the area in it that windows
    /// and dialogs are put on. Neither is owned; both may be null (windows are then top-level).
    void setScreen(QWidget *screen, QWidget *windowArea);
    QWidget *screen() const;
    QWidget *windowArea() const;

    /// Every OrbMainWindow and OrbDialog that exists, in the order in which they were built.
    QList<QWidget *> windows() const;

    /// The visible window or dialog on top, or null: the launcher. \a ignoreOverlays leaves overlays (the
    /// climate display) out.
    QWidget *frontWindow(bool ignoreOverlays = true) const;

    /// The visible application window on top, whatever dialog lies over it; null: the launcher.
    QWidget *frontMainWindow() const;

    /// Offers a key of the unit to the registered filters, in order; true when one consumed it.
    bool filterKey(unsigned int key, bool pressed, bool held);

    /// Registered titles in the order of registration: application id and title.
    QList<unsigned int> titledApps() const;

    /// Icons announced for an application (normal, highlighted), empty when none were.
    QStringList appIcons(unsigned int appId) const;

    /// Language of the framework's texts and of plug-in texts ("en", "de", "zh_CN"): loads the translators of
    /// the folders and sends no notification. False when no translation of that language was found ("en"
    /// needs none).
    bool setLanguage(const QString &language);
    QString language() const;
    void addTranslationDir(const QString &path);

    /// Holds GetTickCountMs at a value until released, so that tests move time by hand.
    void holdTickCount(quint64 milliseconds);
    void releaseTickCount();

Q_SIGNALS:
    void appTitleChanged(unsigned int appId, const QString &title);
    void appIconsChanged(unsigned int appId);
    void gpioChanged(int line, const QString &direction, int value);
    /// A window or dialog was shown, hidden, brought to the front or destroyed.
    void windowsChanged();

private:
    OrbHost();
    ~OrbHost() override;
    Q_DISABLE_COPY(OrbHost)
    friend class OrbHostPrivate;
    class OrbHostPrivate *d;
};

#endif // ORBHOST_H
