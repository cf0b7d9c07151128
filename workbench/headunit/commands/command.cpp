#include "command.h"

#include "checkcommand.h"
#include "probecommand.h"

const QVector<Command> &Command::all()
{
    static const QVector<Command> commands = {
        {"check", "looks at a serial line and the box behind it, and says what to do", checkCommand},
        {"probe", "tells which bit of a package does what", probeCommand},
    };
    return commands;
}

const Command *Command::find(const QString &name)
{
    for (const Command &command : all()) {
        if (name == QLatin1String(command.name)) {
            return &command;
        }
    }
    return nullptr;
}
