#include "xinhangdisplay.h"

#include "packageview.h"
#include "unitlink.h"
#include "xinhangbox.h"

#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

const quint8 DisplayCommand = 0x83;

const int SourceLineNumber = 30; // 1 while the unit's own screen is shown
const int LongPress = 1500;      // ms

// The only car type whose status bits bring up a camera.
const quint16 CameraCarType = 1;

// Bits of the framework's application state and of the status word.
const unsigned long CallState1 = 0x1000000;
const unsigned long CallState2 = 0x2000000;
const unsigned long AppState = 4;

// Application modes of the unit with a picture of their own.
const uint PictureModes[] = {2, 4, 5, 7, 13};

} // namespace

XinHangDisplay::XinHangDisplay(XinHangBox &box, QObject *parent)
    : QObject(parent)
    , m_box(box)
    , m_sourceLine(SourceLineNumber)
    , m_switchTimer(new QTimer(this))
    , m_source(FactoryScreen)
    , m_reversingCameraMode(OriginalCamera)
    , m_rightCameraOn(false)
    , m_autoSwitched(false)
    , m_longPressServed(false)
    , m_appState(false)
{
    m_sourceLine.setDirection(QLatin1String("out"));
    m_sourceLine.setValue(0);
    m_switchTimer->setObjectName(QLatin1String("switchDisplayTimer"));
    m_switchTimer->setSingleShot(true);
    m_switchTimer->setInterval(LongPress);
    connect(m_switchTimer, SIGNAL(timeout()), this, SLOT(onSwitchDisplayTimer()));
}

void XinHangDisplay::switchDisplay(quint8 source, bool setGpio)
{
    m_switchTimer->stop();
    if (source == m_source || m_autoSwitched) {
        return;
    }
    m_source = source;
    m_box.send(DisplayCommand, QByteArray(1, char(source)));
    if (setGpio) {
        m_sourceLine.setValue(source == OwnScreen);
    }
    qDebug() << "switch display source:" << source;
}

// d[0]: 7 unknown, 6 right camera, 5 reversing camera, 4 the car shows its own screen, 3..0 unknown
void XinHangDisplay::onStatus(const PackageView &d)
{
    m_source = d.bit(0, 4) ? FactoryScreen : OwnScreen;
    if (m_box.carType() != CameraCarType) {
        return;
    }
    if (isCameraWanted(d)) {
        if (!m_autoSwitched && isOwnScreen()) {
            switchDisplay(FactoryScreen, false);
            m_autoSwitched = true;
        }
    } else if (m_autoSwitched) {
        m_autoSwitched = false;
        // QUIRK xinhang-camera-return: the box gets the command to go back even when its status says that the
        // unit's screen is there again.
        m_source = FactoryScreen;
        switchDisplay(OwnScreen, false);
    }
}

bool XinHangDisplay::isCameraWanted(const PackageView &d) const
{
    if (m_reversingCameraMode == Camera360 && (d.bit(0, 5) || d.bit(0, 6))) {
        return true;
    }
    return m_rightCameraOn && d.bit(0, 6);
}

void XinHangDisplay::pressSwitchKey(bool held)
{
    if (!held) {
        m_longPressServed = false;
    }
    if (!m_longPressServed && !m_switchTimer->isActive()) {
        m_switchTimer->start();
    }
}

bool XinHangDisplay::releaseSwitchKey()
{
    m_longPressServed = false;
    if (!m_switchTimer->isActive()) {
        return false;
    }
    m_switchTimer->stop();
    return true;
}

void XinHangDisplay::onSwitchDisplayTimer()
{
    m_switchTimer->stop();
    m_longPressServed = true;
    if (UnitLink::statusWord() & (UnitLink::CallPresent | AppState)) {
        return;
    }
    switchDisplay(isOwnScreen() ? FactoryScreen : OwnScreen, true);
}

void XinHangDisplay::onCallSwitchDisplay(bool inCall)
{
    static quint8 sourceBeforeCall = m_source;
    if (inCall) {
        // QUIRK xinhang-call-twice: a call is reported with two state bits; the second report remembers the
        // screen that the first one brought up, and so the call's end leaves it there.
        sourceBeforeCall = m_source;
        switchDisplay(OwnScreen, true);
    } else {
        switchDisplay(sourceBeforeCall, true);
    }
}

void XinHangDisplay::orbAppStateChange(unsigned long state, unsigned long mask)
{
    if (mask == CallState1 || mask == CallState2) {
        onCallSwitchDisplay(state & mask);
    } else if (mask == AppState) {
        m_appState = state & AppState;
    }
}

void XinHangDisplay::onModeAppChange(uint mode, uint)
{
    if (std::find(std::begin(PictureModes), std::end(PictureModes), mode) != std::end(PictureModes)) {
        switchDisplay(OwnScreen, true);
    }
}
