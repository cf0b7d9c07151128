#ifndef RAISEADAPTER_H
#define RAISEADAPTER_H

#include "canbusadapter.h"
#include "packageview.h"

class KeySource;
class QTimer;

/// What the decoder boxes of the Raise family share: the frame 2E command N data checksum, the
/// acknowledgement of every package, the ready handshake, the version file, and the events that several cars
/// report alike. A car states its command table, its key and value tables, and what it sends.
class RaiseAdapter : public CanBusAdapter
{
    Q_OBJECT

public:
    typedef void (RaiseAdapter::*Handler)(const PackageView &);

    /// One row of a car's data sheet: a command, the fewest data bytes it needs, and what is done with it.
    struct Command
    {
        quint8 command;
        quint8 minimumN;
        Handler handler;
    };

    /// A car's rows, in the order of its data sheet.
    struct CommandTable
    {
        const Command *rows;
        int count;
    };

    RaiseAdapter();

    int getPackageMinSize() override;
    int findPackageStartSig(int from) override;
    int getPackageSize(int start) override;
    bool isAvaliablePackage(int start, int last, int size) override;

    /// 38400 baud, no time-out: the line of every box of the family.
    bool getPortSettings(PortSettings &settings) override;

    /// The rows that this car handles itself.
    virtual CommandTable commands() const;

    /// Frame with the low byte of \a cmd and \a len data bytes; null \a data stands for zeros.
    static QByteArray makeCanBusProtocol(unsigned short cmd, const unsigned char *data, unsigned char len);

    /// One's complement of the 8-bit sum of \a len bytes; 0xFF for an empty range or one that leaves the
    /// array.
    static unsigned char getPackageCheckSum(const QByteArray &data, int start, int len);

    /// Queues one frame.
    void writeCanBusData(unsigned char cmd, const unsigned char *data, unsigned char len);

    /// One key of the steering wheel: \a d[0] code, \a d[1] state (or detents of a knob).
    void processSWCKey(const unsigned char *d);

    /// Key of the wheel that was reported last, CarKeys::NoKey after an unknown one. One per car and process.
    unsigned int currentKey() const;

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

Q_SIGNALS:
    /// A package for the car's screens. \a datas points at \a dataLen bytes, valid during the emission only.
    void recvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen);

protected:
    /// A package that no row takes: unknown, or shorter than its row asks for.
    virtual void onOtherPackage(const PackageView &package);

    /// Creates the adapter's periodic timer, not running, and connects it to \a slot. Called in a car's
    /// constructor.
    void setPeriodicTimer(int milliseconds, const char *slot);
    QTimer *periodicTimer() const { return m_periodicTimer; }

    /// Makes the ready command the periodic timer's, every 200 ms while it runs.
    void setReadyTimer();
    void sendReady(int times);

    /// The keys of this car's wheel; \a keys is static data.
    void setWheelKeys(KeySource *keys) { m_wheelKeys = keys; }

    // Handlers that several cars have in their tables.
    /// Version text d[0..N-1]; the box has answered, so no further ready is needed.
    void onVersion(const PackageView &d);
    /// Four status bits of d[0].
    void onStatus(const PackageView &d);
    /// Key of the wheel d[0], d[1].
    void onSteeringWheelKey(const PackageView &d);
    /// Signed 16-bit steering angle d[0], d[1], of which 4608 units are 40 degrees.
    void onSignedSteeringAngle(const PackageView &d);

    /// A car's row with a handler of its own class.
    template <class Car>
    static constexpr Handler handler(void (Car::*function)(const PackageView &))
    {
        return static_cast<Handler>(function);
    }

private:
    QTimer *m_periodicTimer;
    QTimer *m_readyTimer; // the periodic timer of a car that repeats the ready command, else null
    KeySource *m_wheelKeys;
    bool m_appState;
};

#endif // RAISEADAPTER_H
