// Framing and decoding in this process, with memory bandwidth over the same bytes beside them.

#include "memorydevice.h"
#include "streams.h"

#include "raise/canbus_raise_toyota.h"
#include "raisewire.h"

#include "orbapplication.h"

#include <benchmark/benchmark.h>

namespace {

const int PackageCount = 20000;

class Receiver : public RaiseAdapter
{
public:
    void onRecvMcuProtocol(const QByteArray &package) override { received += package.size() > 0; }

    qint64 received = 0;
};

void frameStream(benchmark::State &state, const QByteArray &stream)
{
    Receiver receiver;
    MemoryDevice device(stream, int(state.range(0)));
    receiver.attachIODevice(&device);
    for (auto _ : state) {
        device.rewind();
        while (device.arm()) {
            receiver.onReadDeviceDatas();
        }
    }
    state.SetBytesProcessed(state.iterations() * stream.size());
    state.SetItemsProcessed(receiver.received);
}

void frameClean(benchmark::State &state)
{
    frameStream(state, Streams::clean(PackageCount));
}
BENCHMARK(frameClean)->Arg(4096)->Arg(38)->Arg(16);

void frameCorrupted(benchmark::State &state)
{
    frameStream(state, Streams::corrupted(PackageCount, 20));
}
BENCHMARK(frameCorrupted)->Arg(4096)->Arg(16);

void frameNoisy(benchmark::State &state)
{
    frameStream(state, Streams::noisy(PackageCount));
}
BENCHMARK(frameNoisy)->Arg(4096)->Arg(16);

void frameStartBytes(benchmark::State &state)
{
    frameStream(state, Streams::startBytes(1024 * 1024));
}
BENCHMARK(frameStartBytes)->Arg(4096);

void frameLongLengths(benchmark::State &state)
{
    frameStream(state, Streams::longLengths(1024 * 1024));
}
BENCHMARK(frameLongLengths)->Arg(4096);

void copyTheSameBytes(benchmark::State &state)
{
    const QByteArray stream = Streams::clean(PackageCount);
    QByteArray copy(stream.size(), '\0');
    for (auto _ : state) {
        memcpy(copy.data(), stream.constData(), size_t(stream.size()));
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * stream.size());
}
BENCHMARK(copyTheSameBytes);

// One package through acknowledgement, command table and decoder into the framework.
void decodeAndDispatch(benchmark::State &state, const char *commandAndData)
{
    CanBus_Raise_Toyota adapter;
    const QByteArray package = RaiseWire::frame(commandAndData);
    for (auto _ : state) {
        adapter.onRecvMcuProtocol(package);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(decodeAndDispatch, key, "20 01 01");
BENCHMARK_CAPTURE(decodeAndDispatch, radar, "1E 01 02 03 04");
BENCHMARK_CAPTURE(decodeAndDispatch, steering, "29 7C 01");
BENCHMARK_CAPTURE(decodeAndDispatch, doors, "24 C0");
BENCHMARK_CAPTURE(decodeAndDispatch, climate, "28 C0 43 08 08 00");
BENCHMARK_CAPTURE(decodeAndDispatch, unknown, "77 01 02");

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    OrbApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
