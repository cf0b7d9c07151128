#ifndef PORTLIST_H
#define PORTLIST_H

#include <QString>
#include <QVector>

/// One serial device of the machine.
struct SerialDevice
{
    QString path;         ///< "/dev/ttyUSB0"
    QString byId;         ///< "/dev/serial/by-id/usb-...": the same at each plugging-in; empty for none
    QString driver;       ///< of the kernel: "ftdi_sio"; empty when it is not told
    QString usbId;        ///< "0403:6001"; empty for what is no USB device
    QString manufacturer; ///< as the device calls itself; empty for none
    QString product;
    QString serialNumber;
    int latencyMs = -1; ///< how long the adapter holds bytes back, -1 when it has no such setting
};

/// The serial devices of the machine, as the kernel tells them.
namespace PortList {

/// Those that have hardware behind them, by name. \a root: the folder in which /sys and /dev lie.
QVector<SerialDevice> all(const QString &root = "/");

/// What is known about the device at \a path, which may be a link to it. A device that is not there, and a
/// pseudo-terminal, have nothing but their path.
SerialDevice find(const QString &path, const QString &root = "/");

/// The kernel's file with the adapter's latency_timer; there or not.
QString latencyFile(const SerialDevice &device, const QString &root = "/");

} // namespace PortList

#endif // PORTLIST_H
