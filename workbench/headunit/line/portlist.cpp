#include "portlist.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

const qint64 LongestAttribute = 4096; // bytes

QString attribute(const QDir &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.read(LongestAttribute)).trimmed() : QString();
}

// The USB device stands some floors above its interface, which stands above the port.
void readUsb(QDir folder, SerialDevice *device)
{
    while (!folder.exists("idVendor")) {
        if (!folder.cdUp() || folder.isRoot()) {
            return;
        }
    }
    device->usbId = attribute(folder, "idVendor") + ':' + attribute(folder, "idProduct");
    device->manufacturer = attribute(folder, "manufacturer");
    device->product = attribute(folder, "product");
    device->serialNumber = attribute(folder, "serial");
}

QString idLink(const QString &root, const QString &name)
{
    const QDir links(root + "/dev/serial/by-id");
    for (const QFileInfo &link : links.entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot)) {
        if (QFileInfo(link.symLinkTarget()).fileName() == name) {
            return "/dev/serial/by-id/" + link.fileName();
        }
    }
    return QString();
}

QDir sysFolder(const QString &root, const QString &name)
{
    return QDir(root + "/sys/class/tty/" + name);
}

SerialDevice read(const QString &root, const QString &name)
{
    SerialDevice device;
    device.path = "/dev/" + name;
    device.byId = idLink(root, name);
    const QDir folder = sysFolder(root, name);
    const QString latency = attribute(folder, "device/latency_timer");
    device.latencyMs = latency.isEmpty() ? -1 : latency.toInt();
    const QString hardware = QFileInfo(folder.filePath("device")).canonicalFilePath();
    if (!hardware.isEmpty()) {
        device.driver = QFileInfo(QFileInfo(hardware + "/driver").canonicalFilePath()).fileName();
        readUsb(QDir(hardware), &device);
    }
    return device;
}

// The kernel keeps names for ports that the machine could have: their type is 0.
bool isReal(const QDir &folder)
{
    return folder.exists("device") && attribute(folder, "type") != "0";
}

} // namespace

QVector<SerialDevice> PortList::all(const QString &root)
{
    QStringList names;
    for (const QString &name : QDir(root + "/sys/class/tty").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (isReal(sysFolder(root, name))) {
            names << name;
        }
    }
    QCollator order(QLocale::c());
    order.setNumericMode(true);
    std::sort(names.begin(), names.end(), order);
    QVector<SerialDevice> devices;
    for (const QString &name : names) {
        devices << read(root, name);
    }
    return devices;
}

SerialDevice PortList::find(const QString &path, const QString &root)
{
    const QFileInfo file(path);
    const QString target = file.canonicalFilePath();
    const QString name = QFileInfo(target.isEmpty() ? path : target).fileName();
    if (sysFolder(root, name).exists("device")) {
        return read(root, name);
    }
    SerialDevice device;
    device.path = path;
    return device;
}

QString PortList::latencyFile(const SerialDevice &device, const QString &root)
{
    return sysFolder(root, QFileInfo(device.path).fileName()).filePath("device/latency_timer");
}
