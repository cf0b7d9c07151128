// What loading the plug-in costs a head unit: the library alone, and the object with its adapter. With
// QT_QPA_PLATFORM=offscreen it needs no display.

#include "orbapplication.h"
#include "orbhost.h"
#include "orbplugin.h"

#include <QFile>
#include <QLibrary>

#include <cstdio>

#include <time.h>

namespace {

const int Volkswagen = 3; // the adapter with the most screens

double processorMilliseconds()
{
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

// This process's share of the memory it uses: what it has to itself, and its part of what others use as well; kB.
int proportionalKilobytes()
{
    QFile file("/proc/self/smaps_rollup");
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:")) {
                return line.mid(4).simplified().split(' ').value(0).toInt();
            }
        }
    }
    return 0;
}

void report(const char *what, double since, int before)
{
    std::printf("| %s | %.2f ms | %d kB |\n", what, processorMilliseconds() - since,
                proportionalKilobytes() - before);
}

} // namespace

int main(int argc, char **argv)
{
    OrbApplication application(argc, argv);
    OrbHost::instance()->setTag(0x10008, Volkswagen);
    QLibrary library(PLUGIN);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    int memory = proportionalKilobytes();
    double start = processorMilliseconds();
    typedef OrbPlugin *(*Create)();
    const Create create = reinterpret_cast<Create>(library.resolve("create"));
    report("load the library", start, memory);
    if (!create) {
        std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
        return 1;
    }
    memory = proportionalKilobytes();
    start = processorMilliseconds();
    create();
    report("make plug-in and adapter", start, memory);
    return 0;
}
