// What a script can say: one row a command. The reference page and `help` are made from it.

#include "scriptcommands.h"

namespace {

constexpr int Many = 64; // texts

} // namespace

const QVector<ScriptCommands::Row> &ScriptCommands::rows()
{
    using C = ScriptCommands;
    // name, arguments, help, least and most numbers, least and most texts behind them
    static const QVector<Row> table = {
        {"event", "TYPE [PARAM [PARAM2]] [bytes=HEX] [string=TEXT]", "an event to the plug-in", 1, 3, 0, 2,
         &C::appEvent},
        {"show", "APPID", "event 51001: the plug-in shows the screen of an application", 1, 1, 0, 0,
         &C::show},
        {"notify", "PARAM [PARAM2]", "event 51007: a notification", 1, 2, 0, 0, &C::notify},
        {"state", "STATE MASK", "event 51011: the unit's state bits, and which of them changed", 2, 2, 0, 0,
         &C::state},
        {"key", "CODE press|repeat|release",
         "a key of the unit; gives \"consumed\" by a key filter or \"delivered\" to the plug-in", 1, 1, 1, 1,
         &C::key},
        {"mode", "MODE [OTHER]", "the unit's application mode changes; OTHER is the mode before", 1, 2, 0, 0,
         &C::mode},
        {"disk", "DISK STATUS [PATH...]", "a disk comes (1) with these partitions, or goes (0)", 2, 2, 0,
         Many, &C::disk},
        {"tag", "ID VALUE", "what the framework answers for a tag from now on", 1, 1, 1, 1, &C::tag},
        {"product", "KEY VALUE", "what it answers for a product value", 0, 0, 2, 2, &C::product},
        {"front", "APPID", "what it answers for the application in front", 1, 1, 0, 0, &C::front},
        {"language", "en|de|zh_CN|fr|es|ru|pseudo",
         "the unit's language; until one is asked for, headless texts are the sources' own. \"pseudo\", "
         "longer and accented, is there in a build folder only",
         0, 0, 1, 1, &C::language},
        {"windows", "", "class, title and visibility of every window and dialog", 0, 0, 0, 0, &C::windows},
        {"open", "TITLE", "shows the window with that title", 0, 0, 1, Many, &C::open},
        {"text", "NAME", "the text of the widget of that name in the front window", 0, 0, 1, 1, &C::textOf},
        {"style", "NAME", "its style sheet", 0, 0, 1, 1, &C::styleOf},
        {"click", "NAME", "clicks the button of that name in the front window or dialog", 0, 0, 1, 1,
         &C::click},
        {"check", "N", "toggles a check box of the open dialog", 1, 1, 0, 0, &C::check},
        {"rows", "",
         "the list in front: for each row the texts of its three columns, of a switch true or false", 0, 0, 0,
         0, &C::listRows},
        {"row", "N [COLUMN]", "a click on that cell of the list", 1, 2, 0, 0, &C::row},
        {"wait", "MS", "the next line comes so much later", 1, 1, 0, 0, &C::wait},
        {"screenshot", "FILE", "writes a picture of the unit's screen", 0, 0, 1, 1, &C::screenshot},
        {"save", "FILE", "writes what went over the serial line in the last minute to a log", 0, 0, 1, 1,
         &C::save},
        {"expect", "[none] [OBJECT.]CALL [ARG...] within MS",
         "waits until the plug-in makes that call, or sees to it that none comes", 0, 0, 3, Many, &C::expect},
        {"set", "PROPERTY VALUE", "a property of the virtual box's car changes", 0, 0, 2, Many, &C::set},
        {"press", "KEY [MS]", "a key of the car goes down, and comes up after MS (50)", 0, 0, 1, 2,
         &C::press},
        {"box", "ORDER...", "any order to the virtual box, as in a drive", 0, 0, 1, Many, &C::orderBox},
        {"list", "properties|keys|types|commands",
         "what there is: the car's properties with value and range, its keys, the CAN-bus types, these "
         "commands",
         0, 0, 1, 1, &C::list},
        {"help", "[COMMAND]", "tells this", 0, 0, 0, 1, &C::help},
        {"quit", "", "the run is over, as at the end of the script", 0, 0, 0, 0, &C::quit},
    };
    return table;
}

QVector<ScriptCommands::Syntax> ScriptCommands::syntax()
{
    QVector<Syntax> result;
    for (const Row &row : rows()) {
        result << Syntax{row.name, row.arguments, row.help};
    }
    return result;
}
