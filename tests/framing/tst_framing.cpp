// Byte streams in, packages out: every way in which a line garbles packages, and every size of a read.

#include "receiver.h"

#include "adapterfixture.h"
#include "memorydevice.h"
#include "streams.h"

#include <random>

namespace {

const int ReadSizes[] = {1, 5, 16, 38, 259, 4096, 8 * 1024 * 1024};
const int LargestBuffer = 4096 + 512 + 1; // a read, the longest package, and the byte before it

QByteArrayList delivered(const QByteArray &stream, int readSize)
{
    Receiver receiver;
    MemoryDevice device(stream, readSize);
    receiver.attachIODevice(&device);
    int largest = 0;
    while (device.arm()) {
        receiver.onReadDeviceDatas();
        largest = qMax(largest, receiver.bufferSize());
    }
    if (largest > LargestBuffer) {
        receiver.packages.append("buffer grew to " + QByteArray::number(largest));
    }
    if (device.wouldHaveWaited()) {
        receiver.packages.append("more was asked for than was there");
    }
    return receiver.packages;
}

QByteArrayList times(int count, const QByteArray &package)
{
    QByteArrayList list;
    for (int i = 0; i < count; ++i) {
        list.append(package);
    }
    return list;
}

/// A header that makes a package of the first \a size bytes of header and \a behind, by a command of which the
/// checksum fits.
QByteArray lyingHeader(const QByteArray &behind, int size)
{
    QByteArray header("\x2E\x00\x00", 3);
    header[2] = char(size - 4);
    const QByteArray candidate = header + behind.left(size - 3);
    const quint8 sum = RaiseAdapter::getPackageCheckSum(candidate, 1, size - 2);
    header[1] = char(sum - quint8(candidate.at(size - 1)));
    return header;
}

bool isGood(const QByteArray &package)
{
    return RaiseWire::parse(package).packages.size() == 1;
}

} // namespace

class TestFraming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void garbledStreams_data();
    void garbledStreams();
    void everySplit();
    void everyCorruptByte();
    void anyReadSizeDeliversTheSame();
    void lossPerFault_data();
    void lossPerFault();
    void longPackagesArrive();
    void lyingLengthsAreGivenUp();
    void repetitionOfACutPackageCounts();
    void lateRestOfAPackageStillCounts();
    void nestedReadKeepsOrderAndContents();
    void keptPackagesStayAsTheyWere();
    void attachingDropsTheOldLine();
    void silentDeviceIsPolled();
    void announcingDeviceIsNotPolled();
};

void TestFraming::garbledStreams_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QByteArrayList>("packages");

    const QByteArray key = RaiseWire::frame("20 01 01");
    const QByteArray empty = RaiseWire::frame("7E");
    const QByteArray longest = RaiseWire::frame(0x40, QByteArray(255, '\x2E'));
    QByteArray corrupt = key;
    corrupt[3] = '\x55';

    QTest::newRow("one package") << key << times(1, key);
    QTest::newRow("noise before") << QByteArray("\x01\x02\xFE") + key << times(1, key);
    QTest::newRow("noise behind") << key + "\x01\x02\xFE" << times(1, key);
    QTest::newRow("answer bytes between")
        << "\xFF" + key + "\xF0\xF3" + empty + "\xFC" << QByteArrayList({key, empty});
    QTest::newRow("no data bytes") << empty << times(1, empty);
    QTest::newRow("255 data bytes, all of them start bytes")
        << longest + key << QByteArrayList({longest, key});
    QTest::newRow("bad checksum, then good") << corrupt + key << times(1, key);
    QTest::newRow("false start right before") << "\x2E" + key + QByteArray(40, '\0') << times(1, key);
    QTest::newRow("false start without data") << QByteArray("\x2E\x00\x00", 3) + key << times(1, key);
    QTest::newRow("false start whose length swallows a package")
        << QByteArray("\x2E\x01\x05", 3) + key + key + key << times(3, key);
    QTest::newRow("package inside the data of a bad one")
        << QByteArray("\x2E\x55\x08\x01", 4) + key + QByteArray(4, '\0') << times(1, key);
    const QByteArray keys = key.repeated(40);
    for (int size : {40, 41, 45, 46, 100, 239}) {
        QTest::addRow("a length of %d that lies, with a checksum that fits", size)
            << lyingHeader(keys, size) + keys << times(40, key);
    }
    const QByteArray spoilt = key.repeated(6) + corrupt + key.repeated(33);
    QTest::newRow("the same over a package that is bad itself")
        << lyingHeader(spoilt, 46) + spoilt << times(39, key);
    const QByteArray around =
        RaiseWire::frame(0x40, QByteArray(50, '\x07') + key.repeated(3) + QByteArray(187, '\0'));
    QTest::newRow("a true long package with packages for data")
        << around + key << QByteArrayList({around, key});
    QByteArray shortened = RaiseWire::frame("21 01 02");
    shortened[4] =
        char(0xFF - 0x21 - 0x02 - 0x01 - 0x2E); // its checksum byte is missing, the next start byte fits
    QTest::newRow("start byte taken for a checksum")
        << shortened.left(5) + key + key << QByteArrayList({shortened.left(5) + '\x2E', key, key});
    QTest::newRow("200 packages in one read") << key.repeated(200) << times(200, key);
    QTest::newRow("64 KiB of start bytes, then good")
        << QByteArray(64 * 1024, '\x2E') + key + QByteArray(64, '\0') << times(1, key);
}

void TestFraming::garbledStreams()
{
    QFETCH(QByteArray, stream);
    QFETCH(QByteArrayList, packages);
    for (int readSize : ReadSizes) {
        QCOMPARE(delivered(stream, readSize), packages);
    }
}

void TestFraming::everySplit()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    const QByteArray package = RaiseWire::frame("28 C0 45 0A 10 2E");
    for (int split = 1; split < package.size(); ++split) {
        QVERIFY(fixture.box.send(package.left(split)));
        QTest::qWait(2);
        QVERIFY(receiver->packages.isEmpty());
        QVERIFY(fixture.box.send(package.mid(split)));
        QVERIFY(PtyBox::waitUntil([&] { return !receiver->packages.isEmpty(); }));
        QCOMPARE(receiver->packages, times(1, package));
        receiver->packages.clear();
    }
}

void TestFraming::everyCorruptByte()
{
    const QByteArray package = RaiseWire::frame("28 C0 45 0A 10 2E");
    const QByteArray next = RaiseWire::frame("20 01 01");
    for (int at = 0; at < package.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            QByteArray corrupt = package;
            corrupt[at] = char(value);
            // Room behind, so that a length byte that lies is found out.
            const QByteArrayList packages = delivered(corrupt + next + QByteArray(260, '\0'), 4096);
            QVERIFY2(packages.contains(next) || packages.size() == 1, package.toHex());
            QCOMPARE(packages.contains(package), corrupt == package);
            for (const QByteArray &one : packages) {
                QVERIFY(isGood(one));
            }
        }
    }
}

void TestFraming::anyReadSizeDeliversTheSame()
{
    std::mt19937 random(7);
    QByteArray wild(20000, '\0');
    for (int i = 0; i < wild.size(); ++i) {
        wild[i] = random() % 3 ? char(random()) : '\x2E';
    }
    const QByteArray streams[] = {Streams::corrupted(2000, 3), Streams::noisy(2000),
                                  wild + Streams::clean(10)};
    for (const QByteArray &stream : streams) {
        const QByteArrayList packages = delivered(stream, 1);
        QVERIFY(!packages.isEmpty());
        for (int readSize : ReadSizes) {
            QCOMPARE(delivered(stream, readSize), packages);
        }
    }
}

void TestFraming::lossPerFault_data()
{
    QTest::addColumn<int>("fault");
    QTest::newRow("changed") << int(Streams::Changed);
    QTest::newRow("missing") << int(Streams::Missing);
    QTest::newRow("inserted") << int(Streams::Inserted);
}

// A byte that is changed, missing or too much in each twentieth package of boxes' traffic.
void TestFraming::lossPerFault()
{
    QFETCH(int, fault);
    std::mt19937 random(9);
    const QByteArrayList traffic = Streams::boxPackages();
    QByteArrayList good;
    QByteArray stream;
    int faults = 0;
    for (int i = 0; i < 100000; ++i) {
        const QByteArray &package = traffic.at(int(random() % unsigned(traffic.size())));
        if (i % 20 != 10) {
            good << package;
            stream += package;
            continue;
        }
        const int at = int(random() % unsigned(package.size()));
        const char byte = char(package.at(at) ^ char(random() % 255 + 1));
        stream += Streams::harmed(package, Streams::Fault(fault), at, byte);
        ++faults;
    }
    // Room behind, so that nothing is left unfinished.
    const QByteArrayList packages = delivered(stream + QByteArray(260, '\0'), 4096);
    int found = 0;
    int at = 0;
    for (const QByteArray &package : good) {
        const int next = packages.indexOf(package, at);
        if (next >= 0 && next < at + 8) {
            ++found;
            at = next + 1;
        }
    }
    // A lying length with a checksum that fits, once in 256 times, took the dozen packages that it covers.
    const int lost = int(good.size()) - found;
    QVERIFY2(lost <= 0.001 * faults, qPrintable(QString("%1 of %2").arg(lost).arg(faults)));
}

// Of whatever bytes they are: no long package is taken for a lie.
void TestFraming::longPackagesArrive()
{
    for (int dataBytes : {28, 60, 255}) {
        QCOMPARE(delivered(Streams::clean(3000, dataBytes), 4096), Streams::packages(3000, dataBytes));
    }
}

void TestFraming::lyingLengthsAreGivenUp()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    const QByteArray package = RaiseWire::frame("20 01 01");
    // Each of the four claims more than ever comes. They were read together, so they go together, also while
    // the line is busy with answer bytes.
    QVERIFY(fixture.box.send(QByteArray("\x2E\x01\xFF\x2E\x01\xFE\x2E\x01\xFD\x2E\x01\xFC") + package));
    for (int i = 0; i < 16; ++i) {
        QTest::qWait(20);
        QVERIFY(fixture.box.send("\xFF"));
    }
    QVERIFY(receiver->packages.isEmpty());
    QVERIFY(PtyBox::waitUntil([&] { return !receiver->packages.isEmpty(); }, 600));
    QCOMPARE(receiver->packages, times(1, package));
}

void TestFraming::repetitionOfACutPackageCounts()
{
    // Two bytes came through, and the start byte of the repetition reads as a length of 46. The box repeats
    // itself three times, 100 ms apart, which is not enough to fill that up, and then falls silent for good.
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    const QByteArray package = RaiseWire::frame("20 01 01");
    QVERIFY(fixture.box.send(package.left(2)));
    QTest::qWait(100);
    QVERIFY(fixture.box.send(package));
    QVERIFY(PtyBox::waitUntil([&] { return !receiver->packages.isEmpty(); }, 95));
    QCOMPARE(receiver->packages, times(1, package));
}

void TestFraming::lateRestOfAPackageStillCounts()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    const QByteArray package = RaiseWire::frame("20 01 01");
    QVERIFY(fixture.box.send(package.left(4)));
    QTest::qWait(300);
    QVERIFY(fixture.box.send(package.mid(4)));
    QVERIFY(PtyBox::waitUntil([&] { return !receiver->packages.isEmpty(); }));

    // A thread that was busy elsewhere has not been listening; what came meanwhile is not late.
    receiver->packages.clear();
    QVERIFY(fixture.box.send(package.left(4)));
    QTest::qWait(20);
    QTest::qSleep(600);
    QVERIFY(fixture.box.send(package.mid(4)));
    QVERIFY(PtyBox::waitUntil([&] { return !receiver->packages.isEmpty(); }));
    QCOMPARE(receiver->packages, times(1, package));
}

void TestFraming::nestedReadKeepsOrderAndContents()
{
    const QByteArrayList sent = Streams::packages(9);
    Receiver receiver;
    MemoryDevice device(Streams::clean(9), 32);
    receiver.attachIODevice(&device);
    QByteArrayList afterNested;
    receiver.onPackage = [&](const QByteArray &package) {
        // As a slot does that opens a dialog with an event loop of its own.
        device.arm();
        receiver.onReadDeviceDatas();
        afterNested.append(QByteArray(package.constData(), package.size()));
    };
    while (device.arm()) {
        receiver.onReadDeviceDatas();
    }
    QCOMPARE(receiver.packages, sent);
    std::sort(afterNested.begin(), afterNested.end());
    QByteArrayList sorted = sent;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(afterNested, sorted);
}

void TestFraming::keptPackagesStayAsTheyWere()
{
    Receiver receiver;
    MemoryDevice device(Streams::clean(50), 16);
    receiver.attachIODevice(&device);
    QByteArrayList kept;
    QByteArray buffer; // a plug-in may keep that as well
    receiver.onPackage = [&](const QByteArray &package) {
        kept.append(package);
        buffer = receiver.buffer();
    };
    while (device.arm()) {
        receiver.onReadDeviceDatas();
    }
    QCOMPARE(kept, Streams::packages(50));
}

void TestFraming::attachingDropsTheOldLine()
{
    const QByteArray package = RaiseWire::frame("20 01 01");
    Receiver receiver;
    MemoryDevice first(package.left(3), 16);
    MemoryDevice second(package, 16);
    receiver.attachIODevice(&first);
    first.arm();
    receiver.onReadDeviceDatas();
    receiver.attachIODevice(&second);
    second.arm();
    receiver.onReadDeviceDatas();
    QCOMPARE(receiver.packages, times(1, package));
    receiver.attachIODevice(nullptr);
    receiver.onReadDeviceDatas();
    {
        MemoryDevice shortLived(package, 16);
        receiver.attachIODevice(&shortLived);
    }
    receiver.onReadDeviceDatas();
    QCOMPARE(receiver.packages.size(), 1);
}

void TestFraming::silentDeviceIsPolled()
{
    // This device never announces what arrives.
    Receiver receiver;
    MemoryDevice device(Streams::clean(5), 16);
    receiver.attachIODevice(&device);
    while (device.arm()) {
        QTest::qWait(400);
        const qint64 waiting = device.bytesAvailable();
        device.arm();
        QTest::qWait(5);
        QCOMPARE(device.bytesAvailable(), qint64(0));
        QCOMPARE(waiting, qint64(0));
    }
    QCOMPARE(receiver.packages, Streams::packages(5));
}

// It is asked when it announces data, and by the clock only while a package is unfinished or a slot has not returned.
void TestFraming::announcingDeviceIsNotPolled()
{
    class Device : public MemoryDevice
    {
    public:
        using MemoryDevice::MemoryDevice;
        qint64 bytesAvailable() const override
        {
            ++questions;
            return MemoryDevice::bytesAvailable();
        }
        mutable int questions = 0;
    };
    const QByteArray package = Streams::packages(1).first();
    const int size = int(package.size());
    const QByteArray falseStart = "\x2E\x20\x80" + QByteArray(size - 3, '\0');
    Receiver receiver;
    Device device(package + falseStart + package.repeated(2), size);
    receiver.attachIODevice(&device);
    const auto announce = [&] {
        device.arm();
        Q_EMIT device.readyRead();
        return int(receiver.packages.size());
    };
    const auto questionsIn = [&](int milliseconds) {
        const int before = device.questions;
        QTest::qWait(milliseconds);
        return device.questions - before;
    };

    QVERIFY(questionsIn(1000) > 0); // nobody knows yet
    QCOMPARE(announce(), 1);
    QCOMPARE(questionsIn(1000), 0);
    QCOMPARE(announce(), 1);
    QVERIFY(questionsIn(600) > 0);
    QCOMPARE(questionsIn(1000), 0);
    receiver.onPackage = [&](const QByteArray &) {
        receiver.onPackage = nullptr;
        QTest::qWait(100);
        device.arm();
        QTest::qWait(100);
        QCOMPARE(int(receiver.packages.size()), 3);
    };
    QCOMPARE(announce(), 3);
    QCOMPARE(questionsIn(1000), 0);

    device.close();
    QTest::qWait(10);
    QVERIFY(device.isOpen() == false);
    QTest::qWait(100);
    QVERIFY(device.isOpen()); // the loss was seen
}

CANBUS_TEST_MAIN(TestFraming)
#include "tst_framing.moc"
