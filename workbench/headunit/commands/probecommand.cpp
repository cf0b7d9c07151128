#include "probecommand.h"

#include "bitprobe.h"
#include "boxcatalog.h"
#include "commandapplication.h"
#include "commandline.h"
#include "decoderbox.h"
#include "headunitprogram.h"
#include "probesheets.h"
#include "probestart.h"
#include "probetext.h"

#include "orbapplication.h"

#include <cstdio>
#include <memory>

namespace {

struct Order
{
    QString type;
    QString frame;
    QString folder;
    QString drives = "scenarios";
    QString plugin;
    int byte = -1;
    bool walksValues = false;
    bool asMarkdown = false;
    bool asJson = false;
};

void addOptions(CommandLine *line, Order *order)
{
    line->add("--can-bus-type", &order->type, "the decoder: number, class or short name")
        .valueName("N|CLASS");
    const CommandLine::Option frame =
        line->add("--frame", &order->frame, "the package: a whole frame, or its command and data")
            .valueName("HEX");
    const CommandLine::Option all =
        line->add("--all", &order->folder,
                  "writes the sheet of each type (or of the one) to DIR, with each package both ways, and "
                  "the matrix of what the cars can do")
            .valueName("DIR")
            .excludes(frame);
    line->add("--drives", &order->drives, "where the golden drives lie that prove something")
        .valueName("DIR")
        .needs(all);
    line->add("--byte", &order->byte, "this data byte only, counted from 0")
        .valueName("N")
        .range(0, 254)
        .needs(frame);
    line->addFlag("--values", &order->walksValues, "walks all values of each byte").needs(frame);
    line->add("--plugin", &order->plugin, "another build of the plug-in").valueName("PATH");
    const CommandLine::Option markdown =
        line->addFlag("--markdown", &order->asMarkdown, "answers as a table").needs(frame);
    line->addFlag("--json", &order->asJson, "answers in JSON").excludes(markdown).needs(frame);
}

bool isForeign(const QByteArray &bytes, const FrameFormat &format)
{
    const FrameFormat &other =
        &format == &FrameFormat::raise() ? FrameFormat::xinHang() : FrameFormat::raise();
    return other.isFrame(bytes);
}

// A whole frame, or what would stand in one.
bool readPackage(const Order &order, const FrameFormat &format, BoxPackage *package, QString *error)
{
    const QByteArray digits = order.frame.toLatin1().replace(' ', "").toLower();
    const QByteArray bytes = QByteArray::fromHex(digits);
    if (bytes.isEmpty() || bytes.toHex() != digits) {
        *error = "--frame takes two hexadecimal digits for each byte";
    } else if (format.isFrame(bytes)) {
        *package = format.package(bytes);
    } else if (quint8(bytes.at(0)) == format.start &&
               format.frameSize(bytes.constData(), int(bytes.size())) == bytes.size()) {
        *error = QString("the checksum of %1 is wrong").arg(QString::fromLatin1(bytes.toHex()));
    } else if (isForeign(bytes, format)) {
        *error = QString("%1 is a frame of another box; those of this type begin with %2")
                     .arg(QString::fromLatin1(bytes.toHex()))
                     .arg(format.start, 2, 16, QLatin1Char('0'));
    } else {
        *package = {quint8(bytes.at(0)), bytes.mid(1)};
    }
    if (error->isEmpty() && package->data.isEmpty()) {
        *error = "the package has no data, so there is no bit to flip";
    } else if (error->isEmpty() && format.package(format.frame(*package)).data != package->data) {
        *error = QString("%1 data bytes are more than a frame holds").arg(package->n());
    } else if (error->isEmpty() && order.byte >= package->n()) {
        *error =
            QString("the package has %1 data bytes, there is no byte %2").arg(package->n()).arg(order.byte);
    }
    return error->isEmpty();
}

void answer(const BitProbe &probe, const Order &order, const QString &title)
{
    if (order.asJson) {
        std::fputs(ProbeText::json(probe).constData(), stdout);
    } else if (order.asMarkdown) {
        std::fputs(qPrintable("## " + title + "\n\n" + ProbeText::markdown(probe)), stdout);
    } else {
        std::fputs(qPrintable(title + '\n' + ProbeText::plain(probe)), stdout);
    }
}

int probe(const CommandLine &line, const Order &order, int type, const BoxSpeaker &speaker)
{
    QString error;
    BoxPackage package;
    if (!readPackage(order, speaker.format(), &package, &error)) {
        return line.refuse(error);
    }
    const std::unique_ptr<OrbApplication> application = CommandApplication::makeUnit(&error);
    if (!application) {
        return line.complain(error);
    }
    ProbeUnit unit;
    const QString plugin = HeadUnitProgram::pluginPath(order.plugin);
    if (!unit.start(plugin, type, ProbeStart::greeting(speaker, package.command), &error)) {
        return line.complain(error);
    }
    BitProbe one(&unit, speaker, package);
    switch (one.run(order.byte, order.walksValues, &error)) {
    case BitProbe::NotFramed:
        return line.refuse(error);
    case BitProbe::Killed:
        return line.complain(error);
    case BitProbe::Done:
        break;
    }
    answer(one, order,
           QString("%1, package 0x%2: %3")
               .arg(BoxCatalog::className(type))
               .arg(package.command, 2, 16, QLatin1Char('0'))
               .arg(QString::fromLatin1(package.data.toHex(' '))));
    return CommandLine::Fine;
}

int writeSheets(const CommandLine &line, const Order &order, int type)
{
    QString error;
    const ProbeSheets::Order sheets = {order.plugin, order.folder, order.drives, type};
    return ProbeSheets::write(sheets, &error) ? int(CommandLine::Fine) : line.complain(error);
}

} // namespace

int probeCommand(const QStringList &words)
{
    CommandLine line("probe",
                     "Which bit of a package does what: flips each and looks at what the plug-in calls.");
    Order order;
    int exitCode = 0;
    QString error;
    addOptions(&line, &order);
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    const int type = BoxCatalog::typeFromText(order.type);
    if (type == 0 && !order.type.isEmpty()) {
        return line.refuse(QString("there is no CAN-bus type '%1'").arg(order.type));
    }
    if (!order.folder.isEmpty()) {
        return writeSheets(line, order, type);
    }
    if (order.frame.isEmpty() || type == 0) {
        return line.refuse("--can-bus-type and --frame say what is to be probed, or --all for everything");
    }
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    if (!box) {
        return line.complain(
            "the frame of this type is not known, so it decodes nothing that could be probed");
    }
    return probe(line, order, type, *box->speaker());
}
