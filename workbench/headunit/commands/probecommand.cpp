#include "probecommand.h"

#include "boxcatalog.h"
#include "command.h"
#include "commandline.h"
#include "decoderbox.h"
#include "headunitprogram.h"
#include "packageprobe.h"
#include "probetext.h"
#include "virtualclock.h"

#include "orbapplication.h"

#include <cstdio>
#include <memory>

namespace {

const std::time_t StartOfClock = 1767268800; // 2026-01-01 12:00, as drives start

struct Order
{
    std::string type;
    std::string frame;
    std::string plugin;
    int byte = -1;
    bool walksValues = false;
    bool asMarkdown = false;
    bool asJson = false;
};

void addOptions(CLI::App *app, Order *order)
{
    app->add_option("--can-bus-type", order->type, "the decoder: number or class name")
        ->required()
        ->type_name("N|CLASS");
    app->add_option("--frame", order->frame, "the package: a whole frame, or its command and data")
        ->required()
        ->type_name("HEX");
    app->add_option("--byte", order->byte, "this data byte only, counted from 0")
        ->type_name("N")
        ->check(CLI::NonNegativeNumber);
    app->add_flag("--values", order->walksValues, "walks all values of each byte");
    app->add_option("--plugin", order->plugin, "another build of the plug-in")->type_name("PATH");
    CLI::Option *const markdown = app->add_flag("--markdown", order->asMarkdown, "answers as a table");
    app->add_flag("--json", order->asJson, "answers in JSON")->excludes(markdown);
}

// A whole frame, or what would stand in one.
bool readPackage(const std::string &text, const FrameFormat &format, BoxPackage *package, QString *error)
{
    const QByteArray digits = QByteArray::fromStdString(text).replace(' ', "").toLower();
    const QByteArray bytes = QByteArray::fromHex(digits);
    if (bytes.isEmpty() || bytes.toHex() != digits) {
        *error = "--frame takes two hexadecimal digits for each byte";
    } else if (format.isFrame(bytes)) {
        *package = format.package(bytes);
    } else if (quint8(bytes.at(0)) == format.start &&
               format.frameSize(bytes.constData(), int(bytes.size())) == bytes.size()) {
        *error = QString("the checksum of %1 is wrong").arg(QString::fromLatin1(bytes.toHex()));
    } else {
        *package = {quint8(bytes.at(0)), bytes.mid(1)};
    }
    if (error->isEmpty() && package->data.isEmpty()) {
        *error = "the package has no data, so there is no bit to flip";
    } else if (error->isEmpty() && format.package(format.frame(*package)).data != package->data) {
        *error = QString("%1 data bytes are more than a frame holds").arg(package->n());
    }
    return error->isEmpty();
}

void answer(const PackageProbe &probe, const Order &order, const QString &title)
{
    if (order.asJson) {
        std::fputs(ProbeText::json(probe).constData(), stdout);
    } else if (order.asMarkdown) {
        std::fputs(qPrintable("## " + title + "\n\n" + ProbeText::markdown(probe)), stdout);
    } else {
        std::fputs(qPrintable(title + '\n' + ProbeText::plain(probe)), stdout);
    }
}

} // namespace

int probeCommand(const QStringList &words)
{
    CommandLine line("probe",
                     "Which bit of a package does what: flips each and looks at what the plug-in calls.");
    Order order;
    int exitCode = 0;
    QString error;
    addOptions(&line.app, &order);
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    const int type = BoxCatalog::typeFromText(QString::fromStdString(order.type));
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    BoxPackage package;
    if (!box) {
        return line.complain(
            type == 0 ? QString("there is no CAN-bus type '%1'").arg(QString::fromStdString(order.type))
                      : "the frame of this type is not known, so it decodes nothing that could be probed");
    }
    const FrameFormat &format = box->speaker()->format();
    if (!readPackage(order.frame, format, &package, &error)) {
        return line.complain(error);
    }
    if (order.byte >= package.n()) {
        return line.complain(
            QString("the package has %1 data bytes, there is no byte %2").arg(package.n()).arg(order.byte));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!VirtualClock::start(StartOfClock)) {
        return line.complain("the virtual clock does not reach the libraries of this program");
    }
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {}); // of hundreds of trials
    char name[] = "headunit";
    char *arguments[] = {name, nullptr};
    int count = 1;
    OrbApplication application(count, arguments);
    ProbeUnit unit;
    const QString plugin =
        order.plugin.empty() ? HeadUnitProgram::ownPlugin() : QString::fromStdString(order.plugin);
    if (!unit.start(plugin, type, &error)) {
        return line.complain(error);
    }
    PackageProbe probe(&unit, format, package);
    if (!probe.run(order.byte, order.walksValues, &error)) {
        return line.complain(error);
    }
    answer(probe, order,
           QString("%1, package 0x%2: %3")
               .arg(BoxCatalog::rows().at(type - 1).className)
               .arg(package.command, 2, 16, QLatin1Char('0'))
               .arg(QString::fromLatin1(package.data.toHex(' '))));
    return Command::Fine;
}
