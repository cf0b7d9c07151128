#include "headunitoptions.h"
#include "headunitprogram.h"

#include "orbapplication.h"
#include "virtualclock.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

enum ExitCode { Fine = 0, CannotRun = 1, WrongUsage = 2 };

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
        ::_exit(CannotRun);
    }
}

// A standard stream that was closed must not become another file's number: it reads as empty and swallows.
void keepStandardStreams()
{
    int descriptor = 0;
    do {
        descriptor = ::open("/dev/null", O_RDWR);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

} // namespace

int main(int argc, char *argv[])
{
    keepStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    HeadUnitOptions options;
    QString error;
    if (!options.parse(arguments, &error)) {
        complain(error);
        std::fputs("Usage: headunit [OPTIONS]\nheadunit --help tells what there is.\n", stderr);
        return WrongUsage;
    }
    if (!options.answer.isEmpty()) {
        std::fputs(qPrintable(options.answer), stdout);
        return Fine;
    }
    if (options.isHeadless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        complain("no display; use --headless");
        return CannotRun;
    }
    if (options.virtualStart.isValid() && !VirtualClock::start(options.virtualStart.toSecsSinceEpoch())) {
        complain("the virtual clock does not reach the libraries of this program");
        return CannotRun;
    }
    int ownArgument = 1; // the others are not Qt's
    const QtMessageHandler usual = qInstallMessageHandler(sayThatDisplayFails);
    OrbApplication application(ownArgument, argv);
    qInstallMessageHandler(usual);
    HeadUnitProgram program(options);
    if (!program.begin(&error)) {
        complain(error);
        return CannotRun;
    }
    return QCoreApplication::exec();
}
