#include "replaycommand.h"

#include "commandline.h"
#include "headunitoptions.h"
#include "numbertext.h"
#include "unitrun.h"

namespace {

const double SlowestSpeed = 0.1;
const double FastestSpeed = 100;
const double LatestSecond = 1e9;

// What the options hold that are not as they are.
struct Texts
{
    QString speed = "1";
    double from = 0;
    double to = -1;
    QString until;
};

void addOptions(CommandLine *line, Texts *texts, ReplayOptions *options)
{
    line->add("LOG", &options->log, "a log of a serial line, in any format that convert reads").required();
    line->add("--speed", &texts->speed, "0.1 to 100 times as fast, or max: as fast as the unit reads")
        .valueName("N|max");
    line->addFlag("--loop", &options->loops, "over and over");
    line->add("--from", &texts->from, "begins at this second of the log")
        .valueName("S")
        .range(0.0, LatestSecond);
    line->add("--to", &texts->to, "ends at this second of the log").valueName("S").range(0.0, LatestSecond);
    line->add("--until", &texts->until, "ends with a package of this command, or a call of the plug-in")
        .valueName("0xNN|call=NAME");
    line->addFlag("--wait-ack", &options->waitsForAnswer,
                  "each package waits for the unit's answer to the one before, as a box does");
    line->add("--pattern", &options->pattern,
              "how to read a line: a regular expression with the groups time, dir and hex")
        .valueName("REGEX");
    line->addFlag("--json", &options->asJson, "tells the counts as JSON");
}

bool readSpeed(const Texts &texts, ReplayOptions *options, QString *error)
{
    options->isFast = texts.speed == "max";
    bool isNumber = options->isFast;
    options->speed = options->isFast ? 1 : texts.speed.toDouble(&isNumber);
    if (!isNumber || !(options->speed >= SlowestSpeed && options->speed <= FastestSpeed)) {
        *error = QString("--speed: takes 0.1 to 100 or max, not '%1'").arg(texts.speed);
    }
    return error->isEmpty();
}

bool readUntil(const Texts &texts, ReplayOptions *options, QString *error)
{
    quint32 command = 0;
    if (texts.until.startsWith("call=") && texts.until.size() > 5) {
        options->untilCall = texts.until.mid(5);
    } else if (NumberText::read(texts.until, &command) && command <= 0xFF) {
        options->untilCommand = int(command);
    } else if (!texts.until.isEmpty()) {
        *error = QString("--until: takes a command like 0x28 or call=NAME, not '%1'").arg(texts.until);
    }
    return error->isEmpty();
}

bool apply(const Texts &texts, ReplayOptions replay, HeadUnitOptions *options, QString *error)
{
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
    command.addOptions = [&](CommandLine *line) { addOptions(line, &texts, &replay); };
    command.apply = [&](HeadUnitOptions *options, QString *error) {
        return apply(texts, replay, options, error);
    };
    return runUnit(QStringList("headunit") + words, &command);
}
