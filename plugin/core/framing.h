#ifndef FRAMING_H
#define FRAMING_H

#include <QByteArray>

/// What the frame formats of all decoder boxes have in common.
namespace Framing {

/// Index of the next \a startByte in \a buffer at or after \a from, or -1.
int findStart(const QByteArray &buffer, int from, char startByte);

/// One's complement of the 8-bit sum of \a count bytes from \a start. 0xFF when the range is empty or leaves
/// the array.
quint8 checkSum(const QByteArray &bytes, int start, int count);

} // namespace Framing

#endif // FRAMING_H
