#ifndef CANBUS_XINHANG_H
#define CANBUS_XINHANG_H

#include "framedadapter.h"
#include "xinhangbox.h"
#include "xinhangdisplay.h"
#include "xinhangkeyfilter.h"
#include "xinhangsettings.h"
#include "xinhangupdater.h"

#include "orbkeyfilter.h"

#include <QPointer>

class QTimer;
class XinHangSettingsWindow;

/// Frame of the XinHang box: F0 LEN command data checksum; LEN counts and the checksum covers command and data.
struct XinHangFrame
{
    static const char StartByte = '\xF0';
    enum { LengthAt = 1, CommandAt = 2, DataAt = 3, CountedFrom = CommandAt, SummedFrom = CommandAt };
};

/// XinHang decoder, CAN-bus type 4: its frame F0 LEN command data checksum, the ready handshake, and what the
/// box reports (status, radar, steering angle, keys, touch, version, car type). The car type decides which of
/// the unit's keys pass; display switching, settings and firmware update are parts of their own.
class CanBus_XinHang : public FramedAdapter<XinHangFrame>, private OrbKeyFilter, private XinHangBox
{
    Q_OBJECT

public:
    explicit CanBus_XinHang(QObject *parent = nullptr);
    ~CanBus_XinHang() override;

    CommandTable commands() const override;
    bool getPortSettings(PortSettings &settings) override;

    /// 769: the car's factory screen. 770 and 771: further screens of the box. Others are ignored.
    void showApp(unsigned int appId) override;
    void translateApp() override;
    void orbAppStateChange(unsigned long state, unsigned long mask) override;
    void orbAppNotify(OrbEvent *event) override;
    void onInited() override;

    /// Package with \a length data bytes, 0 to 254 (more are cut off); null \a data stands for zeros.
    static QByteArray makeMcuProtocol(quint8 command, const unsigned char *data, int length);

    /// The same as getPackageCheckSum.
    static quint8 makeMcuProtocolCheckSum(const QByteArray &bytes, int start, int count);

    /// The unit's radar level, 0 nothing and 1 to 6, of the box's level \a raw for \a sensor 0 to 7; 0 for
    /// other sensors. A level above the sensor's maximum gives more than 6.
    quint8 transRadarLevel(int sensor, quint8 raw) const;

    /// The screen that the car's display shows: 1 the factory screen, 2 the unit's own.
    quint8 getDisplay() const { return m_display.source(); }

    /// See XinHangDisplay::switchDisplay.
    void switchDisplay(quint8 source, bool setGpio) { m_display.switchDisplay(source, setGpio); }

public Q_SLOTS:
    void onRecvMcuProtocol(const QByteArray &byteArray) override;
    void onRecvAppProtocol(const QByteArray &) override {}
    void onKeyEvent(unsigned int, bool, bool) override {}

    /// Tells the box that the unit listens, at most 51 times in the life of the process.
    void onSendReadyTimeout();

    // Handed on to the part that they concern.
    void onSwitchDisplayTimer() { m_display.onSwitchDisplayTimer(); }
    void onModeAppChange(uint mode, uint other) { m_display.onModeAppChange(mode, other); }
    void onDiskStatusChange(int disk, int status) { m_updater.onDiskStatusChange(disk, status); }
    void onStartUpdateMCU() { m_updater.onStartUpdateMCU(); }

private:
    enum { RadarSensors = 8 };

    bool filterKey(unsigned int key, bool pressed, bool held) override;
    void greetBox() override;

    static int kindSize(quint8 command);
    void send(quint8 command, const QByteArray &data) override;
    quint16 carType() const override { return m_carType; }

    void onStatus(const PackageView &d);
    void onRadarAndSteering(const PackageView &d);
    void onKey(const PackageView &d);
    void onTouch(const PackageView &d);
    void onVersion(const PackageView &d);
    void onUpdate(const PackageView &d);
    void onRadarMaximums(const PackageView &d);
    void onCarType(const PackageView &d);
    void onAppRequest(const PackageView &d);
    void onCursorKey(const PackageView &d);

    static quint8 s_lastIllumination;
    static quint8 s_lastDoors;
    static int s_readyCount;

    quint16 m_carType;
    QByteArray m_lastStatus;
    quint8 m_radarMaximums[RadarSensors];
    QTimer *m_readyTimer;
    XinHangDisplay m_display;
    XinHangKeyFilter m_keyFilter;
    XinHangSettings m_settings;
    XinHangUpdater m_updater;
    QPointer<XinHangSettingsWindow> m_settingsWindow;
};

#endif // CANBUS_XINHANG_H
