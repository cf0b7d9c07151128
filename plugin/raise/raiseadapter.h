#ifndef RAISEADAPTER_H
#define RAISEADAPTER_H

#include "framedadapter.h"

#include <QElapsedTimer>

class CarValue;
class KeySource;
class QTimer;

/// Frame of the Raise boxes: 2E command N data checksum, the checksum over command, N and data.
struct RaiseFrame
{
    static const char StartByte = 0x2E;
    enum { CommandAt = 1, LengthAt = 2, DataAt = 3, CountedFrom = DataAt, SummedFrom = CommandAt };
};

/// One row of a car's mode report: the unit's application mode, and the data bytes that tell it to the car: two, and
/// then \a rest as far as the package goes. It has \a length bytes, 0 for as many as the report has by itself.
struct ModeCode
{
    constexpr ModeCode(unsigned int unitMode, quint8 one, quint8 two = 0, quint8 bytes = 0, quint8 others = 0)
        : mode(unitMode), first(one), second(two), length(bytes), rest(others)
    {}

    unsigned int mode;
    quint8 first;
    quint8 second;
    quint8 length;
    quint8 rest;
};

/// What the decoder boxes of the Raise family share: the frame, the acknowledgement of every package, the
/// ready handshake, the version file, and what several cars report and are told alike. A car states its
/// command table, its key and value tables, and what it sends.
class RaiseAdapter : public FramedAdapter<RaiseFrame>
{
    Q_OBJECT

public:
    RaiseAdapter();

    /// 38400 baud, no time-out: the line of every box of the family.
    bool getPortSettings(PortSettings &settings) override;

    /// Frame with the low byte of \a cmd and \a len data bytes; null \a data stands for zeros.
    static QByteArray makeCanBusProtocol(unsigned short cmd, const unsigned char *data, unsigned char len);

    /// Queues one frame. While the line is lost the newest is kept of the mode, of each setting and of each
    /// request (see writeOrKeep), and no ready command.
    void writeCanBusData(unsigned char cmd, const unsigned char *data, unsigned char len);

    /// One key of the steering wheel or of the car's panel: \a d[0] code, \a d[1] state (or detents of a
    /// knob).
    void processSWCKey(const unsigned char *d);
    void processPanelKey(const unsigned char *d);

    /// Key of the wheel that was reported last, CarKeys::NoKey after an unknown one. One per car and process.
    unsigned int currentKey() const;

    // Toyota, Honda, GM and Jeep have no such request and no settings: there all three do nothing (Honda sets its
    // clock with a writeSettingData of its own).
    /// Asks the box for the data of command \a type, sub-type \a param; nothing for a car without such a
    /// request.
    virtual void syncData(unsigned char type, unsigned char param);
    /// Asks the box for the settings of sub-page \a param; nothing for a car without settings pages.
    virtual void syncSettingData(unsigned char param);
    /// Changes setting number \a item of the car to \a value; nothing for a car that takes none.
    virtual void writeSettingData(unsigned char item, unsigned char value);

    /// Bit 2 of the state, for mask 4; other masks are ignored.
    void orbAppStateChange(unsigned long state, unsigned long mask) override;
    bool appState() const { return m_appState; }

public Q_SLOTS:
    void onReadDeviceDatas() override;
    void onRecvMcuProtocol(const QByteArray &byteArray) override;
    void onRecvAppProtocol(const QByteArray &byteArray) override;
    void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) override;

    /// Tells the box that the head unit listens.
    void onSendReadyTimer();

    /// Reports the unit's application mode \a mode to a car that wants to know (see reportModes).
    void onModeAppChange(uint mode, uint other);

Q_SIGNALS:
    /// A package for screens of the car. \a datas points at \a dataLen bytes, valid during the emission only.
    void recvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen);

protected:
    /// Creates the adapter's periodic timer, not running, and connects it to \a slot. Called in a car's
    /// constructor.
    void setPeriodicTimer(int milliseconds, const char *slot);
    QTimer *periodicTimer() const { return m_periodicTimer; }

    /// Makes the ready command the periodic timer's, every 200 ms while it runs.
    void setReadyTimer();
    void sendReady(int times);

    /// The keys of this car's wheel and panel; static data, null for none.
    void setKeys(KeySource *wheel, KeySource *panel = nullptr);

    /// The commands with which this car's settings are changed and its data asked for; both take two bytes.
    void setSettingCommand(quint8 command) { m_settingCommand = command; }
    void setRequestCommand(quint8 command) { m_requestCommand = command; }

    /// The command that sets this car's clock, all of it: what a lost line keeps of it is the newest.
    void setClockCommand(quint8 command) { m_clockCommand = command; }

    /// What this car's packages tell besides what the framework takes (see CarValue); static data. After a package was
    /// handled, each value is the adapter's dynamic property of that name: there for whoever wants to read it, and no
    /// property while the car has told none.
    template <int Rows>
    void setValues(const CarValue (&rows)[Rows])
    {
        m_values = rows;
        m_valueCount = Rows;
    }

    /// One such value that is no row of a table; an invalid \a value takes it away.
    void tellValue(const char *name, const QVariant &value);

    /// From now on packages with a command that this car's table lacks are handed on by recvCanDatas.
    void handOnUnknownPackages() { m_handsOnUnknown = true; }

    /// From now on each change of the unit's application mode sends \a command with \a length data bytes, or
    /// as the row of the mode says; a mode without a row is all zeros. \a rows is static data.
    template <int Rows>
    void reportModes(quint8 command, quint8 length, const ModeCode (&rows)[Rows])
    {
        startModeReport(command, length, rows, Rows);
    }

    /// Queues one frame with the data bytes \a data, of which 255 fit, or with two.
    void writeBytes(quint8 command, const QByteArray &data);
    void writePair(quint8 command, quint8 first, quint8 second);

    // Handlers that several cars have in their tables.
    /// Version text d[0..N-1]; the box has answered, so no further ready is needed.
    void onVersion(const PackageView &d);
    /// Four status bits of d[0].
    void onStatus(const PackageView &d);
    /// Key of the wheel or panel d[0], d[1].
    void onSteeringWheelKey(const PackageView &d);
    void onPanelKey(const PackageView &d);
    /// Signed 16-bit steering angle d[0], d[1], of which 4608 units are 40 degrees.
    void onSignedSteeringAngle(const PackageView &d);
    /// Steering angle d[0], d[1], high byte first: bit 15 right, below it tenths of a degree at the wheel, of which 540
    /// degrees are 40.
    void onSignAndSizeSteeringAngle(const PackageView &d);
    /// What only a screen could use: handed on by recvCanDatas.
    void onScreenData(const PackageView &d);

    void onOtherPackage(const PackageView &package) override;

private:
    void tellValues(const PackageView &package);
    void noteRepetition(const QByteArray &package);
    int kindSize(quint8 command, int size) const;
    void startModeReport(quint8 command, quint8 length, const ModeCode *rows, int count);

    QTimer *m_periodicTimer;
    QTimer *m_readyTimer; // the periodic timer of a car that repeats the ready command, else null
    KeySource *m_wheelKeys;
    KeySource *m_panelKeys;
    quint8 m_settingCommand; // 0: none
    quint8 m_requestCommand; // 0: none
    quint8 m_clockCommand;   // 0: none
    quint8 m_modeCommand;    // 0: modes are not reported
    quint8 m_modeLength;
    const ModeCode *m_modeCodes;
    int m_modeCount;
    const CarValue *m_values;
    int m_valueCount;
    bool m_handsOnUnknown;
    bool m_appState;

    enum { MostRepetitions = 3 };
    QByteArray m_lastPackage; // an array of its own: the framer's stays free for the next package
    qint64 m_lastArrivals
        [MostRepetitions]; // ms, of the packages that were like it, oldest first; or NeverArrived
    qint64 m_lastReminder; // ms, of the ready that answered repetitions
    QElapsedTimer m_clock;
};

#endif // RAISEADAPTER_H
