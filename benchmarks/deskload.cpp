// What the desk costs on a busy line: 200 packages a second with its window, and with the inspector open.
//
//     deskload [SECONDS]
//
// Processor time of the whole program, plug-in included, so that what runs beside it hardly matters.
// QT_QPA_PLATFORM=offscreen measures without a display.

#include "boxcatalog.h"
#include "deskwindow.h"
#include "frameformat.h"
#include "headunit.h"
#include "linepage.h"
#include "sidepanel.h"
#include "terminalpair.h"

#include "orbapplication.h"
#include "orbhost.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

#include <sys/resource.h>
#include <unistd.h>

namespace {

const int Toyota = 9;
const uint CanBusTypeTag = 0x10008;
const int PackageInterval = 5; // ms
const int UsualSeconds = 20;
const int StartMs = 2000;

double processorSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

void pass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Climate packages that each change something, and the line's answers taken away.
void say(const TerminalPair &line, int number)
{
    const char data[] = {char(0x80), char(number % 8), char(number % 0x1D), 7, 0};
    const QByteArray frame = FrameFormat::raise().frame({0x28, QByteArray(data, sizeof data)});
    char answers[256];
    while (::read(line.farEnd(), answers, sizeof answers) > 0) {
    }
    if (::write(line.farEnd(), frame.constData(), size_t(frame.size())) != frame.size()) {
        std::fprintf(stderr, "the unit does not read its line\n");
    }
}

void measure(const char *what, const TerminalPair &line, int packagesPerSecond, int seconds)
{
    int number = 0;
    QElapsedTimer clock;
    clock.start();
    QTimer speaker;
    // Late timers are made up for, so that the number of packages is what it should be.
    QObject::connect(&speaker, &QTimer::timeout, [&] {
        while (number < clock.elapsed() * packagesPerSecond / 1000) {
            say(line, number++);
        }
    });
    speaker.start(PackageInterval);
    const double before = processorSeconds();
    pass(seconds * 1000);
    std::printf("%-44s %5.1f %% of a core, %d packages\n", what,
                100 * (processorSeconds() - before) * 1000 / double(clock.elapsed()), number);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : UsualSeconds;
    QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    OrbApplication application(argc, argv);
    TerminalPair line;
    QString error;
    if (!line.open(&error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    OrbHost *host = OrbHost::instance();
    host->setSettingsDir(folder.path());
    host->setTag(CanBusTypeTag, Toyota);
    host->setProductValue("CANPortName", line.devicePath());
    HeadUnit unit;
    DeskWindow desk(&unit, nullptr);
    desk.show();
    if (!unit.loadPlugin(PLUGIN, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    pass(StartMs);
    measure("the window, silent", line, 0, seconds);
    measure("the window", line, 200, seconds);
    desk.sidePanel()->linePage()->openInspector();
    measure("the window and the inspector", line, 200, seconds);
    unit.unloadPlugin();
    return 0;
}
