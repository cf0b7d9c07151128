#ifndef FRAMING_H
#define FRAMING_H

#include <QByteArray>

#include <cstring>

/// What the frame formats of all decoder boxes have in common. Inline: the framer's hooks run per package.
namespace Framing {

/// Index of the next \a startByte in \a buffer at or after \a from, or -1.
inline int findStart(const QByteArray &buffer, int from, char startByte)
{
    const int size = int(buffer.size());
    if (from < 0 || from >= size) {
        return -1;
    }
    const char *const bytes = buffer.constData();
    // Between good packages the start byte is the byte at hand.
    if (bytes[from] == startByte) {
        return from;
    }
    const void *const found = memchr(bytes + from, startByte, size_t(size - from));
    return found ? int(static_cast<const char *>(found) - bytes) : -1;
}

/// Sum of \a count bytes from \a at; only its low eight bits mean something.
inline unsigned int byteSum(const char *at, int count)
{
    const char *const end = at + count;
    unsigned int sum = 0;
    if (count >= 8) {
        // Eight bytes at a time, added up in four 16-bit lanes of which only the low halves matter.
        const quint64 laneMask = Q_UINT64_C(0x00FF00FF00FF00FF);
        quint64 lanes = 0;
        do {
            quint64 word;
            memcpy(&word, at, sizeof word);
            lanes = (lanes + (word & laneMask) + ((word >> 8) & laneMask)) & laneMask;
            at += 8;
        } while (end - at >= 8);
        sum = static_cast<unsigned int>((lanes * Q_UINT64_C(0x0001000100010001)) >> 48);
    }
    for (; at != end; ++at) {
        sum += uchar(*at);
    }
    return sum;
}

/// One's complement of the 8-bit sum of \a count bytes from \a start. 0xFF when the range is empty or leaves
/// the array.
inline quint8 checkSum(const QByteArray &bytes, int start, int count)
{
    if (start < 0 || count <= 0 || count > bytes.size() - start) {
        return 0xFF;
    }
    return quint8(~byteSum(bytes.constData() + start, count));
}

} // namespace Framing

#endif // FRAMING_H
