#ifndef FRAMEFORMAT_H
#define FRAMEFORMAT_H

#include <QByteArray>
#include <QString>

/// One package as a box or the unit means it: a command and its data.
struct BoxPackage
{
    quint8 command = 0;
    QByteArray data; ///< at most 255 bytes, 254 in the XinHang frame

    /// Data byte \a i; 0 past the end.
    quint8 d(int i) const { return i >= 0 && i < data.size() ? quint8(data.at(i)) : quint8(0); }
    int n() const { return int(data.size()); }
};

/// How packages look on the wire: a start byte, a length byte, a command, data and a checksum, which is the
/// one's complement of an 8-bit sum.
struct FrameFormat
{
    quint8 start;
    int lengthAt;     ///< offset of the length byte; the command stands at the other of offsets 1 and 2, data
                      ///< from 3
    int overhead;     ///< length of a whole frame less its length byte
    int sumFrom;      ///< offset of the first byte that the checksum covers
    int shortest;     ///< length in bytes of a frame without data
    const char *name; ///< "raise", as options and line logs write it
    const char *answers; ///< the single bytes with which both sides answer a package; empty for none

    /// 0x2E, command, N, N data bytes, checksum over all but the start byte.
    static const FrameFormat &raise();
    /// 0xF0, N + 1, command, N data bytes, checksum over command and data.
    static const FrameFormat &xinHang();

    /// The format with that name, in any case; null for none.
    static const FrameFormat *find(const QString &name);

    /// The frame of \a package; data past what the length byte can say is cut off.
    QByteArray frame(const BoxPackage &package) const;
    /// Length in bytes of the frame that the \a available bytes at \a bytes begin with, 0 while the length
    /// byte is missing, -1 for a length that no frame has.
    int frameSize(const char *bytes, int available) const;
    /// Whether the checksum of the frame of \a size bytes at \a frame fits.
    bool isGood(const char *frame, int size) const;
    /// Whether \a byte, alone between two packages, is an answer.
    bool isAnswer(char byte) const;
    /// Whether \a bytes are one frame with a good checksum, no more and no less.
    bool isFrame(const QByteArray &bytes) const;
    /// The package inside \a frame, which is whole.
    BoxPackage package(const QByteArray &frame) const;

private:
    quint8 checksum(const char *frame, int size) const;
};

#endif // FRAMEFORMAT_H
