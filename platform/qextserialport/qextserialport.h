#ifndef QEXTSERIALPORT_H
#define QEXTSERIALPORT_H

#include <QIODevice>
#include <QString>

class ArrivalWatch;
class QSocketNotifier;

/// The published names of QextSerialPort, as far as this project uses them, for machines on which the library
/// itself is not installed. What the library does badly is done badly here, so that a desk shows it.

enum BaudRateType {
    BAUD9600 = 9600,
    BAUD19200 = 19200,
    BAUD38400 = 38400,
    BAUD57600 = 57600,
    BAUD115200 = 115200
};

enum DataBitsType { DATA_5 = 5, DATA_6 = 6, DATA_7 = 7, DATA_8 = 8 };

enum ParityType { PAR_NONE, PAR_ODD, PAR_EVEN, PAR_SPACE };

enum StopBitsType { STOP_1, STOP_2 };

enum FlowType { FLOW_OFF, FLOW_HARDWARE, FLOW_XONXOFF };

/// Settings of a serial line. Timeout_Millisec: how long a read of a polled port waits when nothing has
/// arrived, in ms; -1 and 0 do not wait.
struct PortSettings
{
    BaudRateType BaudRate;
    DataBitsType DataBits;
    ParityType Parity;
    StopBitsType StopBits;
    FlowType FlowControl;
    long Timeout_Millisec;
};

/// A serial port as a QIODevice. Writes never wait: what the line does not take at once is refused (write
/// answers fewer bytes, or 0). After a hang-up bytesAvailable() answers -1 and read() 0, for as long as the
/// port stays open, and a write fails.
class QextSerialPort : public QIODevice
{
    Q_OBJECT

public:
    /// Polling announces nothing at all, neither data nor a hang-up, and a read waits for the first byte.
    /// EventDriven emits readyRead, and readChannelFinished once at a hang-up; reads do not wait.
    enum QueryMode { Polling, EventDriven };

    /// \a name: path of the device; nothing is opened yet.
    QextSerialPort(const QString &name, const PortSettings &settings, QueryMode mode = EventDriven,
                   QObject *parent = nullptr);
    ~QextSerialPort() override;

    QString portName() const { return m_name; }
    QueryMode queryMode() const { return m_mode; }

    /// False with errorString() set when there is no such device or it is no terminal, and when the port is
    /// open already. What a pseudo-terminal lacks (parity, a line rate) is no failure.
    bool open(OpenMode mode) override;
    void close() override;
    bool isSequential() const override { return true; }

    /// Bytes that have arrived; 0 while closed, -1 once the line has hung up.
    qint64 bytesAvailable() const override;

    /// What went wrong last, "No Error has occurred" when nothing did. Not virtual: whoever has a QIODevice
    /// gets that class's text, which says nothing.
    QString errorString();

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 maxSize) override;

private:
    void onReadable();
    bool setUpLine();
    bool isReadable(int timeout) const;

    const QString m_name;
    const PortSettings m_settings;
    const QueryMode m_mode;
    int m_descriptor; // -1 while closed
    QSocketNotifier *m_notifier;
    ArrivalWatch *m_watch; // while it is open and somebody listens at the tap
    QString m_failure;     // empty: none
};

#endif // QEXTSERIALPORT_H
