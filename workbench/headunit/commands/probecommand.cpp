#include "probecommand.h"

#include "bitprobe.h"
#include "boxcatalog.h"
#include "command.h"
#include "commandline.h"
#include "decoderbox.h"
#include "headunitprogram.h"
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
    bool isAll = false;
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
        ->type_name("HEX");
    app->add_flag("--all", order->isAll,
                  "each package that the virtual box of the type sends, in place of one");
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

// What the box says at start, but for the package that is asked about: some decoders want to know their box.
QVector<QByteArray> greeting(const BoxSpeaker &speaker, int command)
{
    QVector<QByteArray> frames;
    for (int i = 0; i < speaker.reports().size(); ++i) {
        const BoxReport &report = speaker.reports().at(i);
        if (report.atStart && int(report.command) != command) {
            frames << speaker.format().frame(speaker.reportPackage(i));
        }
    }
    return frames;
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

// A package to probe, and what the box calls it.
struct Subject
{
    BoxPackage package;
    QString name;
};

// All that the box tells of its own accord, as it is for a car that stands, and one key of each kind.
QVector<Subject> subjects(const BoxSpeaker &speaker)
{
    QVector<Subject> result;
    for (int i = 0; i < speaker.reports().size(); ++i) {
        result << Subject{speaker.reportPackage(i), speaker.reports().at(i).meaning};
    }
    QList<quint8> commands;
    for (const BoxKey &key : speaker.keys()) {
        const QVector<BoxPackage> packages = key.source == BoxKey::Knob
                                                 ? QVector<BoxPackage>{speaker.knobPackage(key, 1)}
                                                 : speaker.keyPackages(key, BoxSpeaker::Pressed);
        if (!packages.isEmpty() && !commands.contains(packages.first().command)) {
            commands << packages.first().command;
            result << Subject{packages.first(), "keys"};
        }
    }
    return result;
}

int probe(const CommandLine &line, const Order &order, int type, const BoxSpeaker &speaker,
          const QVector<Subject> &all)
{
    char name[] = "headunit";
    char *arguments[] = {name, nullptr};
    int count = 1;
    QString error;
    OrbApplication application(count, arguments);
    ProbeUnit unit;
    const QString plugin =
        order.plugin.empty() ? HeadUnitProgram::ownPlugin() : QString::fromStdString(order.plugin);
    if (!unit.start(plugin, type, greeting(speaker, all.size() == 1 ? all.first().package.command : -1),
                    &error)) {
        return line.complain(error);
    }
    for (const Subject &subject : all) {
        BitProbe one(&unit, speaker.format(), subject.package);
        if (!subject.package.data.isEmpty() && one.run(order.byte, order.walksValues, &error) != BitProbe::Done) {
            return line.complain(error);
        }
        answer(one, order,
               QString("%1, package 0x%2%3: %4")
                   .arg(BoxCatalog::rows().at(type - 1).className)
                   .arg(subject.package.command, 2, 16, QLatin1Char('0'))
                   .arg(subject.name.isEmpty() ? QString() : ", " + subject.name,
                        QString::fromLatin1(subject.package.data.toHex(' '))));
    }
    std::fprintf(stderr,"trials %d\n", unit.trialCount());
    return Command::Fine;
}

// What is to be probed, or why nothing can be.
bool readSubjects(const Order &order, const BoxSpeaker &speaker, QVector<Subject> *all, QString *error)
{
    if (order.isAll) {
        *all = subjects(speaker);
        return true;
    }
    Subject subject;
    if (order.frame.empty()) {
        *error = "--frame or --all says what is to be probed";
    } else if (readPackage(order.frame, speaker.format(), &subject.package, error) &&
               order.byte >= subject.package.n()) {
        *error = QString("the package has %1 data bytes, there is no byte %2")
                     .arg(subject.package.n())
                     .arg(order.byte);
    }
    *all = {subject};
    return error->isEmpty();
}

} // namespace

int probeCommand(const QStringList &words)
{
    CommandLine line("probe",
                     "Which bit of a package does what: flips each and looks at what the plug-in calls.");
    Order order;
    int exitCode = 0;
    QString error;
    QVector<Subject> all;
    addOptions(&line.app, &order);
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    const int type = BoxCatalog::typeFromText(QString::fromStdString(order.type));
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    if (type == 0) {
        return line.complain(
            QString("there is no CAN-bus type '%1'").arg(QString::fromStdString(order.type)));
    }
    if (!box) {
        return line.complain(
            "the frame of this type is not known, so it decodes nothing that could be probed");
    }
    if (!readSubjects(order, *box->speaker(), &all, &error)) {
        return line.complain(error);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!VirtualClock::start(StartOfClock)) {
        return line.complain("the virtual clock does not reach the libraries of this program");
    }
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {}); // of hundreds of trials
    return probe(line, order, type, *box->speaker(), all);
}
