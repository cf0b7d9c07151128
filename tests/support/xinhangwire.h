#ifndef XINHANGWIRE_H
#define XINHANGWIRE_H

#include <QByteArray>

/// The XinHang box's line, written apart from the plug-in and the virtual box so that it can judge both.
namespace XinHangWire {

/// Whole package of "COMMAND DATA..." in hexadecimal: frame("83 01") is f0 02 83 01 7b.
QByteArray frame(const QByteArray &commandAndData);

} // namespace XinHangWire

#endif // XINHANGWIRE_H
