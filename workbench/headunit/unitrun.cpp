#include "unitrun.h"

#include "checkcommand.h"
#include "command.h"
#include "headunitoptions.h"
#include "headunitprogram.h"

#include "orbapplication.h"
#include "virtualclock.h"

#include <cstdio>

namespace {

void complain(const QString &problem)
{
    std::fprintf(stderr, "headunit: %s\n", problem.toLocal8Bit().constData());
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

QString listOfCommands()
{
    QString text = "\nCommands, in front of the options (headunit COMMAND --help):\n";
    for (const Command &command : Command::all()) {
        text += QString("  %1%2\n").arg(command.name, -32).arg(command.summary);
    }
    return text;
}

// False when there is nothing to run; \a exitCode stands then.
bool readOptions(const QStringList &arguments, const UnitCommand *command, HeadUnitOptions *options,
                 int *exitCode)
{
    QString error;
    const bool isRead = options->parse(arguments, &error, command);
    options->usage += command ? QString() : listOfCommands();
    if (!isRead) {
        complain(error);
        std::fputs(qPrintable(options->usage), stderr);
        *exitCode = Command::WrongUsage;
        return false;
    }
    *exitCode = Command::Fine;
    if (options->wantsHelp) {
        std::fputs(qPrintable(options->usage), stdout);
    } else if (options->listsPorts) {
        *exitCode = listPorts(false);
    }
    return !options->wantsHelp && !options->listsPorts;
}

} // namespace

int runUnit(const QStringList &arguments, const UnitCommand *command)
{
    HeadUnitOptions options;
    int exitCode = 0;
    if (!readOptions(arguments, command, &options, &exitCode)) {
        return exitCode;
    }
    if (options.isHeadless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        complain("no display; use --headless");
        return Command::FoundSomething;
    }
    if (options.virtualStart.isValid() && !VirtualClock::start(options.virtualStart.toSecsSinceEpoch())) {
        complain("the virtual clock does not reach the libraries of this program");
        return Command::FoundSomething;
    }
    QByteArray name = arguments.first().toLocal8Bit();
    char *words[] = {name.data(), nullptr};
    int wordCount = 1; // the others are not Qt's
    OrbApplication application(wordCount, words);
    HeadUnitProgram program(options);
    QString error;
    if (!program.begin(&error)) {
        complain(error);
        return Command::FoundSomething;
    }
    return QCoreApplication::exec();
}
