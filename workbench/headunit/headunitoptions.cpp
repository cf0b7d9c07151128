#include "headunitoptions.h"

#include "boxcatalog.h"
#include "commandline.h"
#include "numbertext.h"
#include "unitscreen.h"

namespace {

// When the virtual clock starts unless it is told: drives with a clock in them look the same every day.
const char *const StandardStart = "2026-01-01T12:00:00";

const quint32 KeySets = 2; // 0 is a unit without one

// What the command line holds that is not taken as it stands.
struct Texts
{
    QString type;
    QString keyRedef;
    QString port;
    QString clock;
    QStringList tags;
    QStringList products;
    QStringList factory;
};

// "KEY=VALUE"; a value may hold further equals signs.
bool split(const QString &setting, QString *key, QString *value)
{
    const int sign = int(setting.indexOf('='));
    *key = setting.left(sign);
    *value = setting.mid(sign + 1);
    return sign > 0;
}

QString settingComplaint(const QString &setting)
{
    QString key;
    QString value;
    return split(setting, &key, &value) ? QString() : "takes KEY=VALUE, not '" + setting + "'";
}

QString tagComplaint(const QString &setting)
{
    QString key;
    QString value;
    quint32 tag = 0;
    return split(setting, &key, &value) && NumberText::read(key, &tag)
               ? QString()
               : "takes ID=VALUE, not '" + setting + "'";
}

bool readType(const QString &text, quint32 *number)
{
    *number = quint32(BoxCatalog::typeFromText(text));
    return *number != 0 || NumberText::read(text, number);
}

QString typeComplaint(const QString &text)
{
    quint32 number = 0;
    return readType(text, &number) ? QString()
                                   : "takes the number or the name of a type, not '" + text +
                                         "'; the types are" + BoxCatalog::list();
}

QString keySetComplaint(const QString &text)
{
    quint32 number = 0;
    return NumberText::read(text, &number) && number <= KeySets
               ? QString()
               : "takes the number of a key set, 1 or 2, not '" + text + "'";
}

// The library gives an option the next word, whatever it is.
QString pathComplaint(const QString &text)
{
    return text.startsWith("--") ? QString("lacks its value") : QString();
}

QDateTime readClock(const QString &text)
{
    return QDateTime::fromString(text.isEmpty() ? QString(StandardStart) : text, "yyyy-MM-dd'T'HH:mm:ss");
}

QString clockComplaint(const QString &text)
{
    return readClock(text).isValid()
               ? QString()
               : QString("takes a local time like ") + StandardStart + ", not '" + text + "'";
}

void addSetting(CommandLine *line, const char *name, QStringList *texts, const char *value,
                const CommandLine::Complaint &complaint, const char *help)
{
    line->addList(name, texts, help).valueName(value).check(complaint);
}

CommandLine::Option addPath(CommandLine *line, const char *name, QString *path, const char *value,
                            const char *help)
{
    return line->add(name, path, help).valueName(value).check(pathComplaint);
}

void addOptions(CommandLine *line, HeadUnitOptions *options, Texts *texts)
{
    line->add("--can-bus-type", &texts->type,
              "the decoder box that is fitted: number, class or short name (toyota); decoderbox --list has "
              "them")
        .valueName("N|CLASS")
        .check(typeComplaint);
    line->add("--key-redef", &texts->keyRedef, "the unit's own key set: 1 or 2")
        .valueName("N")
        .check(keySetComplaint);
    const CommandLine::Option port =
        addPath(line, "--port", &texts->port, "PATH", "the serial device of a decoder box");
    line->add("--decoder-box", &options->scenario, "a virtual box instead; it drives the scenario")
        .valueName("[SCENARIO]")
        .mayLackValue()
        .excludes(port);
    addPath(line, "--box", &options->boxLibrary, "LIB", "somebody else's virtual box: its shared library")
        .excludes(port);
    line->add("--seed", &options->seed, "where the chances of the virtual box's line faults begin")
        .valueName("N");
    line->addFlag("--unpaced", &options->isUnpaced, "bytes take no time on the virtual box's line");
    addPath(line, "--plugin", &options->plugin, "PATH", "the plug-in's shared library");
    addSetting(line, "--tag", &texts->tags, "ID=VALUE", tagComplaint, "a tag of the unit; may be repeated");
    addSetting(line, "--product", &texts->products, "KEY=VALUE", settingComplaint,
               "a product value of the unit; ScreenSize=WxH is the screen's; may be repeated");
    addSetting(line, "--factory", &texts->factory, "KEY=VALUE[,VALUE]...", settingComplaint,
               "a factory setting of the unit; may be repeated");
    addPath(line, "--settings-dir", &options->settingsDir, "DIR", "folder of the settings files");
    const CommandLine::Option headless =
        line->addFlag("--headless", &options->isHeadless, "no window; needs no display");
    line->add("--virtual-clock", &texts->clock,
              qPrintable(QString("jumps over the time in which nothing happens; START is the unit's time of "
                                 "day at start, %1 unless told")
                             .arg(StandardStart)))
        .valueName("[START]")
        .mayLackValue()
        .needs(headless)
        .check(clockComplaint);
    addPath(line, "--trace", &options->trace, "FILE|-",
            "writes what the plug-in does as JSON lines; - is standard output");
    line->addFlag("--trace-values", &options->tracesValues,
                  "the trace has the values besides that the car tells and no display takes");
    line->addFlag("--trace-line", &options->tracesLine,
                  "the line's health in the trace, as rows of the object \"line\"");
    line->addFlag("--trace-keys", &options->tracesKeys,
                  "what becomes of each key of car and unit in the trace, as rows of the object \"keys\"");
    const CommandLine::Option script = addPath(line, "--script", &options->script, "FILE|-",
                                               "carries out commands, one a line; - is standard input");
    line->addFlag("--strict", &options->isStrict,
                  "the script's first error or unmet expectation ends the run with status 1")
        .needs(script);
    addPath(line, "--junit", &options->junit, "FILE",
            "writes what became of the script's lines as a JUnit file")
        .needs(script);
    addPath(line, "--record", &options->record, "FILE|-",
            "writes the serial line's bytes to a log; - is standard output");
    addPath(line, "--save-bad", &options->saveBad, "FILE",
            "writes the line's last minute to a log when the first bad package comes");
}

bool readSize(const QString &text, QSize *size)
{
    quint32 width = 0;
    quint32 height = 0;
    const bool ok = NumberText::read(text.section('x', 0, 0), &width) &&
                    NumberText::read(text.section('x', 1), &height) && width >= 320 && width <= 4096 &&
                    height >= 240 && height <= 4096;
    *size = ok ? QSize(int(width), int(height)) : QSize();
    return ok;
}

void readSettings(const Texts &texts, HeadUnitOptions *options)
{
    QString key;
    QString value;
    quint32 number = 0;
    for (const QString &setting : texts.products) {
        split(setting, &key, &value);
        options->productValues.insert(key, NumberText::value(value));
    }
    for (const QString &setting : texts.factory) {
        split(setting, &key, &value);
        options->factorySettings.insert(key, value.split(','));
    }
    for (const QString &setting : texts.tags) {
        split(setting, &key, &value);
        NumberText::read(key, &number);
        options->tags.insert(number, NumberText::value(value));
    }
    if (!texts.type.isEmpty() && readType(texts.type, &number)) {
        options->tags.insert(HeadUnitOptions::CanBusTypeTag, number);
    }
    if (!texts.keyRedef.isEmpty() && NumberText::read(texts.keyRedef, &number)) {
        options->tags.insert(HeadUnitOptions::KeyRedefTag, number);
    }
}

} // namespace

bool HeadUnitOptions::parse(const QStringList &arguments, QString *error, const UnitCommand *command)
{
    CommandLine line(command ? command->name : nullptr,
                     command ? command->description
                             : "A head unit on the desk that runs the CAN-bus plug-in. Numbers are decimal "
                               "or 0x-hexadecimal.");
    const QString ownVersion = QString("headunit %1 (Qt %2)").arg(CANBUS_VERSION, qVersion());
    line.setVersion(ownVersion);
    Texts texts;
    if (command) {
        command->addOptions(&line);
    } else {
        line.addFlag("--list-ports", &listsPorts, "lists the machine's serial devices");
    }
    addOptions(&line, this, &texts);
    usage = line.help();
    switch (line.parse(arguments.mid(1), error)) {
    case CommandLine::HelpWanted:
        wantsHelp = true;
        return true;
    case CommandLine::VersionWanted:
        version = ownVersion;
        return true;
    case CommandLine::Wrong:
        return false;
    case CommandLine::Taken:
        break;
    }
    readSettings(texts, this);
    hasDecoderBox = line.isGiven("--decoder-box") || line.isGiven("--box");
    hasSeed = line.isGiven("--seed");
    if (line.isGiven("--port")) {
        productValues.insert("CANPortName", texts.port);
    }
    if (line.isGiven("--virtual-clock")) {
        virtualStart = readClock(texts.clock);
    }
    screenSize = UnitScreen::standardSize();
    const QString size = productValues.value("ScreenSize").toString();
    if (!size.isEmpty() && !readSize(size, &screenSize)) {
        *error = QString("ScreenSize takes WxH, 320x240 to 4096x4096, not '%1'").arg(size);
    } else if (hasDecoderBox && canBusType() == 0) {
        *error = "--decoder-box and --box need --can-bus-type: which box is it?";
    }
    return error->isEmpty() && (!command || command->apply(this, error));
}
