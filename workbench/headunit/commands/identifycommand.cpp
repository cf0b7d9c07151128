#include "identifycommand.h"

#include "boxcatalog.h"
#include "commandapplication.h"
#include "commandline.h"
#include "headunitprogram.h"
#include "linelogformats.h"
#include "packageprobe.h"
#include "portlistener.h"
#include "typefit.h"

#include "orbapplication.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <iostream>

namespace {

const int BaudRates[] = {19200, 38400, 115200};

struct Options
{
    QString source;
    QString plugin;
    QString pattern;
    int probedType = 0;
    int seconds = 5;
    bool greets = false;
    bool asJson = false;
};

// What the box has said, in both frames.
struct Heard
{
    PackageCensus raise{FrameFormat::raise()};
    PackageCensus xinHang{FrameFormat::xinHang()};
    int baud = 0; // 0 for a log

    double framed() const { return qMax(raise.framed(), xinHang.framed()); }
};

QString hexCommands(const QVector<quint8> &commands)
{
    QStringList words;
    for (const quint8 command : commands) {
        words << "0x" + QString("%1").arg(command, 2, 16, QChar('0')).toUpper();
    }
    return words.join(' ');
}

int percent(double part)
{
    return int(part * 100); // 89.9 is not 90
}

// ------------------------------------------------------------------------------- one type, in its own process

int probe(const Options &options)
{
    const FrameFormat *format = BoxCatalog::frameOf(options.probedType);
    QString error;
    const std::unique_ptr<OrbApplication> application = CommandApplication::makeUnit(&error);
    if (!format || !application) {
        return CommandLine::FoundSomething;
    }
    QVector<QByteArray> packages;
    for (std::string line; packages.size() < PackageCensus::MostPackages && std::getline(std::cin, line);) {
        const QByteArray package = QByteArray::fromHex(QByteArray::fromStdString(line));
        if (!format->isFrame(package)) {
            return CommandLine::WrongUsage;
        }
        packages << package;
    }
    PackageProbe prober(options.probedType, *format);
    if (!prober.start(options.plugin, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return CommandLine::FoundSomething;
    }
    for (const bool isExplained : prober.explained(packages)) {
        std::puts(isExplained ? "1" : "0");
    }
    return CommandLine::Fine;
}

// ------------------------------------------------------------------------------------------- the source

bool readLog(const Options &options, Heard *heard, QString *error)
{
    LineLogFormats::ReadOptions readOptions;
    readOptions.pattern = options.pattern;
    const std::unique_ptr<LineLogReader> reader = LineLogFormats::reader(options.source, readOptions, error);
    if (!reader) {
        return false;
    }
    for (LineRecord record; reader->next(&record);) {
        if (record.isTowardsUnit()) {
            heard->raise.add(record.bytes, record.microseconds);
            heard->xinHang.add(record.bytes, record.microseconds);
        }
    }
    *error = reader->error();
    return error->isEmpty();
}

// The rate at which most of what was heard is packages.
bool listen(const Options &options, Heard *heard, QString *error)
{
    PortListener listener(options.source);
    for (const bool greets : {false, true}) {
        for (const int baud : BaudRates) {
            if ((greets && !options.greets) || heard->framed() > 0) {
                continue;
            }
            std::fprintf(stderr, "%s at %d for %d s\n", greets ? "Greeting the box" : "Listening", baud,
                         options.seconds);
            if (!listener.open(baud, error)) {
                return false;
            }
            if (greets) {
                listener.greet();
            }
            if (!listener.listen(options.seconds * 1000, error)) {
                return false;
            }
            if (listener.best().framed() > heard->framed()) {
                heard->raise = listener.raise();
                heard->xinHang = listener.xinHang();
                heard->baud = baud;
            }
        }
    }
    return true;
}

// ------------------------------------------------------------------------------------------- the answer

QByteArray toJson(const QVector<TypeFit> &fits, const Heard &heard)
{
    QJsonArray rows;
    for (const TypeFit &fit : fits) {
        QJsonArray unknown;
        for (const quint8 command : fit.unknown) {
            unknown << hexCommands({command});
        }
        rows << QJsonObject{{"type", fit.type},
                            {"class", BoxCatalog::className(fit.type)},
                            {"framed", fit.framed},
                            {"packages", fit.packages},
                            {"evidence", fit.evidence},
                            {"known", fit.known},
                            {"explained", fit.packages == 0 ? 0 : double(fit.explainedCount) / fit.packages},
                            {"explained-packages", fit.explainedCount},
                            {"unknown-commands", unknown}};
    }
    QJsonObject answer{{"sure", TypeFits::isSure(fits)}, {"types", rows}};
    if (TypeFits::isSure(fits)) {
        answer.insert("type", fits.first().type);
    }
    if (heard.baud != 0) {
        answer.insert("baud", heard.baud);
    }
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

void printRows(const QVector<TypeFit> &fits)
{
    std::puts("evidence  framed  known  explained  type  class");
    for (const TypeFit &fit : fits) {
        std::printf("%7d%%  %5d%%  %4d%%  %9s  %4d  %s%s\n", percent(fit.evidence), percent(fit.framed),
                    percent(fit.known),
                    qPrintable(QString("%1 of %2").arg(fit.explainedCount).arg(fit.packages)), fit.type,
                    qPrintable(BoxCatalog::className(fit.type)),
                    fit.unknown.isEmpty() ? "" : qPrintable("  unknown: " + hexCommands(fit.unknown)));
    }
}

int identify(const Options &options, const CommandLine &line)
{
    const std::unique_ptr<QCoreApplication> application = CommandApplication::make();
    const bool isPort = !QFileInfo(options.source).isFile();
    Heard heard;
    QString error;
    if (!(isPort ? listen(options, &heard, &error) : readLog(options, &heard, &error))) {
        return line.complain(error);
    }
    heard.raise.finish();
    heard.xinHang.finish();
    QVector<TypeFit> fits;
    const QString plugin = HeadUnitProgram::pluginPath(options.plugin);
    if (!TypeFits(plugin).find(heard.raise, heard.xinHang, &fits, &error)) {
        return line.complain(error);
    }
    const bool isSure = TypeFits::isSure(fits);
    if (options.asJson) {
        std::puts(toJson(fits, heard).constData());
        return isSure ? CommandLine::Fine : CommandLine::FoundSomething;
    }
    printRows(fits);
    if (heard.baud != 0) {
        std::printf("The line speaks at %d baud.\n", heard.baud);
    }
    if (isSure) {
        std::printf("It is type %d, %s.\n", fits.first().type,
                    qPrintable(BoxCatalog::className(fits.first().type)));
    } else if (heard.framed() > 0) {
        std::puts(
            "Not sure: 90% at least of the evidence should speak for the first, which should know 75% of "
            "what was said, in 3 commands at least, one of them its own, and explain 8 packages; and 60% at "
            "most for the second.");
    } else {
        std::puts(isPort && !options.greets ? "No package was heard; --hello greets the box."
                                            : "No package was heard.");
    }
    return isSure ? CommandLine::Fine : CommandLine::FoundSomething;
}

} // namespace

int identifyCommand(const QStringList &words)
{
    CommandLine line("identify",
                     "Says which CAN-bus type fits what a box has said. A port is listened to at 19200, "
                     "38400 and 115200 baud, without a word.");
    Options options;
    line.add("SOURCE", &options.source, "a log, or the path of a serial port").valueName("LOG|PORT");
    line.addFlag("--hello", &options.greets, "a box that says nothing is greeted as a unit does");
    line.add("--seconds", &options.seconds, "listens for as long at each rate").valueName("N").range(1, 3600);
    line.add("--pattern", &options.pattern, "how to read a line of the log, as for replay")
        .valueName("REGEX");
    line.add("--plugin", &options.plugin, "the plug-in's shared library").valueName("PATH");
    line.addFlag("--json", &options.asJson, "answers in JSON");
    // For this command's own child processes.
    line.add("--probe", &options.probedType, "").hidden();
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    if (line.isGiven("--probe")) {
        return probe(options);
    }
    if (!line.isGiven("SOURCE")) {
        return line.refuse("LOG or PORT is missing");
    }
    return identify(options, line);
}
