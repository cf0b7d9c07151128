#include "replaycommand.h"

#include "headunitoptions.h"
#include "numbertext.h"
#include "unitrun.h"

#include <CLI/CLI.hpp>

namespace {

const double SlowestSpeed = 0.1;
const double FastestSpeed = 100;
const double LatestSecond = 1e9;

// What the command line holds.
struct Texts
{
    std::string log;
    std::string pattern;
    std::string speed = "1";
    double from = 0;
    double to = -1;
    std::string until;
};

void addOptions(CLI::App *app, Texts *texts, ReplayOptions *options)
{
    app->add_option("LOG", texts->log, "a log of a serial line, in any format that convert reads")
        ->required();
    app->add_option("--speed", texts->speed, "0.1 to 100 times as fast, or max: as fast as the unit reads")
        ->type_name("N|max");
    app->add_flag("--loop", options->loops, "over and over");
    app->add_option("--from", texts->from, "begins at this second of the log")
        ->type_name("S")
        ->check(CLI::Range(0.0, LatestSecond));
    app->add_option("--to", texts->to, "ends at this second of the log")
        ->type_name("S")
        ->check(CLI::Range(0.0, LatestSecond));
    app->add_option("--until", texts->until, "ends with a package of this command, or a call of the plug-in")
        ->type_name("0xNN|call=NAME");
    app->add_flag("--wait-ack", options->waitsForAnswer,
                  "each package waits for the unit's answer to the one before, as a box does");
    app->add_option("--pattern", texts->pattern,
                    "how to read a line: a regular expression with the groups time, dir and hex")
        ->type_name("REGEX");
    app->add_flag("--json", options->asJson, "tells the counts as JSON");
}

bool readSpeed(const Texts &texts, ReplayOptions *options, QString *error)
{
    options->isFast = texts.speed == "max";
    bool isNumber = options->isFast;
    options->speed = options->isFast ? 1 : QString::fromStdString(texts.speed).toDouble(&isNumber);
    if (!isNumber || !(options->speed >= SlowestSpeed && options->speed <= FastestSpeed)) {
        *error =
            QString("--speed: takes 0.1 to 100 or max, not '%1'").arg(QString::fromStdString(texts.speed));
    }
    return error->isEmpty();
}

bool readUntil(const Texts &texts, ReplayOptions *options, QString *error)
{
    const QString until = QString::fromStdString(texts.until);
    quint32 command = 0;
    if (until.startsWith("call=") && until.size() > 5) {
        options->untilCall = until.mid(5);
    } else if (NumberText::read(until, &command) && command <= 0xFF) {
        options->untilCommand = int(command);
    } else if (!until.isEmpty()) {
        *error = QString("--until: takes a command like 0x28 or call=NAME, not '%1'").arg(until);
    }
    return error->isEmpty();
}

bool apply(const Texts &texts, ReplayOptions replay, HeadUnitOptions *options, QString *error)
{
    replay.log = QString::fromStdString(texts.log);
    replay.pattern = QString::fromStdString(texts.pattern);
    replay.from = qint64(texts.from * 1e6);
    replay.to = texts.to < 0 ? -1 : qint64(texts.to * 1e6);
    if (!readSpeed(texts, &replay, error) || !readUntil(texts, &replay, error)) {
        return false;
    }
    const int type = options->canBusType() == 0 ? ReplayLog::typeOf(replay) : int(options->canBusType());
    if (type > 0) {
        options->tags.insert(HeadUnitOptions::CanBusTypeTag, type);
    }
    options->replay = replay;
    if (type == 0) {
        *error = "the log does not say which type it came from: --can-bus-type is needed";
    } else if (options->hasDecoderBox || options->productValues.contains("CANPortName")) {
        *error = "a log takes the place of --port and --decoder-box";
    }
    return error->isEmpty();
}

} // namespace

int replayCommand(const QStringList &words)
{
    Texts texts;
    ReplayOptions replay;
    UnitCommand command;
    command.name = "replay";
    command.description =
        "Runs the unit on the bytes of a log in place of a box, and counts what it makes of them. "
        "The type is the log's, unless it is named.";
    command.addOptions = [&](CLI::App *app) { addOptions(app, &texts, &replay); };
    command.apply = [&](HeadUnitOptions *options, QString *error) {
        return apply(texts, replay, options, error);
    };
    return runUnit(QStringList("headunit") + words, &command);
}
