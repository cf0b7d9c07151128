#ifndef SLOWLINE_H
#define SLOWLINE_H

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QTimer>

/// One direction of a serial line: bytes that are put in come out at the line's speed, ten bits a byte, a few
/// milliseconds' worth at a time, as a serial chip hands them on.
class SlowLine : public QObject
{
    Q_OBJECT

public:
    explicit SlowLine(QObject *parent = nullptr);

    /// \a baud: bits a second; 0, as at first, for a line that takes no time.
    void setBaud(int baud);
    /// How long \a count bytes take, in ms, rounded up.
    int duration(int count) const;

    /// Sends \a bytes behind what is on its way, after \a pauseMs in which nothing is sent.
    void put(const QByteArray &bytes, int pauseMs = 0);
    /// Bytes on their way.
    int size() const { return m_size; }
    /// What is on its way is lost.
    void clear();
    /// The same, and gives it.
    QByteArray takeAll();

Q_SIGNALS:
    void arrived(const QByteArray &bytes);

private:
    struct Piece
    {
        QByteArray bytes;
        qint64 pause; // ns until its first byte begins
    };

    void work();
    void waitForMore();

    qint64 m_byteTime = 0; // ns
    QQueue<Piece> m_pieces;
    int m_size = 0;
    qint64 m_begin = 0; // when the first piece's pause or first byte began or will, ns of m_clock
    QElapsedTimer m_clock;
    QTimer m_timer;
};

#endif // SLOWLINE_H
