#ifndef UNITSHELL_H
#define UNITSHELL_H

#include "carstate.h"
#include "launcher.h"
#include "unitcontrols.h"

#include <QObject>
#include <QTimer>

class AppPage;
class HeadUnit;
class HomePage;
class OrbEvent;
class StatusBar;
class UnitScreen;

/// The unit's own software around the plug-in's windows: its pages show what the plug-in reports, and what is
/// done on them and with the keys reaches the plug-in.
class UnitShell : public QObject
{
    Q_OBJECT

public:
    /// Puts the unit's pages on \a screen. Neither is owned; both must outlive the shell.
    UnitShell(HeadUnit *unit, UnitScreen *screen, QObject *parent = nullptr);

    UnitControls *controls() { return &m_controls; }
    HomePage *homePage() const { return m_homePage; }
    /// What the plug-in has reported about the car.
    const CarState &carState() const { return m_carState; }

    /// A key of the unit; \a phase: 0 released, 1 pressed, 2 repeated. The unit acts on it unless a filter
    /// takes it.
    void useKey(int code, int phase);

    /// Why the car may be another than was reported; empty when it is as it is shown.
    void setDoubt(const QString &doubt);

    /// Texts of the unit's own pages in the language of now.
    void retranslate();

private:
    void connectFramework();
    void onEvent(const OrbEvent *event);
    void onShowApp(uint appId);
    void onReturn();
    void onCallChanged(bool isInCall);
    void onNavigation(int key);
    void open(const Launcher::Entry &entry);
    void openWindow(const QString &title);
    void showPage(uint appId);
    void hidePage();
    void showCarState();
    void showControls();
    void showFront();
    void showEntries();
    QVector<Launcher::Entry> sourceEntries() const;
    Launcher::Entry appEntry(uint appId) const;

    HeadUnit *m_unit;
    UnitScreen *m_screen;
    UnitControls m_controls;
    CarState m_carState;
    StatusBar *m_statusBar;
    HomePage *m_homePage;
    AppPage *m_appPage;
    QTimer m_secondTimer;
};

#endif // UNITSHELL_H
