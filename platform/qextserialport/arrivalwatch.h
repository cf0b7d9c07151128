#ifndef ARRIVALWATCH_H
#define ARRIVALWATCH_H

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <QVector>

/// When bytes arrive at a terminal that is read now and then only: the serial tap hears from it, in the order
/// in which things came. It reads nothing itself; it looks how much is there, every millisecond from the
/// first byte until somebody reads.
class ArrivalWatch : public QObject
{
    Q_OBJECT

public:
    /// \a descriptor stays the caller's and must outlive the watch.
    explicit ArrivalWatch(int descriptor, QObject *parent = nullptr);
    /// Tells what it still holds.
    ~ArrivalWatch() override;

    /// Looks how much is there; to be called right before a read.
    void look();
    /// \a bytes, the oldest that were there, have been read.
    void received(const QByteArray &bytes);
    /// \a bytes have left; told after what came before them and is not read yet.
    void sent(const QByteArray &bytes);

private:
    struct Chunk
    {
        qint64 at; // of its first byte
        int size;  // bytes that nobody has read yet
    };
    struct Sent
    {
        qint64 at;
        QByteArray bytes;
    };

    void tellSent(qint64 until);

    int m_descriptor;
    QSocketNotifier m_notifier;
    QTimer m_timer;
    QVector<Chunk> m_chunks; // oldest first
    int m_waiting = 0;       // bytes in all chunks
    qint64 m_lastGrowth = 0; // when a look last found more than the one before
    QVector<Sent> m_sent;    // oldest first
};

#endif // ARRIVALWATCH_H
