#ifndef FRAMERECEIVER_H
#define FRAMERECEIVER_H

#include "lineframer.h"

#include <QObject>
#include <QTimer>

/// The box's ear: finds packages and acknowledgement bytes in what the unit sends.
///
/// A bad candidate costs its start byte only, so that a good package inside or behind it is found. One that
/// is not whole 100 ms after its first byte is given up.
class FrameReceiver : public QObject
{
    Q_OBJECT

public:
    explicit FrameReceiver(const FrameFormat &format, QObject *parent = nullptr);

    /// Takes what was read from the line.
    void feed(const QByteArray &bytes);
    /// Forgets what is not yet whole.
    void clear();

Q_SIGNALS:
    void packageReceived(const BoxPackage &package, const QByteArray &frame);
    /// Once per bad package, with the bytes that should have been one.
    void badChecksum(const QByteArray &frame);
    /// A byte 0xFF between two packages.
    void acknowledged();

private:
    void giveUpWaiting();
    void work();

    LineFramer m_framer;
    QTimer m_patience; // for the rest of the candidate at the front
};

#endif // FRAMERECEIVER_H
