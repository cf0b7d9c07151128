// The whole unit as a box sees it: the program headunit with a Toyota's adapter on a pseudo-terminal.
//
//     unitbenchmark --unit=PATH_OF_HEADUNIT [--idle=SECONDS] [Google Benchmark options]

#include "unitprocess.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

namespace {

std::string unitPath;
int idleSeconds = 60;

const unsigned char StartByte = 0x2E;
const unsigned char Acknowledgement = 0xFF;
const std::string KeyRelease("\x2E\x20\x02\x01\x00\xDC", 6);
const std::string KeyPress("\x2E\x20\x02\x01\x01\xDB", 6);

double percentile(const std::vector<double> &sorted, double share)
{
    return sorted[size_t(share * double(sorted.size() - 1))];
}

void startToFirstPackage(benchmark::State &state)
{
    while (state.KeepRunning()) {
        UnitProcess unit(unitPath);
        unsigned char byte = 0;
        if (unit.waitForByte(&byte, 5) < 0 || byte != StartByte) {
            state.SkipWithError("no package came");
        }
        state.SetIterationTime(unit.sinceStart());
    }
}
BENCHMARK(startToFirstPackage)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void acknowledgement(benchmark::State &state)
{
    UnitProcess unit(unitPath);
    unit.drain(0.5);
    std::vector<double> times;
    while (state.KeepRunning()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(7));
        // In turns: the same package four times at once is a box that was not heard, and gets a ready.
        unit.send(times.size() % 2 ? KeyRelease : KeyPress);
        unsigned char byte = 0;
        const double time = unit.waitForByte(&byte, 1);
        if (time < 0 || byte != Acknowledgement) {
            state.SkipWithError("a package was not acknowledged");
            break;
        }
        state.SetIterationTime(time);
        times.push_back(time * 1000);
    }
    if (times.empty()) {
        return;
    }
    std::sort(times.begin(), times.end());
    state.counters["median_ms"] = percentile(times, 0.5);
    state.counters["p99_ms"] = percentile(times, 0.99);
    state.counters["max_ms"] = times.back();
}
BENCHMARK(acknowledgement)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2000);

void idle(benchmark::State &state)
{
    UnitProcess unit(unitPath);
    unit.drain(1);
    unit.send(KeyRelease);
    unit.drain(61); // silent for a minute, a line is asked less often
    while (state.KeepRunning()) {
        const double before = unit.processorTime();
        std::this_thread::sleep_for(std::chrono::seconds(idleSeconds));
        const double used = unit.processorTime() - before;
        state.SetIterationTime(idleSeconds);
        state.counters["percent_of_a_core"] = used / idleSeconds * 100;
        state.counters["resident_KiB"] = double(unit.residentMemory());
    }
}
BENCHMARK(idle)->UseManualTime()->Unit(benchmark::kSecond)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (strncmp(argv[i], "--unit=", 7) == 0) {
            unitPath = argv[i] + 7;
        } else if (strncmp(argv[i], "--idle=", 7) == 0) {
            idleSeconds = atoi(argv[i] + 7);
        }
    }
    if (unitPath.empty() || idleSeconds <= 0) {
        fprintf(stderr, "usage: unitbenchmark --unit=PATH_OF_HEADUNIT [--idle=SECONDS]\n");
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
