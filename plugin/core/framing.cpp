#include "framing.h"

#include <cstring>

int Framing::findStart(const QByteArray &buffer, int from, char startByte)
{
    const int size = buffer.size();
    if (from < 0 || from >= size)
        return -1;
    const char *const bytes = buffer.constData();
    // Between good packages the start byte is the byte at hand.
    if (bytes[from] == startByte)
        return from;
    const void *const found = memchr(bytes + from, startByte, static_cast<size_t>(size - from));
    return found ? static_cast<int>(static_cast<const char *>(found) - bytes) : -1;
}

quint8 Framing::checkSum(const QByteArray &bytes, int start, int count)
{
    if (start < 0 || count <= 0 || count > bytes.size() - start)
        return 0xFF;
    const char *at = bytes.constData() + start;
    // Eight bytes at a time, added up in four 16-bit lanes of which only the low halves matter.
    const quint64 laneMask = Q_UINT64_C(0x00FF00FF00FF00FF);
    quint64 lanes = 0;
    for (; count >= 8; count -= 8, at += 8) {
        quint64 word;
        memcpy(&word, at, sizeof word);
        lanes += (word & laneMask) + ((word >> 8) & laneMask);
        lanes &= laneMask;
    }
    unsigned int sum = static_cast<unsigned int>((lanes * Q_UINT64_C(0x0001000100010001)) >> 48);
    for (; count > 0; --count, ++at)
        sum += static_cast<uchar>(*at);
    return static_cast<quint8>(~sum);
}
