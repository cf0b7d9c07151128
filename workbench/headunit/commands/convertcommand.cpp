#include "convertcommand.h"

#include "boxcatalog.h"
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

struct Order
{
    LogConversion::Options conversion;
    QString type;
    QString frame;
    bool asJson = false;
};

void addOptions(CommandLine *line, Order *order)
{
    line->add("IN", &order->conversion.in, "the log").required();
    line->add("OUT", &order->conversion.out, "what it becomes").required();
    line->add(
            "--pattern", &order->conversion.pattern,
            "regular expression of a line of IN, with the named groups hex, and if it has them time and dir: "
            "'(?<time>\\S+) (?<dir>RX|TX) (?<hex>.*)'")
        .valueName("REGEXP");
    line->add("--can-bus-type", &order->type,
              "the decoder box, when IN does not say it: number or class name")
        .valueName("N|CLASS");
    line->add("--frame", &order->frame, "how packages look, when neither type nor log tell: raise or xinhang")
        .valueName("NAME");
    line->addFlag("--json", &order->asJson, "says in JSON what came of it");
}

// False, with the reason in \a error, when a name is none.
bool readNames(Order *order, QString *error)
{
    order->conversion.type = BoxCatalog::typeFromText(order->type);
    order->conversion.frame = FrameFormat::find(order->frame);
    if (!order->type.isEmpty() && order->conversion.type == 0) {
        *error = QString("--can-bus-type takes a number or a class name of decoderbox --list, not '%1'")
                     .arg(order->type);
    } else if (!order->frame.isEmpty() && !order->conversion.frame) {
        *error = QString("--frame takes raise or xinhang, not '%1'").arg(order->frame);
    }
    return error->isEmpty();
}

} // namespace

int convertCommand(const QStringList &words)
{
    CommandLine line("convert", Description);
    Order order;
    addOptions(&line, &order);
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    QString error;
    if (!readNames(&order, &error)) {
        line.complain(error);
        return CommandLine::WrongUsage;
    }
    LogConversion conversion;
    const LogConversion::Result result = conversion.run(order.conversion);
    if (order.asJson) {
        std::puts(QJsonDocument(conversion.json()).toJson(QJsonDocument::Compact).constData());
    } else {
        for (const QString &text : conversion.texts()) {
            std::puts(text.toLocal8Bit().constData());
        }
    }
    if (!conversion.error().isEmpty()) {
        line.complain(conversion.error());
    }
    return result == LogConversion::WrongUsage ? CommandLine::WrongUsage
           : result == LogConversion::Fine     ? CommandLine::Fine
                                               : CommandLine::FoundSomething;
}
