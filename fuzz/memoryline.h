#ifndef MEMORYLINE_H
#define MEMORYLINE_H

#include <QByteArray>

struct FrameFormat;

/// The far end of the serial line in memory: a program that links it has this behind QextSerialPort in place of a
/// terminal, with the manners of the real one (a polled port announces nothing, a hang-up is a bytesAvailable of -1 and
/// stays until the port is closed). One line per process.
struct MemoryLine
{
    enum Writing {
        Whole,  ///< all of a write is taken
        Short,  ///< at most room bytes of it
        Refused ///< it fails
    };

    QByteArray coming; ///< what the unit has not read yet
    bool isThere;      ///< whether the port can be opened
    bool hasHungUp;    ///< since it was opened
    bool readsNothing; ///< a read brings nothing of what is there
    Writing writing;   ///< what becomes of a write
    int room;          ///< see Short
    bool isTrusted;    ///< no write was anything but whole so far, so each is one package or one answer
    quint32 story;     ///< a sum over what the unit has written and done, in its order

    static MemoryLine &instance();

    /// A new line that is there and in order; packages of the unit look as \a format says, null where nobody knows.
    void reset(const FrameFormat *format);
    /// The unit writes: how many of the \a size bytes are taken, -1 for a failure. Ends the program when a write to
    /// a line that is in order is no package.
    qint64 take(const char *bytes, qint64 size);

    /// \a number becomes part of the story.
    void note(quint32 number) { story = story * 31 + number; }

private:
    const FrameFormat *m_format;
};

#endif // MEMORYLINE_H
