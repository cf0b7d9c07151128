#include "checkcommand.h"

#include "command.h"
#include "commandline.h"
#include "portlist.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

QJsonObject toJson(const SerialDevice &device)
{
    QJsonObject object{{"path", device.path},
                       {"by-id", device.byId},
                       {"driver", device.driver},
                       {"usb-id", device.usbId},
                       {"manufacturer", device.manufacturer},
                       {"product", device.product},
                       {"serial", device.serialNumber}};
    if (device.latencyMs >= 0) {
        object.insert("latency-ms", device.latencyMs);
    }
    return object;
}

QString toText(const SerialDevice &device)
{
    QStringList words = {device.path};
    for (const QString &word : {device.usbId, device.manufacturer, device.product, device.driver}) {
        if (!word.isEmpty()) {
            words << word;
        }
    }
    return words.join("  ") + (device.byId.isEmpty() ? QString() : "\n    " + device.byId);
}

} // namespace

int listPorts(bool asJson)
{
    const QVector<SerialDevice> devices = PortList::all();
    QJsonArray list;
    for (const SerialDevice &device : devices) {
        list << toJson(device);
        if (!asJson) {
            std::puts(qPrintable(toText(device)));
        }
    }
    if (asJson) {
        std::puts(QJsonDocument(list).toJson(QJsonDocument::Compact).constData());
    } else if (devices.isEmpty()) {
        std::puts("no serial device is there");
    }
    return Command::Fine;
}

int checkCommand(const QStringList &words)
{
    CommandLine line("check", "Looks at a serial line and the box behind it, and says what to do.");
    bool asJson = false;
    bool listsPorts = false;
    line.app.add_flag("--json", asJson, "answers in JSON");
    line.app.add_flag("--list-ports", listsPorts, "lists the machine's serial devices");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    return listPorts(asJson);
}
