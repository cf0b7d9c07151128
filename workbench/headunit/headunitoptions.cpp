#include "headunitoptions.h"

#include "boxcatalog.h"
#include "numbertext.h"
#include "unitscreen.h"

#include <QCommandLineParser>

#include <memory>

namespace {

// Options whose value may be left out.
const QStringList LoneOptions = {"--decoder-box", "--virtual-clock"};

// When the virtual clock starts unless it is told: drives with a clock in them look the same every day.
const char *const StandardStart = "2026-01-01T12:00:00";

void addOptions(QCommandLineParser *parser)
{
    parser->addOptions({{{"h", "help"}, "Shows this."},
                        {"can-bus-type", {}, "N|CLASS"},
                        {"key-redef", {}, "N"},
                        {"port", {}, "PATH"},
                        {"decoder-box", {}, "SCENARIO"},
                        {"plugin", {}, "PATH"},
                        {"tag", {}, "ID=VALUE"},
                        {"product", {}, "KEY=VALUE"},
                        {"factory", {}, "KEY=VALUE[,VALUE]..."},
                        {"settings-dir", {}, "DIR"},
                        {"headless", {}},
                        {"virtual-clock", {}, "START"},
                        {"trace", {}, "FILE|-"},
                        {"script", {}, "FILE|-"}});
}

bool isOption(const QString &argument)
{
    return argument.startsWith("--");
}

// That a value may be left out the parser does not know: tie it to its option.
QStringList withValuesTied(const QStringList &arguments)
{
    QStringList tied;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (!LoneOptions.contains(argument)) {
            tied << argument;
        } else if (i + 1 < arguments.size() && !isOption(arguments.at(i + 1))) {
            tied << argument + '=' + arguments.at(++i);
        } else {
            tied << argument + '=';
        }
    }
    return tied;
}

// "KEY=VALUE"; a value may hold further equals signs.
bool split(const QString &setting, QString *key, QString *value)
{
    const int sign = int(setting.indexOf('='));
    *key = setting.left(sign);
    *value = setting.mid(sign + 1);
    return sign > 0;
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

bool readTags(const QStringList &settings, HeadUnitOptions *options, QString *error)
{
    for (const QString &setting : settings) {
        QString key;
        QString value;
        quint32 tag = 0;
        if (!split(setting, &key, &value) || !NumberText::read(key, &tag)) {
            *error = QString("--tag takes ID=VALUE, not '%1'").arg(setting);
            return false;
        }
        options->tags.insert(tag, NumberText::value(value));
    }
    return true;
}

bool readTypes(const QCommandLineParser &parser, HeadUnitOptions *options, QString *error)
{
    const QString typeText = parser.value("can-bus-type");
    quint32 number = quint32(BoxCatalog::typeFromText(typeText));
    if (parser.isSet("can-bus-type")) {
        if (number == 0 && !NumberText::read(typeText, &number)) {
            *error = QString("--can-bus-type takes a number or a class name, not '%1'").arg(typeText);
            return false;
        }
        options->tags.insert(HeadUnitOptions::CanBusTypeTag, number);
    }
    if (parser.isSet("key-redef")) {
        if (!NumberText::read(parser.value("key-redef"), &number)) {
            *error = QString("--key-redef takes a number, not '%1'").arg(parser.value("key-redef"));
            return false;
        }
        options->tags.insert(HeadUnitOptions::KeyRedefTag, number);
    }
    return true;
}

bool readSettings(const QCommandLineParser &parser, HeadUnitOptions *options, QString *error)
{
    QString key;
    QString value;
    for (const QString &setting : parser.values("product")) {
        if (!split(setting, &key, &value)) {
            *error = QString("--product takes KEY=VALUE, not '%1'").arg(setting);
            return false;
        }
        options->productValues.insert(key, NumberText::value(value));
    }
    for (const QString &setting : parser.values("factory")) {
        if (!split(setting, &key, &value)) {
            *error = QString("--factory takes KEY=VALUE[,VALUE]..., not '%1'").arg(setting);
            return false;
        }
        options->factorySettings.insert(key, value.split(','));
    }
    options->screenSize = UnitScreen::standardSize();
    const QString size = options->productValues.value("ScreenSize").toString();
    if (!size.isEmpty() && !readSize(size, &options->screenSize)) {
        *error = QString("ScreenSize takes WxH, 320x240 to 4096x4096, not '%1'").arg(size);
        return false;
    }
    return readTags(parser.values("tag"), options, error) && readTypes(parser, options, error);
}

bool readClock(const QCommandLineParser &parser, HeadUnitOptions *options, QString *error)
{
    if (!parser.isSet("virtual-clock")) {
        return true;
    }
    const QString given = parser.value("virtual-clock");
    const QString text = given.isEmpty() ? QString(StandardStart) : given;
    options->virtualStart = QDateTime::fromString(text, "yyyy-MM-dd'T'HH:mm:ss");
    if (!options->virtualStart.isValid()) {
        *error = QString("--virtual-clock takes a local time like %1, not '%2'").arg(StandardStart, text);
        return false;
    }
    if (!options->isHeadless) {
        *error = "--virtual-clock needs --headless";
        return false;
    }
    return true;
}

bool readFiles(const QCommandLineParser &parser, HeadUnitOptions *options, QString *error)
{
    for (const char *name : {"port", "plugin", "settings-dir", "trace", "script"}) {
        if (isOption(parser.value(name))) {
            *error = QString("--%1 lacks its value").arg(name);
            return false;
        }
    }
    options->isHeadless = parser.isSet("headless");
    options->plugin = parser.value("plugin");
    options->settingsDir = parser.value("settings-dir");
    options->trace = parser.value("trace");
    options->script = parser.value("script");
    options->hasDecoderBox = parser.isSet("decoder-box");
    options->scenario = parser.value("decoder-box");
    if (options->hasDecoderBox && parser.isSet("port")) {
        *error = "--port and --decoder-box exclude each other";
        return false;
    }
    if (options->hasDecoderBox && options->canBusType() == 0) {
        *error = "--decoder-box needs --can-bus-type: which box is it?";
        return false;
    }
    if (parser.isSet("port")) {
        options->productValues.insert("CANPortName", parser.value("port"));
    }
    return true;
}

} // namespace

QString HeadUnitOptions::usage()
{
    return "Usage: headunit [--can-bus-type N|CLASS] [--key-redef N] [--port PATH | --decoder-box "
           "[SCENARIO]]\n"
           "                [--plugin PATH] [--tag ID=VALUE]... [--product KEY=VALUE]...\n"
           "                [--factory KEY=VALUE[,VALUE]...]... [--settings-dir DIR]\n"
           "                [--headless [--virtual-clock [START]]] [--trace FILE|-] [--script FILE|-]\n"
           "\n"
           "A head unit on the desk that runs the CAN-bus plug-in.\n"
           "\n"
           "  --can-bus-type  the decoder box that is fitted: 1 to 15, or CanBus_Raise_Toyota and so on\n"
           "  --key-redef     the unit's own key set: 1 or 2\n"
           "  --port          the serial device of a decoder box\n"
           "  --decoder-box   a virtual box instead; it drives the scenario\n"
           "  --plugin        the plug-in's shared library\n"
           "  --tag, --product, --factory\n"
           "                  settings of the unit that the plug-in asks for; ScreenSize=WxH is the "
           "screen's\n"
           "  --settings-dir  folder of the settings files\n"
           "  --headless      no window; needs no display\n"
           "  --virtual-clock jumps over the time in which nothing happens; START is the unit's time of day "
           "at\n"
           "                  start, 2026-01-01T12:00:00 unless told\n"
           "  --trace         writes what the plug-in does as JSON lines; - is standard output\n"
           "  --script        carries out commands, one a line; - is standard input\n"
           "\n"
           "Numbers are decimal or 0x-hexadecimal.\n";
}

bool HeadUnitOptions::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(&parser);
    if (!parser.parse(withValuesTied(arguments))) {
        *error = parser.errorText();
        return false;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *error = QString("what is '%1'?").arg(parser.positionalArguments().first());
        return false;
    }
    wantsHelp = parser.isSet("help");
    return wantsHelp || (readSettings(parser, this, error) && readFiles(parser, this, error) &&
                         readClock(parser, this, error));
}
