// What it costs to inspect the line of a running unit: for each package framing, comparing, and the calls that it caused.

#include "inspection.h"
#include "inspectionfilter.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace {

const int Toyota = 9;
const int CallsPerPackage = 8; // as of a climate package

// Bytes of this process's memory, all told.
double memory()
{
    std::ifstream file("/proc/self/statm");
    double whole = 0;
    double resident = 0;
    file >> whole >> resident;
    return resident * 4096;
}

void inspectOne(Inspection *inspection, int number)
{
    const FrameFormat &format = FrameFormat::raise();
    const char data[] = {char(0x80), char(number % 8), char(number % 0x1D), 7, 0};
    LineRecord record;
    record.bytes = format.frame({0x28, QByteArray(data, sizeof data)});
    record.microseconds = qint64(number) * 5000;
    inspection->feed(record);
    inspection->taken(record.bytes);
    for (int call = 0; call < CallsPerPackage; ++call) {
        inspection->called(QStringLiteral("AirConditionDlg.setAirVolume %1").arg((number + call) % 8));
    }
    inspection->done();
    record.kind = LineRecord::ToBox;
    record.bytes = "\xFF";
    inspection->feed(record);
}

void inspectPackage(benchmark::State &state)
{
    Inspection inspection(Toyota);
    int number = 0;
    for (auto _ : state) {
        inspectOne(&inspection, number++);
    }
    state.SetItemsProcessed(number);
}
BENCHMARK(inspectPackage);

void filterFullRing(benchmark::State &state)
{
    Inspection inspection(Toyota);
    for (int number = 0; number < Inspection::MostRows; ++number) {
        inspectOne(&inspection, number);
    }
    state.counters["processMB"] = memory() / 1e6;
    InspectionFilter filter;
    QString problem;
    filter.parse(QStringLiteral("cmd=0x28 changed call=setTemp*"), &problem);
    for (auto _ : state) {
        int count = 0;
        for (qint64 i = inspection.firstNumber(); i < inspection.endNumber(); ++i) {
            count += filter.matches(inspection.row(i)) ? 1 : 0;
        }
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(filterFullRing)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
