#ifndef RAISEWIRE_H
#define RAISEWIRE_H

#include <QByteArray>
#include <QByteArrayList>

/// The Raise boxes' line as seen from the box, written apart from the plug-in so that it can judge it.
namespace RaiseWire {

/// Whole package of "COMMAND DATA..." in hexadecimal: raiseFrame("20 01 01") is 2e 20 02 01 01 db.
QByteArray frame(const QByteArray &commandAndData);
QByteArray frame(quint8 command, const QByteArray &data);

/// What a unit sent, told apart: single acknowledgement bytes and packages (hexadecimal, without start byte,
/// length and checksum: "81 01"). Whatever is neither, and a package with a wrong checksum, is in `faults`.
struct Traffic
{
    int acknowledgements = 0;
    QByteArrayList packages;
    QByteArrayList faults;
};
Traffic parse(const QByteArray &sent);

} // namespace RaiseWire

#endif // RAISEWIRE_H
