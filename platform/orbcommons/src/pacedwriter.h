#ifndef PACEDWRITER_H
#define PACEDWRITER_H

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QTimer>

class QIODevice;

/// Writes packages to a device, one at a time with a pause between them, counted from when the last one left.
/// What the device does not take at once goes out before anything else, so packages never interleave.
class PacedWriter : public QObject
{
    Q_OBJECT

public:
    explicit PacedWriter(QObject *parent = nullptr);

    /// Pause in milliseconds; negative counts as 0.
    void setInterval(int milliseconds) { m_interval = qMax(0, milliseconds); }

    /// The open device to write to, or null while there is none: queued packages then wait. What a device
    /// before had begun to take is dropped, since it must not go out twice. Not owned.
    void setDevice(QIODevice *device);

    /// Queues one package; past 4096 waiting ones it is refused, with one log line.
    void enqueue(const QByteArray &package);

    /// Writes past the queue. Dropped without a device, and while 64 KiB wait here and in the device: a box
    /// that does not read wants no further acknowledgement.
    void writeNow(const QByteArray &bytes);

Q_SIGNALS:
    /// A queued package leaves now.
    void sent(const QByteArray &package);
    /// The device refused to take anything.
    void failed();

private Q_SLOTS:
    void onTimer();

private:
    void sendQueued();
    void write(const QByteArray &bytes);

    QIODevice *m_device;
    QTimer m_timer;
    QElapsedTimer m_sinceWrite;
    int m_interval;
    QQueue<QByteArray> m_queue;
    bool m_refusing;
    QByteArray m_unsent; // what the device did not take
};

#endif // PACEDWRITER_H
