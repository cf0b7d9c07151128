#include "checkcommand.h"

#include "boxcatalog.h"
#include "commandapplication.h"
#include "commandline.h"
#include "headunitprogram.h"
#include "portcheck.h"
#include "portlistener.h"
#include "typefit.h"

#include <QCoreApplication>
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

const int BaudRates[] = {38400, 19200, 115200};
const int SpeakingTime = 500; // ms in which a box may speak before it is greeted

// Opens the port at the rate at which the box is understood, or at the last.
CheckResult hear(PortListener *listener, const QString &port, int seconds, int *baud)
{
    QString error;
    for (const int rate : BaudRates) {
        *baud = rate;
        if (!listener->open(rate, &error) || !listener->listen(SpeakingTime, &error)) {
            return {"opens", CheckResult::Failure, error, "unplug the adapter and plug it in again"};
        }
        listener->greet();
        if (!listener->listen(seconds * 1000, &error)) {
            return {"opens", CheckResult::Failure, error, "unplug the adapter and plug it in again"};
        }
        if (listener->best().packageCount() > 0) {
            break;
        }
    }
    return {"opens", CheckResult::Ok, port + " opens", QString()};
}

CheckResult type(const PortListener &listener, const QString &plugin)
{
    QVector<TypeFit> fits;
    QString error;
    if (listener.best().packageCount() == 0) {
        return {"type", CheckResult::Failure, "no package says which type it is", QString()};
    }
    if (!TypeFits(plugin).find(listener.raise(), listener.xinHang(), &fits, &error)) {
        return {"type", CheckResult::Failure, error, QString()};
    }
    const TypeFit &best = fits.first();
    const QString name = QString("%1 %2").arg(best.type).arg(BoxCatalog::className(best.type));
    if (!TypeFits::isSure(fits)) {
        return {"type", CheckResult::Warning, "not sure, perhaps " + name,
                "use the car for a while with headunit record, and identify the log"};
    }
    return {"type", CheckResult::Ok, name, "headunit --can-bus-type " + QString::number(best.type)};
}

QVector<CheckResult> check(const QString &port, const QString &plugin, int seconds)
{
    const PortCheck line(port);
    QVector<CheckResult> results = {line.device(), line.permission(), line.holders()};
    PortListener listener(port);
    int baud = 0;
    bool mayOpen = true;
    for (const CheckResult &result : results) {
        mayOpen = mayOpen && result.status != CheckResult::Failure;
    }
    results << (mayOpen ? hear(&listener, port, seconds, &baud)
                        : CheckResult{"opens", CheckResult::Failure, "not tried", QString()});
    if (!mayOpen) {
        for (const char *what : {"bytes", "packages", "answers", "handshake", "version", "type"}) {
            results << CheckResult{what, CheckResult::Warning, "not looked at", QString()};
        }
        return results;
    }
    results << BoxCheck::bytes(listener) << BoxCheck::packages(listener, baud)
            << BoxCheck::acknowledgement(listener, line.latency()) << BoxCheck::handshake(listener)
            << BoxCheck::version(listener) << type(listener, plugin);
    return results;
}

void print(const QVector<CheckResult> &results, bool asJson)
{
    QJsonArray list;
    for (const CheckResult &result : results) {
        list << QJsonObject{{"check", result.what},
                            {"status", result.statusText()},
                            {"finding", result.finding},
                            {"advice", result.advice}};
        if (!asJson) {
            std::printf(
                "%-8s %-11s %s%s\n", qPrintable(result.statusText()), qPrintable(result.what),
                qPrintable(result.finding),
                result.advice.isEmpty() ? "" : qPrintable("\n" + QString(21, ' ') + "-> " + result.advice));
        }
    }
    if (asJson) {
        std::puts(QJsonDocument(list).toJson(QJsonDocument::Compact).constData());
    }
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
    return CommandLine::Fine;
}

int checkCommand(const QStringList &words)
{
    CommandLine line("check", "Looks at a serial line and the box behind it, and says what to do.");
    QString port;
    QString plugin;
    int seconds = 3;
    bool asJson = false;
    bool listsPorts = false;
    line.add("PORT", &port, "path of the serial device");
    line.add("--seconds", &seconds, "listens for as long at each baud rate").valueName("N").range(1, 3600);
    line.add("--plugin", &plugin, "the plug-in's shared library").valueName("PATH");
    line.addFlag("--json", &asJson, "answers in JSON");
    line.addFlag("--list-ports", &listsPorts, "lists the machine's serial devices");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    if (listsPorts) {
        return listPorts(asJson);
    }
    if (port.isEmpty()) {
        return line.refuse("PORT is missing");
    }
    const std::unique_ptr<QCoreApplication> application = CommandApplication::make();
    const QVector<CheckResult> results = check(port, HeadUnitProgram::pluginPath(plugin), seconds);
    print(results, asJson);
    for (const CheckResult &result : results) {
        if (result.status != CheckResult::Ok) {
            return CommandLine::FoundSomething;
        }
    }
    return CommandLine::Fine;
}
