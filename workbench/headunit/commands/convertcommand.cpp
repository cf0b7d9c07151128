#include "convertcommand.h"

#include "boxcatalog.h"
#include "command.h"
#include "commandline.h"
#include "logconversion.h"

#include <QJsonDocument>

#include <cstdio>

namespace {

const char Description[] = "Turns one log of a serial line into another. What IN is, its content tells: the "
                           "bench's own log, what decoderbox "
                           "--log, candump and Wireshark (pcapng) write, or lines of hexadecimal bytes with "
                           "times, directions and comments in "
                           "any common form. What OUT becomes, its ending tells: .orblog, .candump (or .can, "
                           ".log), .pcapng, .hex (or .txt), "
                           ".csv for a table of named values. Losses are counted and named; the program ends "
                           "with 1 when there are any.";

// As text, as the library reads them.
struct Texts
{
    std::string in;
    std::string out;
    std::string pattern;
    std::string type;
    std::string frame;
    bool asJson = false;
};

void addOptions(CLI::App *app, Texts *texts)
{
    app->add_option("IN", texts->in, "the log")->required();
    app->add_option("OUT", texts->out, "what it becomes")->required();
    app->add_option(
           "--pattern", texts->pattern,
           "regular expression of a line of IN, with the named groups hex, and if it has them time and dir: "
           "'(?<time>\\S+) (?<dir>RX|TX) (?<hex>.*)'")
        ->type_name("REGEXP");
    app->add_option("--can-bus-type", texts->type,
                    "the decoder box, when IN does not say it: number or class name")
        ->type_name("N|CLASS");
    app->add_option("--frame", texts->frame,
                    "how packages look, when neither type nor log tell: raise or xinhang")
        ->type_name("NAME");
    app->add_flag("--json", texts->asJson, "says in JSON what came of it");
}

// False, with the reason in \a error, when a name is none.
bool read(const Texts &texts, LogConversion::Options *options, QString *error)
{
    options->in = QString::fromStdString(texts.in);
    options->out = QString::fromStdString(texts.out);
    options->pattern = QString::fromStdString(texts.pattern);
    const QString type = QString::fromStdString(texts.type);
    const QString frame = QString::fromStdString(texts.frame);
    options->type = BoxCatalog::typeFromText(type);
    options->frame = FrameFormat::find(frame);
    if (!type.isEmpty() && options->type == 0) {
        *error =
            QString("--can-bus-type takes a number or a class name of decoderbox --list, not '%1'").arg(type);
    } else if (!frame.isEmpty() && !options->frame) {
        *error = QString("--frame takes raise or xinhang, not '%1'").arg(frame);
    }
    return error->isEmpty();
}

} // namespace

int convertCommand(const QStringList &words)
{
    CommandLine line("convert", Description);
    Texts texts;
    addOptions(&line.app, &texts);
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    LogConversion::Options options;
    QString error;
    if (!read(texts, &options, &error)) {
        line.complain(error);
        return Command::WrongUsage;
    }
    LogConversion conversion;
    const LogConversion::Result result = conversion.run(options);
    if (texts.asJson) {
        std::puts(QJsonDocument(conversion.json()).toJson(QJsonDocument::Compact).constData());
    } else {
        for (const QString &text : conversion.texts()) {
            std::puts(text.toLocal8Bit().constData());
        }
    }
    if (!conversion.error().isEmpty()) {
        line.complain(conversion.error());
    }
    return result == LogConversion::WrongUsage ? Command::WrongUsage
           : result == LogConversion::Fine     ? Command::Fine
                                               : Command::FoundSomething;
}
