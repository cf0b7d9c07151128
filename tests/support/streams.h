#ifndef STREAMS_H
#define STREAMS_H

#include <QByteArray>
#include <QList>

/// Byte streams to frame, the same in every run.
namespace Streams {

/// The good packages of clean(), one by one. As in a car's packages, about half of the data bytes are 0.
QList<QByteArray> packages(int count, int dataBytes = 8);

/// \a count good packages with \a dataBytes data bytes each and changing contents.
QByteArray clean(int count, int dataBytes = 8);

/// clean() with one byte changed in every \a distance-th package.
QByteArray corrupted(int count, int distance);

/// Good packages with single answer bytes and line noise between them.
QByteArray noisy(int count);

/// Packages of real boxes, short and long, many with zeros, as they come from the box.
QList<QByteArray> boxPackages();

/// What befalls one byte of a line.
enum Fault { Changed, Missing, Inserted };

/// \a package after \a fault at byte \a at; \a byte replaces or joins it.
QByteArray harmed(QByteArray package, Fault fault, int at, char byte);

/// \a bytes start bytes and nothing else.
QByteArray startBytes(int bytes);

/// Start bytes that announce the longest package, over and over.
QByteArray longLengths(int bytes);

} // namespace Streams

#endif // STREAMS_H
