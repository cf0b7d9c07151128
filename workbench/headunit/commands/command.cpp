#include "command.h"

#include "checkcommand.h"
#include "convertcommand.h"
#include "diffcommand.h"
#include "identifycommand.h"
#include "inspectcommand.h"
#include "keyscommand.h"
#include "probecommand.h"
#include "recordcommand.h"
#include "replaycommand.h"

const QVector<Command> &Command::all()
{
    static const QVector<Command> commands = {
        {"record", "runs the unit and writes its serial line's bytes to a log", recordCommand},
        {"replay", "runs the unit on the bytes of a log in place of a box", replayCommand},
        {"identify", "says which CAN-bus type fits a log, or the box on a port", identifyCommand},
        {"check", "looks at a serial line and the box behind it, and says what to do", checkCommand},
        {"convert", "turns one log of a serial line into another", convertCommand},
        {"inspect", "tells of each package in a log what changed, and what it caused", inspectCommand},
        {"keys", "lists the keys pressed in a log, and makes tables of them for an adapter", keysCommand},
        {"probe", "tells which bit of a package does what", probeCommand},
        {"diff", "tells how two boxes of one type differ", diffCommand},
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
