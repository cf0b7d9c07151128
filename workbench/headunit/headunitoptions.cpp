#include "headunitoptions.h"

#include "boxcatalog.h"
#include "numbertext.h"
#include "unitscreen.h"

#include <CLI/CLI.hpp>

namespace {

// When the virtual clock starts unless it is told: drives with a clock in them look the same every day.
const char *const StandardStart = "2026-01-01T12:00:00";

const quint32 KeySets = 2; // 0 is a unit without one

// What the command line holds, as text.
struct Texts
{
    std::string type;
    std::string keyRedef;
    std::string port;
    std::string plugin;
    std::string scenario;
    std::string box;
    std::string settingsDir;
    std::string clock;
    std::string trace;
    std::string script;
    std::string junit;
    std::string record;
    std::string saveBad;
    std::vector<std::string> tags;
    std::vector<std::string> products;
    std::vector<std::string> factory;
};

// "KEY=VALUE"; a value may hold further equals signs.
bool split(const std::string &setting, QString *key, QString *value)
{
    const QString text = QString::fromStdString(setting);
    const int sign = int(text.indexOf('='));
    *key = text.left(sign);
    *value = text.mid(sign + 1);
    return sign > 0;
}

std::string settingComplaint(const std::string &setting)
{
    QString key;
    QString value;
    return split(setting, &key, &value) ? std::string() : "takes KEY=VALUE, not '" + setting + "'";
}

std::string tagComplaint(const std::string &setting)
{
    QString key;
    QString value;
    quint32 tag = 0;
    return split(setting, &key, &value) && NumberText::read(key, &tag)
               ? std::string()
               : "takes ID=VALUE, not '" + setting + "'";
}

bool readType(const std::string &text, quint32 *number)
{
    const QString name = QString::fromStdString(text);
    *number = quint32(BoxCatalog::typeFromText(name));
    return *number != 0 || NumberText::read(name, number);
}

std::string typeComplaint(const std::string &text)
{
    quint32 number = 0;
    return readType(text, &number) ? std::string()
                                   : "takes the number or the name of a type, not '" + text +
                                         "'; the types are" + BoxCatalog::list().toStdString();
}

std::string keySetComplaint(const std::string &text)
{
    quint32 number = 0;
    return NumberText::read(QString::fromStdString(text), &number) && number <= KeySets
               ? std::string()
               : "takes the number of a key set, 1 or 2, not '" + text + "'";
}

// The library gives an option the next word, whatever it is.
std::string pathComplaint(const std::string &text)
{
    return text.compare(0, 2, "--") == 0 ? std::string("lacks its value") : std::string();
}

QDateTime readClock(const std::string &text)
{
    return QDateTime::fromString(text.empty() ? QString(StandardStart) : QString::fromStdString(text),
                                 "yyyy-MM-dd'T'HH:mm:ss");
}

std::string clockComplaint(const std::string &text)
{
    return readClock(text).isValid()
               ? std::string()
               : std::string("takes a local time like ") + StandardStart + ", not '" + text + "'";
}

void addSetting(CLI::App *app, const char *name, std::vector<std::string> *texts, const char *value,
                std::string (*complaint)(const std::string &), const char *help)
{
    app->add_option(name, *texts, help)
        ->type_name(value)
        ->take_all()
        ->allow_extra_args(false)
        ->check(complaint);
}

CLI::Option *addPath(CLI::App *app, const char *name, std::string *text, const char *value, const char *help)
{
    return app->add_option(name, *text, help)->type_name(value)->check(pathComplaint);
}

void addOptions(CLI::App *app, HeadUnitOptions *options, Texts *texts)
{
    app->add_option("--can-bus-type", texts->type,
                    "the decoder box that is fitted: number, class or short name (toyota); decoderbox --list "
                    "has them")
        ->type_name("N|CLASS")
        ->check(typeComplaint);
    app->add_option("--key-redef", texts->keyRedef, "the unit's own key set: 1 or 2")
        ->type_name("N")
        ->check(keySetComplaint);
    CLI::Option *const port =
        addPath(app, "--port", &texts->port, "PATH", "the serial device of a decoder box");
    app->add_option("--decoder-box", texts->scenario, "a virtual box instead; it drives the scenario")
        ->type_name("[SCENARIO]")
        ->expected(0, 1)
        ->excludes(port);
    addPath(app, "--box", &texts->box, "LIB", "somebody else's virtual box: its shared library")
        ->excludes(port);
    app->add_option("--seed", options->seed, "where the chances of the virtual box's line faults begin")
        ->type_name("N");
    app->add_flag("--unpaced", options->isUnpaced, "bytes take no time on the virtual box's line");
    addPath(app, "--plugin", &texts->plugin, "PATH", "the plug-in's shared library");
    addSetting(app, "--tag", &texts->tags, "ID=VALUE", tagComplaint, "a tag of the unit; may be repeated");
    addSetting(app, "--product", &texts->products, "KEY=VALUE", settingComplaint,
               "a product value of the unit; ScreenSize=WxH is the screen's; may be repeated");
    addSetting(app, "--factory", &texts->factory, "KEY=VALUE[,VALUE]...", settingComplaint,
               "a factory setting of the unit; may be repeated");
    addPath(app, "--settings-dir", &texts->settingsDir, "DIR", "folder of the settings files");
    CLI::Option *const headless =
        app->add_flag("--headless", options->isHeadless, "no window; needs no display");
    app->add_option(
           "--virtual-clock", texts->clock,
           "jumps over the time in which nothing happens; START is the unit's time of day at start, " +
               std::string(StandardStart) + " unless told")
        ->type_name("[START]")
        ->expected(0, 1)
        ->needs(headless)
        ->check(clockComplaint);
    addPath(app, "--trace", &texts->trace, "FILE|-",
            "writes what the plug-in does as JSON lines; - is standard output");
    app->add_flag("--trace-values", options->tracesValues,
                  "the trace has the values besides that the car tells and no display takes");
    app->add_flag("--trace-line", options->tracesLine,
                  "the line's health in the trace, as rows of the object \"line\"");
    app->add_flag("--trace-keys", options->tracesKeys,
                  "what becomes of each key of car and unit in the trace, as rows of the object \"keys\"");
    CLI::Option *const script = addPath(app, "--script", &texts->script, "FILE|-",
                                        "carries out commands, one a line; - is standard input");
    app->add_flag("--strict", options->isStrict,
                  "the script's first error or unmet expectation ends the run with status 1")
        ->needs(script);
    addPath(app, "--junit", &texts->junit, "FILE", "writes what became of the script's lines as a JUnit file")
        ->needs(script);
    addPath(app, "--record", &texts->record, "FILE|-",
            "writes the serial line's bytes to a log; - is standard output");
    addPath(app, "--save-bad", &texts->saveBad, "FILE",
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
    for (const std::string &setting : texts.products) {
        split(setting, &key, &value);
        options->productValues.insert(key, NumberText::value(value));
    }
    for (const std::string &setting : texts.factory) {
        split(setting, &key, &value);
        options->factorySettings.insert(key, value.split(','));
    }
    for (const std::string &setting : texts.tags) {
        split(setting, &key, &value);
        NumberText::read(key, &number);
        options->tags.insert(number, NumberText::value(value));
    }
    if (!texts.type.empty() && readType(texts.type, &number)) {
        options->tags.insert(HeadUnitOptions::CanBusTypeTag, number);
    }
    if (!texts.keyRedef.empty() && NumberText::read(QString::fromStdString(texts.keyRedef), &number)) {
        options->tags.insert(HeadUnitOptions::KeyRedefTag, number);
    }
    options->plugin = QString::fromStdString(texts.plugin);
    options->settingsDir = QString::fromStdString(texts.settingsDir);
    options->scenario = QString::fromStdString(texts.scenario);
    options->boxLibrary = QString::fromStdString(texts.box);
    options->trace = QString::fromStdString(texts.trace);
    options->script = QString::fromStdString(texts.script);
    options->junit = QString::fromStdString(texts.junit);
    options->record = QString::fromStdString(texts.record);
    options->saveBad = QString::fromStdString(texts.saveBad);
}

} // namespace

bool HeadUnitOptions::parse(const QStringList &arguments, QString *error, const UnitCommand *command)
{
    CLI::App app(
        command
            ? command->description
            : "A head unit on the desk that runs the CAN-bus plug-in. Numbers are decimal or 0x-hexadecimal.",
        command ? std::string("headunit ") + command->name : "headunit");
    app.get_formatter()->column_width(34);
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.set_version_flag("--version",
                         QString("headunit %1 (Qt %2)").arg(CANBUS_VERSION, qVersion()).toStdString(),
                         "prints the version");
    Texts texts;
    if (command) {
        command->addOptions(&app);
    } else {
        app.add_flag("--list-ports", listsPorts, "lists the machine's serial devices");
    }
    addOptions(&app, this, &texts);
    usage = QString::fromStdString(app.help());
    std::vector<std::string> words;
    for (int i = int(arguments.size()) - 1; i > 0; --i) {
        words.push_back(arguments.at(i).toStdString()); // the library takes them from the back
    }
    try {
        app.parse(words);
    } catch (const CLI::CallForHelp &) {
        wantsHelp = true;
        return true;
    } catch (const CLI::CallForVersion &asked) {
        version = QString::fromLatin1(asked.what());
        return true;
    } catch (const CLI::ParseError &problem) {
        *error = QString::fromStdString(problem.what());
        return false;
    }
    readSettings(texts, this);
    hasDecoderBox = app.count("--decoder-box") != 0 || app.count("--box") != 0;
    hasSeed = app.count("--seed") != 0;
    if (app.count("--port") != 0) {
        productValues.insert("CANPortName", QString::fromStdString(texts.port));
    }
    if (app.count("--virtual-clock") != 0) {
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
