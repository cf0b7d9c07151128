#include "recordcommand.h"

#include "headunitoptions.h"
#include "unitrun.h"

#include <CLI/CLI.hpp>

int recordCommand(const QStringList &words)
{
    std::string file;
    UnitCommand command;
    command.name = "record";
    command.description = "Runs the unit and writes what passes over its serial line to a log (*.orblog). "
                          "The unit needs its type: "
                          "without a decoder it opens no line.";
    command.addOptions = [&file](CLI::App *app) {
        app->add_option("FILE", file, "the log; - is standard output")->required();
    };
    command.apply = [&file](HeadUnitOptions *options, QString *error) {
        options->record = QString::fromStdString(file);
        if (options->canBusType() == 0) {
            *error = "--can-bus-type is needed: a unit without a decoder opens no line, so nothing would be "
                     "recorded";
        }
        return error->isEmpty();
    };
    return runUnit(QStringList("headunit") + words, &command);
}
