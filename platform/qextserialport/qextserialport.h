#ifndef QEXTSERIALPORT_H
#define QEXTSERIALPORT_H

#include <QIODevice>
#include <QSerialPort>
#include <QString>

/// The published names of QextSerialPort over Qt SerialPort, as far as this project uses them, for machines
/// on which the library itself is not installed.

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

/// Settings of a serial line. Timeout_Millisec bounds nothing here: reads and writes never wait.
struct PortSettings
{
    BaudRateType BaudRate;
    DataBitsType DataBits;
    ParityType Parity;
    StopBitsType StopBits;
    FlowType FlowControl;
    long Timeout_Millisec;
};

/// A serial port as a QIODevice. Reads return what has arrived and never wait; writes are buffered and leave
/// as the line takes them. An error of the line (unplugged, hung up) ends reading: readChannelFinished is
/// emitted, once per opening, and read and write answer -1 from then on.
class QextSerialPort : public QIODevice
{
    Q_OBJECT

public:
    /// Polling leaves reading at the right time to the caller. readyRead is emitted in either mode.
    enum QueryMode { Polling, EventDriven };

    /// \a name: path or name of the device; nothing is opened yet.
    QextSerialPort(const QString &name, const PortSettings &settings, QueryMode mode = EventDriven,
                   QObject *parent = nullptr);
    ~QextSerialPort() override;

    QString portName() const { return m_port.portName(); }
    QueryMode queryMode() const { return m_mode; }

    /// False with errorString() set when there is no such device, it is no terminal, or it is in use.
    bool open(OpenMode mode) override;
    void close() override;
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    qint64 bytesToWrite() const override;

    /// What went wrong last; empty when nothing did.
    QString errorString();

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 maxSize) override;

private Q_SLOTS:
    void onPortError(QSerialPort::SerialPortError error);

private:
    void applySettings();
    void setFailure(const QString &text);

    QSerialPort m_port;
    const PortSettings m_settings;
    const QueryMode m_mode;
    bool m_failed;
    QString m_failure;
};

#endif // QEXTSERIALPORT_H
