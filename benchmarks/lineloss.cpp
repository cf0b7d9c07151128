// What a faulty line costs, beside the best that a receiver of this frame can do:
//
//     lineloss [PACKAGES]      packages of boxes' traffic for each row, 20 million unless told
//
// A package that the line has harmed is gone; the best receiver loses no other, and delivers of the harmed ones what
// the checksum cannot tell from a good one, which is what keeps its length and its sum.

#include "memorydevice.h"
#include "streams.h"

#include "raise/raiseadapter.h"

#include "orbapplication.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

const int Round = 100000; // packages in one stream
const int ReadSize = 38;

class Receiver : public RaiseAdapter
{
public:
    void onRecvMcuProtocol(const QByteArray &package) override
    {
        packages.append(QByteArray(package.constData(), package.size()));
    }

    QList<QByteArray> packages;
};

/// A stream in the making, and which places of it bear an unharmed package.
struct Line
{
    QByteArray stream;
    std::vector<int> unharmed;

    void add(const QByteArray &sent, const QByteArray &came)
    {
        if (sent == came) {
            unharmed.push_back(stream.size());
        }
        stream += came;
    }
};

struct Outcome
{
    qint64 faults = 0; // bytes
    qint64 sent = 0;
    qint64 unharmed = 0;
    qint64 lost = 0;       // of the unharmed
    qint64 wrong = 0;      // delivered, and not sent there
    qint64 undetected = 0; // of them what no receiver could tell

    void take(const Line &line);
    void count(const QByteArray &package, const QByteArray &came)
    {
        ++sent;
        const quint8 sum = RaiseAdapter::getPackageCheckSum(came, 1, came.size() - 2);
        const bool fits = came.size() == package.size() && came.at(0) == package.at(0) &&
                          came.at(2) == package.at(2) && sum == quint8(came.at(came.size() - 1));
        undetected += package != came && fits;
    }
};

void Outcome::take(const Line &line)
{
    Receiver receiver;
    MemoryDevice device(line.stream + QByteArray(260, '\0'), ReadSize);
    receiver.attachIODevice(&device);
    while (device.arm()) {
        receiver.onReadDeviceDatas();
    }
    qint64 good = 0;
    int from = 0;
    size_t next = 0;
    for (const QByteArray &package : receiver.packages) {
        const int at = line.stream.indexOf(package, from);
        from = at + package.size() - 1; // two may share a byte
        while (next < line.unharmed.size() && line.unharmed[next] < at) {
            ++next;
        }
        const bool isGood = next < line.unharmed.size() && line.unharmed[next] == at;
        good += isGood;
        wrong += !isGood;
    }
    unharmed += qint64(line.unharmed.size());
    lost += qint64(line.unharmed.size()) - good;
}

double share(qint64 part, qint64 whole)
{
    return whole ? double(part) / double(whole) : 0;
}

/// One fault in every twentieth package.
void oneFaultInTwenty(Streams::Fault fault, const char *name, qint64 packages)
{
    std::mt19937 random(5);
    const QList<QByteArray> traffic = Streams::boxPackages();
    Outcome all;
    while (all.sent < packages) {
        Line line;
        for (int i = 0; i < Round; ++i) {
            const QByteArray &sent = traffic.at(int(random() % unsigned(traffic.size())));
            QByteArray came = sent;
            if (i % 20 == 10) {
                const int at = int(random() % unsigned(sent.size()));
                const char byte =
                    fault == Streams::Changed ? char(sent.at(at) ^ char(random() % 255 + 1)) : char(random());
                came = Streams::harmed(sent, fault, at, byte);
                ++all.faults;
            }
            line.add(sent, came);
            all.count(sent, came);
        }
        all.take(line);
    }
    printf("| %s | %.5f | %.5f |\n", name, share(all.lost, all.faults), share(all.wrong, all.faults));
}

void bitErrors(double rate, qint64 packages)
{
    std::mt19937 random(6);
    std::geometric_distribution<qint64> gap(rate);
    const QList<QByteArray> traffic = Streams::boxPackages();
    Outcome all;
    qint64 wait = gap(random); // bits until the next wrong one
    while (all.sent < packages) {
        Line line;
        for (int i = 0; i < Round; ++i) {
            const QByteArray &sent = traffic.at(int(random() % unsigned(traffic.size())));
            QByteArray came = sent;
            const qint64 bits = sent.size() * 8;
            for (; wait < bits; wait += 1 + gap(random)) {
                came[int(wait / 8)] = char(came.at(int(wait / 8)) ^ char(1 << (wait % 8)));
            }
            wait -= bits;
            for (int at = 0; at < sent.size(); ++at) {
                all.faults += sent.at(at) != came.at(at);
            }
            line.add(sent, came);
            all.count(sent, came);
        }
        all.take(line);
    }
    printf("| %g | %.3e | %.3e | %.6f | %.3e | %.3e |\n", rate, share(all.sent - all.unharmed, all.sent),
           share(all.sent - all.unharmed + all.lost, all.sent), share(all.lost, all.faults),
           share(all.undetected, all.sent), share(all.wrong, all.sent));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    OrbApplication app(argc, argv);
    const qint64 packages = argc > 1 ? atoll(argv[1]) : 20000000;
    printf("| one byte in twenty packages | good packages lost | delivered, not sent |\n|---|---|---|\n");
    oneFaultInTwenty(Streams::Changed, "changed", packages);
    oneFaultInTwenty(Streams::Missing, "missing", packages);
    oneFaultInTwenty(Streams::Inserted, "inserted", packages);
    printf("\n| bit error rate | packages lost: best | here | good ones for each wrong byte "
           "| delivered, not sent: best | here |\n|---|---|---|---|---|---|\n");
    for (const double rate : {1e-5, 3e-5, 1e-4, 3e-4, 1e-3, 3e-3, 1e-2}) {
        bitErrors(rate, packages);
    }
    return 0;
}
