#ifndef XINHANGDISPLAY_H
#define XINHANGDISPLAY_H

#include "gpiooperater.h"

#include <QObject>

class PackageView;
class QTimer;
class XinHangBox;

/// Which picture the car's display shows, and everything that changes it: the box's status, the cameras, a
/// long press of the switch key, a phone call, the unit's application mode.
class XinHangDisplay : public QObject
{
    Q_OBJECT

public:
    enum Source { FactoryScreen = 1, OwnScreen = 2 };

    /// Values of the setting "Reversing camera".
    enum ReversingCamera { OriginalCamera = 0, Camera360 = 1, AddedCamera = 2 };

    XinHangDisplay(XinHangBox &box, QObject *parent);

    quint8 source() const { return m_source; }
    bool isOwnScreen() const { return m_source == OwnScreen; }

    /// Asks the box for \a source (one of Source), unless it is shown already or a camera holds the display.
    /// Ends a running long press in every case. \a setGpio: tell the hardware's line as well.
    void switchDisplay(quint8 source, bool setGpio);

    /// The box's status: which screen the car shows, and whether a camera wants the display.
    void onStatus(const PackageView &d);

    /// Settings that decide which status bits bring up a camera.
    void setReversingCameraMode(int mode) { m_reversingCameraMode = mode; }
    void setRightCameraOn(bool on) { m_rightCameraOn = on; }

    /// A key whose long press switches the display went down. \a held: a repeat, which starts no second long
    /// press after the first one was served.
    void pressSwitchKey(bool held);

    /// The key went up: true when that ends a short press.
    bool releaseSwitchKey();

    /// A phone call brings up the unit's own screen; its end brings back the one before.
    void onCallSwitchDisplay(bool inCall);

    /// The framework's application state: call bits switch the display, bit 2 is kept; other masks are
    /// ignored.
    void orbAppStateChange(unsigned long state, unsigned long mask);
    bool appState() const { return m_appState; }

public Q_SLOTS:
    /// The switch key was held for 1.5 s: shows the other screen, unless a call is present.
    void onSwitchDisplayTimer();

    /// Modes whose picture is the unit's bring up its own screen.
    void onModeAppChange(uint mode, uint other);

private:
    bool isCameraWanted(const PackageView &d) const;

    XinHangBox &m_box;
    GPIOOperater m_sourceLine;
    QTimer *m_switchTimer;
    quint8 m_source;
    int m_reversingCameraMode;
    bool m_rightCameraOn;
    bool m_autoSwitched; // a camera brought up the car's screen
    bool m_longPressServed;
    bool m_appState;
};

#endif // XINHANGDISPLAY_H
