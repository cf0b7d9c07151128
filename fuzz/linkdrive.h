#ifndef LINKDRIVE_H
#define LINKDRIVE_H

#include <QByteArray>
#include <QEventLoop>
#include <QObject>
#include <QTimer>

#include "canbustype.h"

class CanBusAdapter;
class CanBusPlugin;
class KeyRedefAdapter;
class QTranslator;

/// The unit's link to its box as a state machine: the real plug-in against the stand-alone framework, a line in memory
/// (MemoryLine) and virtual time, driven by a list of orders: packages, noise, events, keys, modes, disks, languages,
/// time, troubles of the line, clicks.
///
/// Everything is built for one drive and gone behind it: plug-in, adapter, windows, settings. What the plug-in keeps for
/// its process (the held key of a wheel, what XinHang's box said last) is brought back to where it was by the packages
/// that bring it back in a car; so a drive goes the same way whatever was driven before it.
class LinkDrive : public QObject
{
    Q_OBJECT

public:
    /// Once per process, before anything of Qt: application, screen, clock, and the process-wide state.
    static void start(int *argc, char **argv);

    /// Plays \a orders: the type, how the unit is set up, and then one order after the other; too many are left out.
    /// Ends the program when the unit writes what is no package, or leaves a window behind.
    static void play(const QByteArray &orders);

    /// The same on the box with firmware updates only.
    static void playUpdate(const QByteArray &orders);

protected:
    bool event(QEvent *event) override;

private:
    using Order = void (LinkDrive::*)();

    static void playType(CanBusType type, const QByteArray &orders);

    LinkDrive(CanBusType type, quint8 set, const QByteArray &orders);
    ~LinkDrive() override;

    void drive();
    void step();
    void closeDialogs();
    void calmProcess();
    void goOn(int ms);

    static KeyRedefAdapter *keySet(int number);
    quint8 next();
    QByteArray nextBytes(int most);

    void package();
    void noise();
    void lineTrouble();
    void tellApp();
    void unitKey();
    void ownKeySet();
    void mode();
    void disk();
    void spoilFile();
    void language();
    void wait();
    void standStill();
    void click();
    void row();
    void open();
    void leave();
    void touch();
    void setTag();
    void restart();

    const CanBusType m_type;
    const QByteArray m_orders;
    int m_at = 0;
    bool m_mayOpen = false; // windows that take their time
    int m_played = 0;
    int m_waited = 0;                  // ms
    QTranslator *m_language = nullptr; // not the source texts' own
    QEventLoop m_loop;
    int m_level = 0; // of event loops, at the drive's start
    int m_closings = 0;
    QTimer m_timer;
    CanBusPlugin *m_plugin = nullptr;
    CanBusAdapter *m_adapter = nullptr;
};

#endif // LINKDRIVE_H
