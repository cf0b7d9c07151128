#ifndef PORTLISTENER_H
#define PORTLISTENER_H

#include "packagecensus.h"

#include <QObject>

#include <memory>

class QextSerialPort;

/// Listens to a serial port for a while, without a unit: what does the box say, and in which frame? Nothing
/// is sent unless it is asked for.
class PortListener : public QObject
{
    Q_OBJECT

public:
    /// \a path: of the device.
    explicit PortListener(const QString &path, QObject *parent = nullptr);
    ~PortListener() override;

    /// Opens the port at \a baud (19200, 38400 or 115200) and forgets what was heard. False, with one sentence
    /// in \a error, when it does not open.
    bool open(int baud, QString *error);
    /// Listens for \a ms, with the event loop running. False, with one sentence in \a error, when the port is
    /// lost meanwhile: what was heard before stands.
    bool listen(int ms, QString *error);
    /// Greets the box as a unit does, in both frames, and from now on acknowledges its packages as it does.
    void greet();

    /// Microseconds from greet() to the first byte behind it; -1 when none came.
    qint64 answeredAfter() const { return m_answeredAfter; }

    const PackageCensus &raise() const { return m_raise; }
    const PackageCensus &xinHang() const { return m_xinHang; }
    /// The one of both with more in its frame.
    const PackageCensus &best() const { return m_xinHang.framed() > m_raise.framed() ? m_xinHang : m_raise; }

private:
    void read();

    const QString m_path;
    std::unique_ptr<QextSerialPort> m_port;
    PackageCensus m_raise{FrameFormat::raise()};
    PackageCensus m_xinHang{FrameFormat::xinHang()};
    bool m_answers = false; // since it was greeted
    qint64 m_greetedAt = 0;
    qint64 m_answeredAfter = -1;
    bool m_isLost = false;
};

#endif // PORTLISTENER_H
