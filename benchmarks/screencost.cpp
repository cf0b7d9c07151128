// What a screen costs: benchmarks/screencost.sh runs it under callgrind.
//
//     screencost package SCREEN BEFORE PACKAGE   the package, from the adapter to the last pixel; prints painted pixels
//     screencost first SCREEN                    the first opening of a page behind the driving data, with its paint
//     screencost open SCREEN                     a later one
//
// SCREEN: driving, tyres, or a settings page's number. Packages: "50 10 01 08 02 00 00", several apart by bars.

#include "repaints.h"
#include "vwbench.h"

#include "volkswagen/volkswagenwindow.h"

#include "orbapplication.h"

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<OrbMainWindow> newScreen(const QByteArray &name, CanBus_Raise_Volkswagen *adapter)
{
    std::unique_ptr<OrbMainWindow> window;
    if (const unsigned int page = name.toUInt()) {
        window.reset(new VWFunctionSetting(page, adapter));
    } else {
        window.reset(new VolkswagenWindow(adapter));
    }
    return window;
}

void paint()
{
    for (int turn = 0; turn < 5; ++turn) { // what is learned in one turn is painted in a later one
        QCoreApplication::processEvents();
    }
}

} // namespace

// callgrind counts inside these functions only.

extern "C" __attribute__((noinline)) void measuredPackage(CanBus_Raise_Volkswagen *adapter,
                                                          const QByteArray *frame)
{
    adapter->onRecvMcuProtocol(*frame);
    paint();
}

extern "C" __attribute__((noinline)) void measuredOpening(const QByteArray *name,
                                                          CanBus_Raise_Volkswagen *adapter,
                                                          std::unique_ptr<OrbMainWindow> *window)
{
    *window = newScreen(*name, adapter);
    (*window)->show();
    paint();
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    OrbApplication app(argc, argv);
    const QByteArray work = argc > 1 ? argv[1] : "";
    const bool isOpening = work == "first" || work == "open";
    if (!(work == "package" && argc == 5) && !(isOpening && argc == 3)) {
        fprintf(stderr, "usage: screencost package SCREEN BEFORE PACKAGE | first SCREEN | open SCREEN\n");
        return 2;
    }
    const QByteArray screen = argv[2];
    VwBench::SettingsFolder settings;
    TestScreen unit;
    CanBus_Raise_Volkswagen adapter;
    std::unique_ptr<OrbMainWindow> window;
    window = newScreen(work == "first" ? "driving" : screen, &adapter);
    window->show();
    paint();
    if (isOpening) {
        window.reset();
        paint();
        measuredOpening(&screen, &adapter, &window);
        return 0;
    }
    if (screen == "tyres") {
        VwBench::click(*window, "btnTPMS");
    }
    VwBench::feed(adapter, argv[3]);
    paint();
    const QByteArray frame = RaiseWire::frame(argv[4]);
    Repaints repaints(&unit);
    measuredPackage(&adapter, &frame);
    printf("%d\n", repaints.pixels());
    return 0;
}
