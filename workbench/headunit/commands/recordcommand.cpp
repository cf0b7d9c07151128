#include "recordcommand.h"

#include "commandline.h"
#include "headunitoptions.h"
#include "unitrun.h"

int recordCommand(const QStringList &words)
{
    QString file;
    UnitCommand command;
    command.name = "record";
    command.description = "Runs the unit and writes what passes over its serial line to a log (*.orblog). "
                          "The unit needs its type: "
                          "without a decoder it opens no line.";
    command.addOptions = [&file](CommandLine *line) {
        line->add("FILE", &file, "the log; - is standard output").required();
    };
    command.apply = [&file](HeadUnitOptions *options, QString *error) {
        options->record = file;
        if (options->canBusType() == 0) {
            *error = "--can-bus-type is needed: a unit without a decoder opens no line, so nothing would be "
                     "recorded";
        }
        return error->isEmpty();
    };
    return runUnit(QStringList("headunit") + words, &command);
}
