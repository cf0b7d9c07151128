#ifndef PROTOCOLUTILS_P_H
#define PROTOCOLUTILS_P_H

#include "pacedwriter.h"
#include "packagechain.h"
#include "protocolutils.h"
#include "streamage.h"

#include <QBasicTimer>
#include <QDebug>
#include <QElapsedTimer>
#include <QIODevice>
#include <QTimer>

/// A framer's device, and what it holds of the stream.
class ProtocolUtils::Private
{
public:
    enum {
        // One read takes at most this much, so recvBuffer never holds more than it and one unfinished package.
        ReadSize = 4096,
        LongestPackage = PackageChain::LongestCandidate,
        BufferSize = LongestPackage + 1 + ReadSize,

        Emitting = 1, // a slot further up still reads emission
        Logging = 2   // the traffic log is on
    };

    // Asks the line, over and over. The signal of a timer object would cost as much again as the question.
    class PollTimer : public QObject
    {
    public:
        explicit PollTimer(ProtocolUtils *utils) : QObject(utils), m_utils(utils) {}

        void start(int ms) { m_timer.start(ms, this); }
        void stop() { m_timer.stop(); }
        bool isActive() const { return m_timer.isActive(); }

    protected:
        void timerEvent(QTimerEvent *) override { m_utils->onPollTimer(); }

    private:
        ProtocolUtils *const m_utils;
        QBasicTimer m_timer;
    };

    explicit Private(ProtocolUtils *utils);

    void tryAgainLater();
    qint64 streamEnd() const { return streamBase + parent->recvBuffer.size(); }
    bool isWaiting() const { return parent->recvBuffer.size() > cursor; }

    // Nothing has come since the last poll, and nothing is unfinished.
    void rest();

    bool isShortCandidate(int start) const;
    int lookInto(int start, int size);

    void log(const char *direction, const QByteArray &package) const
    {
        qDebug("%s %s %lld %s", qPrintable(tag), direction, static_cast<long long>(clock.elapsed()),
               package.toHex().constData());
    }

    // Makes room for \a wanted bytes behind what \a buffer holds, and returns how much that is. What is framed stays
    // in front of the cursor until then: reads of a serial line bring a few bytes, and to move the rest to the front
    // costs as much as framing half a package. Nobody else holds the buffer from then on: an array that is parted from
    // another's copy has room for its own bytes only.
    int makeRoom(QByteArray *buffer, int wanted)
    {
        const int held = int(buffer->size());
        const bool hasRoom = buffer->isDetached() && buffer->capacity() - held >= wanted;
        return hasRoom ? held : compact(buffer);
    }
    // Moves what is not framed yet, and the byte before it, to the front of \a buffer, and returns its size.
    int compact(QByteArray *buffer);

    ProtocolUtils *const parent;
    PollTimer *const poll;
    QTimer *const reopen;
    PacedWriter *const writer;

    QIODevice *device;
    bool isOpen; // as far as the framer knows; a read from a closed device says otherwise
    QIODevice::OpenMode openMode;
    int tries;       // to open the device again
    bool announces;  // the device has announced data, and does so whenever there is some
    int answered;    // announcements whose data is being read: until then there need be no further one
    qint64 openedAt; // streamEnd() when it was opened
    qint64 polledAt; // streamEnd() at the last poll
    int idlePolls;   // in a row
    QElapsedTimer sinceOpened;

    int minimum;        // bytes from which the size of a package can be read
    int cursor;         // index in recvBuffer of the first byte that is not framed yet
    int candidateSize;  // length of the unfinished package at the cursor, 0 while it is not known
    int needed;         // bytes from the cursor on without which there is nothing to frame
    bool behindPackage; // the byte before the cursor ends a package that was delivered
    qint64 lookedInto;  // place in all that was read, up to where a candidate that lied reached
    qint64 streamBase;  // place of recvBuffer[0] in all that was ever read
    int quietTime;      // ms without data, as long as something is unfinished
    QElapsedTimer sincePoll;
    StreamAge age;

    QByteArray emission; // carries each package to the slots, and is used again while nobody keeps it
    int special;         // why a package is not emitted the plain way: Emitting, Logging

    QString tag;
    QElapsedTimer clock;
};

#endif // PROTOCOLUTILS_P_H
