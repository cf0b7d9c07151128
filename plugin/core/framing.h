#ifndef FRAMING_H
#define FRAMING_H

#include <QByteArray>

#include <cstring>

/// What the frame formats of all decoder boxes have in common. A format is described by a struct of constants:
///
///     struct RaiseFrame
///     {
///         static const char StartByte = 0x2E;
///         enum {
///             CommandAt = 1,      // index of the command byte
///             LengthAt = 2,       // index of the length byte
///             DataAt = 3,         // index of the first data byte
///             CountedFrom = 3,    // first byte that the length byte counts; it counts up to the checksum
///             SummedFrom = 1      // first byte that the checksum covers; it covers up to itself
///         };
///     };
///
/// The last byte of a package is the checksum. All functions are inline: the framer's hooks run per package.
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
    const uchar *byte = reinterpret_cast<const uchar *>(at);
    const uchar *const end = byte + count;
    unsigned int sum = 0;
    // Eight at a time, as many data bytes as most packages have: half of a plain loop's work is counting.
    for (; end - byte >= 8; byte += 8) {
        sum += byte[0] + byte[1] + byte[2] + byte[3] + byte[4] + byte[5] + byte[6] + byte[7];
    }
    for (; byte != end; ++byte) {
        sum += *byte;
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

/// Length of a package without data.
template <class Frame>
int overhead()
{
    return Frame::DataAt + 1;
}

/// Most data bytes that the length byte can tell.
template <class Frame>
int mostData()
{
    return 0xFF - (Frame::DataAt - Frame::CountedFrom);
}

/// Length of the whole package that starts at \a start, as its length byte says; that byte is there.
template <class Frame>
int packageSize(const QByteArray &buffer, int start)
{
    return quint8(buffer.at(start + Frame::LengthAt)) + Frame::CountedFrom + 1;
}

/// Whether the checksum of the \a size bytes from \a start to \a last is right; all of them are there.
template <class Frame>
bool isGood(const QByteArray &buffer, int start, int last, int size)
{
    return checkSum(buffer, start + Frame::SummedFrom, size - 1 - Frame::SummedFrom) ==
           quint8(buffer.at(last));
}

/// Number of data bytes that \a package claims, below 0 when its length byte is too small or missing.
template <class Frame>
int claimedData(const QByteArray &package)
{
    const int counted = package.size() > Frame::LengthAt ? quint8(package.at(Frame::LengthAt)) : 0;
    return counted - (Frame::DataAt - Frame::CountedFrom);
}

/// Package with \a length data bytes, 0 to mostData() (more are cut off); null \a data stands for zeros.
template <class Frame>
QByteArray makePackage(quint8 command, const unsigned char *data, int length)
{
    const int n = qBound(0, length, mostData<Frame>());
    QByteArray package(n + overhead<Frame>(), '\0');
    package[0] = Frame::StartByte;
    package[int(Frame::CommandAt)] = char(command);
    package[int(Frame::LengthAt)] = char(n + (Frame::DataAt - Frame::CountedFrom));
    if (data) {
        memcpy(package.data() + Frame::DataAt, data, size_t(n));
    }
    const int last = int(package.size()) - 1;
    package[last] = char(checkSum(package, Frame::SummedFrom, last - Frame::SummedFrom));
    return package;
}

} // namespace Framing

#endif // FRAMING_H
