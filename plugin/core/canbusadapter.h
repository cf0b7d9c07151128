#ifndef CANBUSADAPTER_H
#define CANBUSADAPTER_H

#include "canbustype.h"

#include "protocolutils.h"

#include <QList>

class OrbEvent;
class QextSerialPort;
struct PortSettings;

/// Base of every decoder adapter: the serial link to the decoder box, the framer hooks that it inherits, and
/// the operations that the plug-in forwards framework events to. One adapter lives per process, until the
/// process ends. A decoder overrides the framer hooks, getPortSettings, and whatever it decodes or answers;
/// what it sends at start-up belongs in onInited, never in the constructor.
class CanBusAdapter : public ProtocolUtils
{
    Q_OBJECT

public:
    explicit CanBusAdapter(QObject *parent = nullptr);
    /// Where the process's adapter is gone (a unit's never is), the next call of getAdapterInstance builds one.
    ~CanBusAdapter() override;

    /// The process's adapter: built and started at the first call with a known \a type. Null for an unknown
    /// type, and for any type but the one that was built.
    static CanBusAdapter *getAdapterInstance(CanBusType type);

    /// True once the port object exists, whether or not the port opened.
    bool isInited() const { return serialPort != nullptr; }

    CanBusType getCanBusType() const { return canBusType; }

    /// Device of the decoder box: product value "CANPortName", by default "/dev/ttyHS0". Empty: no link.
    virtual QString getPortName();

    /// Fills in the line's settings; false when the decoder has no serial line.
    virtual bool getPortSettings(PortSettings &settings);

    /// Opens the port, attaches it to the framer and arms the timer that runs onInited 50 ms later. A second
    /// call replaces the port and arms the timer again.
    virtual void initAdapter();

    /// Shows the screen of application \a appId, if the decoder has one.
    virtual void showApp(unsigned int appId);

    /// The language changed: retranslate every visible text.
    virtual void translateApp();

    /// The framework's application state: its bits, and which of them are meant.
    virtual void orbAppStateChange(unsigned long state, unsigned long mask);

    /// A notification for the decoder (any but the language change). \a event stays the caller's.
    virtual void orbAppNotify(OrbEvent *event);

public Q_SLOTS:
    /// One good package from the decoder box, from its start byte through its checksum.
    virtual void onRecvMcuProtocol(const QByteArray &byteArray) = 0;

    /// A data packet from another application for the decoder.
    virtual void onRecvAppProtocol(const QByteArray &byteArray) = 0;

    /// A key of the head unit. \a isAutoRepeat: a repeat of a held key.
    virtual void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) = 0;

private Q_SLOTS:
    void onLineClosing();

public:
    /// Runs once, 50 ms after the port was attached: the place for start-up commands.
    virtual void onInited();

protected:
    void timerEvent(QTimerEvent *event) override;

    /// Greets a box whose line was lost and is open again for 50 ms: it hears once more what it is told at
    /// start. By default that is all of onInited; an adapter that tells the framework something there
    /// overrides this with what is for the box alone.
    virtual void greetBox();

    /// True while the port is closed, since the line was lost or has never been there, and until the box is
    /// greeted.
    bool isLineLost() const { return m_isLineLost; }

    /// Queues \a package. While the line is lost it is kept instead, and leaves behind the greeting: of the
    /// packages that agree in their first \a kindSize bytes the newest only. 0: of no use later, not kept;
    /// what start-up says is queued all the same, and waits for a line that has never been there.
    void writeOrKeep(const QByteArray &package, int kindSize);

    /// The line settings that decoders differ in; eight data bits, no parity, one stop bit, no flow control.
    static void setLine(PortSettings &settings, int baudRate, long timeout);

private:
    struct Kept
    {
        QByteArray package;
        int kindSize;
    };

    void closePort();
    void setLineLost();
    void watchLine();
    void dropKept(const QByteArray &kind);

    static CanBusAdapter *s_instance;

    int initTimerId;
    CanBusType canBusType;
    QextSerialPort *serialPort;

    bool m_isLineLost;
    bool m_isStarting;       // onInited runs
    bool m_isGreetingQueued; // it ran without a line: the framer still holds the ready packages
    int m_watchTimerId;      // runs while the line is lost
    int m_looksOpen;         // that found the port open, in a row
    QList<Kept> m_kept;      // for the time when the line is back, oldest first
};

#endif // CANBUSADAPTER_H
