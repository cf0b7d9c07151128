#ifndef FIRMWARERECEIVER_H
#define FIRMWARERECEIVER_H

#include "frameformat.h"
#include "simulatedcar.h"

#include <QObject>
#include <QTimer>

/// The XinHang box's side of a firmware update: asks for one packet of 128 bytes after the other and keeps
/// the image.
///
/// A packet that does not come within a second is asked for again, up to a minute long, so that a disk may be
/// pulled out and put back. The car's property firmware.fault makes it misbehave: `twice` asks for each
/// packet two times, `backwards` begins with the last one, `beyond` asks half way for a packet that does not
/// exist and goes on after that, `stop` asks for nothing more from half way on. `backwards` counts from the
/// next update on, the others at once.
class FirmwareReceiver : public QObject
{
    Q_OBJECT

public:
    /// \a car must outlive the receiver.
    explicit FirmwareReceiver(const SimulatedCar *car, QObject *parent = nullptr);

    /// Takes the data of an update package from the unit, at least one byte; returns what it means.
    QString take(const BoxPackage &package);

Q_SIGNALS:
    /// Data of an update package for the unit.
    void answerDue(const QByteArray &data, const QString &meaning);
    /// "firmware" with "ready", "receiving 3/8", "complete", "failed: why"; "firmware sha256" of the whole
    /// image with its padding.
    void observed(const QString &topic, const QString &value);

private:
    enum State { Idle, Ready, Receiving, Complete, Failed };

    QString takeStart();
    QString takeCount(const BoxPackage &package);
    QString takePacket(const BoxPackage &package);
    void askNext();
    void ask(quint32 number);
    void askAgain();
    void finish();
    void fail(const QString &why);
    quint32 wanted() const;
    bool isHalfWay() const { return m_arrived == m_count / 2; }

    const SimulatedCar *m_car;
    State m_state = Idle;
    QByteArray m_image;
    quint32 m_count = 0;
    quint32 m_arrived = 0;
    bool m_isBackwards = false;
    bool m_isSecondAsk = false;
    bool m_hasAskedBeyond = false;
    int m_repeats = 0;
    QTimer m_patience;
};

#endif // FIRMWARERECEIVER_H
