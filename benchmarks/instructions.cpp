// One stretch of work for callgrind to count: benchmarks/instructions.sh runs it and divides.
//
//     instructions WORK READ_SIZE COUNT
//
// WORK: emit (the signal alone, COUNT times); device (the device's own share of reading COUNT packages);
// clean, corrupted (COUNT packages); startbytes, longlengths (COUNT bytes); polls (COUNT polls of a silent
// terminal). allocations and pollallocations print the heap allocations for each of COUNT clean packages or polls
// instead.

#include "memorydevice.h"
#include "ptybox.h"
#include "streams.h"

#include "raise/raiseadapter.h"

#include "orbapplication.h"

#include <QMetaMethod>

#include <cstdio>
#include <cstdlib>
#include <new>

#include <qextserialport.h>

namespace {

qint64 allocations = 0;

// Receives as an adapter does: the framer's signal goes to a slot of the same object.
class Receiver : public RaiseAdapter
{
public:
    void onRecvMcuProtocol(const QByteArray &package) override
    {
        received += package.size();
        packages += package.size() == PackageSize;
    }

    static const int PackageSize = 12;
    qint64 received = 0;
    qint64 packages = 0;
};

void receiveAll(Receiver *receiver, MemoryDevice *device)
{
    receiver->attachIODevice(device);
    while (device->arm()) {
        receiver->onReadDeviceDatas();
    }
}

QByteArray streamOf(const QByteArray &work, int count)
{
    if (work == "corrupted" || work == "loss") {
        return Streams::corrupted(count, 20);
    }
    if (work == "startbytes") {
        return Streams::startBytes(count);
    }
    if (work == "longlengths") {
        return Streams::longLengths(count);
    }
    return Streams::clean(count);
}

// The framer's timer is left out: what it costs to be woken is the event loop's.
void pollSilentLine(Receiver *receiver, int count)
{
    PtyBox box;
    QextSerialPort port(box.path(), {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, -1},
                        QextSerialPort::Polling);
    port.open(QIODevice::ReadWrite);
    receiver->attachIODevice(&port);
    const QMetaObject *const type = receiver->metaObject();
    const QMetaMethod poll = type->method(type->indexOfMethod("onPollTimer()"));
    allocations = 0;
    for (int i = 0; i < count; ++i) {
        poll.invoke(receiver, Qt::DirectConnection);
    }
}

} // namespace

// callgrind counts inside these functions only, and of the polls inside the framer's slot.

extern "C" __attribute__((noinline)) void measuredReceive(Receiver *receiver, MemoryDevice *device)
{
    receiveAll(receiver, device);
}

extern "C" __attribute__((noinline)) qint64 measuredDevice(MemoryDevice *device, char *buffer, qint64 size)
{
    qint64 total = 0;
    while (device->arm()) {
        // As whoever reads a serial port must: never more than is there.
        for (qint64 available; (available = device->bytesAvailable()) > 0;) {
            total += device->read(buffer, qMin(size, available));
        }
    }
    return total;
}

extern "C" __attribute__((noinline)) void measuredEmit(Receiver *receiver, const QByteArray *package,
                                                       int count)
{
    for (int i = 0; i < count; ++i) {
        Q_EMIT receiver->recvProtocolData(*package);
    }
}

// Qt's containers and everything else on the heap come through here.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void *__libc_malloc(size_t size);
extern "C" void *malloc(size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

extern "C" void *__libc_realloc(void *memory, size_t size);
extern "C" void *realloc(void *memory, size_t size)
{
    ++allocations;
    return __libc_realloc(memory, size);
}
// NOLINTEND(bugprone-reserved-identifier)

int main(int argc, char **argv)
{
    if (argc != 4) {
        fprintf(stderr, "usage: instructions WORK READ_SIZE COUNT\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    OrbApplication app(argc, argv);
    const QByteArray work = argv[1];
    const int readSize = atoi(argv[2]);
    const int count = atoi(argv[3]);

    Receiver receiver;
    // Once unmeasured, so that only the steady state counts.
    MemoryDevice warmUp(Streams::clean(100), readSize);
    receiveAll(&receiver, &warmUp);
    if (work == "emit") {
        const QByteArray package = Streams::clean(1);
        measuredEmit(&receiver, &package, count);
    } else if (work == "device") {
        QByteArray buffer(4096, '\0');
        MemoryDevice device(Streams::clean(count), readSize);
        receiver.received = measuredDevice(&device, buffer.data(), buffer.size());
    } else if (work == "polls" || work == "pollallocations") {
        pollSilentLine(&receiver, count);
        if (work == "pollallocations") {
            printf("%.4f\n", double(allocations) / count);
            return 0;
        }
    } else {
        MemoryDevice device(streamOf(work, count), readSize);
        allocations = 0;
        receiver.packages = 0;
        measuredReceive(&receiver, &device);
        if (work == "allocations") {
            printf("%.4f\n", double(allocations) / count);
            return 0;
        }
        if (work == "loss") {
            const int corrupted = (count + 19) / 20;
            printf("%.4f\n", double(count - corrupted - receiver.packages) / corrupted);
            return 0;
        }
    }
    printf("%lld\n", static_cast<long long>(receiver.received));
    return 0;
}
