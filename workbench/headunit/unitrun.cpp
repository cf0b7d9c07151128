#include "unitrun.h"

#include "carpicker.h"
#include "checkcommand.h"
#include "command.h"
#include "commandline.h"
#include "deskmemory.h"
#include "deskstyle.h"
#include "headunitoptions.h"
#include "headunitprogram.h"
#include "portlist.h"

#include "orbapplication.h"
#include "orbhost.h"
#include "virtualclock.h"

#include <cstdio>

#include <unistd.h>

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

// Qt tells at length why it has no display, and aborts. What it tells about one that it has is nobody's concern.
void sayThatDisplayFails(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type == QtFatalMsg) {
        QByteArray name;
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            name = qEnvironmentVariableIsEmpty(variable) ? name : qgetenv(variable);
        }
        complain(
            QString("the display '%1' cannot be opened; use --headless").arg(QString::fromLocal8Bit(name)));
        ::_exit(CommandLine::FoundSomething);
    }
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
        const QString name = command ? QString("headunit ") + command->name : QString("headunit");
        const QString usage = QString("Usage: %1 [OPTIONS]\n%1 --help tells what there is.\n").arg(name);
        std::fputs(qPrintable(usage), stderr);
        *exitCode = CommandLine::WrongUsage;
        return false;
    }
    *exitCode = CommandLine::Fine;
    if (options->wantsHelp) {
        std::fputs(qPrintable(options->usage), stdout);
    } else if (!options->version.isEmpty()) {
        std::puts(qPrintable(options->version));
    } else if (options->listsPorts) {
        *exitCode = listPorts(false);
    }
    return !options->wantsHelp && options->version.isEmpty() && !options->listsPorts;
}

// Somebody who has started the desk without a word is asked. False when there is no answer.
bool askForCar(HeadUnitOptions *options)
{
    const bool isBare = !options->isHeadless && options->canBusType() == 0 && !options->hasDecoderBox &&
                        !options->replay && !options->productValues.contains("CANPortName") &&
                        options->script.isEmpty() && options->trace.isEmpty();
    if (!isBare) {
        return true;
    }
    QStringList ports;
    for (const SerialDevice &device : PortList::all()) {
        ports << device.path;
    }
    const DeskMemory memory;
    DeskStyle::load();
    OrbHost::instance()->setLanguage(memory.language());
    CarPicker picker(memory.canBusType(), ports);
    if (picker.exec() != QDialog::Accepted) {
        return false;
    }
    options->tags.insert(HeadUnitOptions::CanBusTypeTag, uint(picker.canBusType()));
    options->hasDecoderBox = picker.port().isEmpty();
    if (!options->hasDecoderBox) {
        options->productValues.insert("CANPortName", picker.port());
    }
    return true;
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
        qputenv("QT_NO_GLIB", "1"); // whose event loop takes longer to wake up, and which nothing here needs
    } else if (!hasDisplay()) {
        complain("no display; use --headless");
        return CommandLine::FoundSomething;
    }
    if (options.virtualStart.isValid() && !VirtualClock::start(options.virtualStart.toSecsSinceEpoch())) {
        complain("the virtual clock does not reach the libraries of this program");
        return CommandLine::FoundSomething;
    }
    QByteArray name = arguments.first().toLocal8Bit();
    char *words[] = {name.data(), nullptr};
    int wordCount = 1; // the others are not Qt's
    const QtMessageHandler usual = qInstallMessageHandler(sayThatDisplayFails);
    OrbApplication application(wordCount, words);
    qInstallMessageHandler(usual);
    if (!askForCar(&options)) {
        return CommandLine::Fine;
    }
    HeadUnitProgram program(options);
    QString error;
    if (!program.begin(&error)) {
        complain(error);
        return CommandLine::FoundSomething;
    }
    return QCoreApplication::exec();
}
