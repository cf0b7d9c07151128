#ifndef ORBAPPLICATION_H
#define ORBAPPLICATION_H

#include "orbglobal.h"

#include <QApplication>
#include <QStringList>
#include <QVariant>

class OrbEvent;
class OrbKeyFilter;

/// Number of a value in the framework's tag store (0x10008 CAN-bus type, 0x1000c key-redefinition type,
/// 0x10001 status word, 0x11009 clock format).
typedef unsigned int AppTagId;

/// The head unit's application object: configuration, key and touch injection, and the road by which events
/// reach the framework. One per process, on the GUI thread; every function is to be called there.
class ORB_EXPORT OrbApplication : public QApplication
{
    Q_OBJECT

public:
    OrbApplication(int &argc, char **argv);
    ~OrbApplication() override;

    /// The one object, or null before it is built (or when the process has a plain QApplication).
    static OrbApplication *instance();

    /// A run-time value of the head unit; \a defaultValue when the tag is not set.
    QVariant getTag(AppTagId tag, const QVariant &defaultValue = QVariant()) const;

    /// A product setting by name (fixed per product); \a defaultValue when it is not set.
    static QVariant getOrbProductValue(const QString &key, const QVariant &defaultValue = QVariant());

    /// A factory setting: a list of texts, empty when it is not set.
    static QStringList getFactorySetting(const QString &key);

    /// Injects one key event into the head unit as if a key of its own had been used. \a key: Qt key code;
    /// \a press: false for a release; \a autoRepeat: a repeat of a held key; \a last: the framework's fourth
    /// argument, handed through unchanged. Key filters are not asked again.
    static void simulateKey(int key, bool press, bool autoRepeat, int last);

    /// Injects one touch. \a type: 2 press, 3 release, 5 move (the QEvent numbers; others are ignored);
    /// \a x, \a y: pixels of the unit's screen. The widget under a press gets real mouse events, and keeps
    /// getting them until the release, wherever that is.
    static void simulateMouse(int type, int x, int y);

    /// Hands \a event to the framework (radar, doors, steering angle, icons ...) before it returns. The event
    /// stays the caller's; null is ignored.
    void dispatchOrbEvent(OrbEvent *event);

    /// Asks \a filter about every key of the head unit from now on, after the filters added before it. It
    /// must outlive the application or be removed; null and a filter already there are ignored.
    void addKeyFilter(OrbKeyFilter *filter);
    void removeKeyFilter(OrbKeyFilter *filter);

Q_SIGNALS:
    /// The unit's application mode changed to \a mode (2..18); \a other is the mode before.
    void modeAppChanged(uint mode, uint other);

    /// Disk number \a disk: \a status 1 is there (its partitions are mounted), 0 is gone.
    void diskDeviceStatusChange(int disk, int status);

    /// What the framework's own screens listen to: an event given to dispatchOrbEvent, an OrbEvent that
    /// reached the application object by send or post, a simulated key. The pointer is valid during the
    /// emission only.
    void orbEventDispatched(const OrbEvent *event);
    void orbEventReceived(const OrbEvent *event);
    void keySimulated(int key, bool press, bool autoRepeat, int last);

protected:
    bool event(QEvent *event) override;

private:
    Q_DISABLE_COPY(OrbApplication)
};

#endif // ORBAPPLICATION_H
