// The framer on a terminal device: writing in time, losing the line and getting it back.

#include "receiver.h"

#include "adapterfixture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

#include <qextserialport.h>

namespace {

const int HeldBack = 64 * 1024; // bytes

/// A device that takes everything and lets it wait, and that fails in the ways of serial layers.
class FailingDevice : public QIODevice
{
public:
    FailingDevice() { QIODevice::open(ReadWrite | Unbuffered); }

    qint64 available = 0; // what bytesAvailable() says
    qint64 waiting = 0;   // bytes that wait to leave
    QElapsedTimer clock;
    QList<int> tries; // to open it, on the clock

    bool open(OpenMode) override
    {
        tries << int(clock.elapsed());
        return false;
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return available; }
    qint64 bytesToWrite() const override { return waiting; }

protected:
    qint64 readData(char *, qint64) override { return 0; }
    qint64 writeData(const char *, qint64 size) override
    {
        waiting += size;
        return size;
    }
};

PortSettings line(long timeout)
{
    return {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, timeout};
}

const QByteArray Ready("\x2E\x81\x01\x01\x7C");

QStringList messages;
QtMessageHandler nextHandler = nullptr;

void recordMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    messages.append(text);
    nextHandler(type, context, text);
}

} // namespace

class TestSerialLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { messages.clear(); }
    void aSingleCommandLeavesAtOnce();
    void queuedCommandsKeepTheirDistance();
    void directBytesPassTheQueue();
    void theQueueIsBounded();
    void aBoxThatDoesNotRead();
    void ports_data();
    void ports();
    void losses_data();
    void losses();
    void lostLineComesBack();
    void queuedMeanwhileLeavesOnce();
    void portThatIsMissing_data();
    void portThatIsMissing();
    void trafficLog();
};

void TestSerialLine::initTestCase()
{
    nextHandler = qInstallMessageHandler(recordMessage);
}

void TestSerialLine::aSingleCommandLeavesAtOnce()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    receiver->setWritePackageIntval(3600000); // nobody waits as long as the pause between two commands
    receiver->onSendReadyTimer();
    QVERIFY(fixture.box.waitForBytes(Ready.size()));
    QCOMPARE(fixture.box.take(), Ready);
}

void TestSerialLine::queuedCommandsKeepTheirDistance()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 4; ++i) {
        receiver->onSendReadyTimer();
    }
    QVERIFY(fixture.box.waitForBytes(4 * Ready.size()));
    QVERIFY2(timer.elapsed() >= 3 * 30 - 3, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(fixture.box.take(), Ready.repeated(4));
}

void TestSerialLine::directBytesPassTheQueue()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    receiver->onSendReadyTimer();
    receiver->onSendReadyTimer();
    receiver->writeDatas_direct("\xFF");
    QVERIFY(fixture.box.waitForBytes(2 * Ready.size() + 1));
    QCOMPARE(fixture.box.take(), Ready + "\xFF" + Ready);
}

void TestSerialLine::theQueueIsBounded()
{
    Receiver receiver;
    receiver.setWritePackageIntval(0);
    for (int i = 0; i < 5000; ++i) {
        receiver.writeDatas(QByteArray::number(i) + ' ');
    }
    QCOMPARE(messages.filter("refused").size(), 1);

    PtyBox box;
    QextSerialPort device(box.path(), line(-1), QextSerialPort::Polling);
    QVERIFY(device.open(QIODevice::ReadWrite));
    receiver.attachIODevice(&device);
    QVERIFY(PtyBox::waitUntil([&] { return box.received().endsWith(" 4095 "); }));
    QVERIFY(box.take().startsWith("0 1 2 3 "));
}

void TestSerialLine::aBoxThatDoesNotRead()
{
    Receiver receiver;
    FailingDevice device;
    receiver.attachIODevice(&device);
    for (int i = 0; i < 2 * HeldBack; ++i) {
        receiver.writeDatas_direct("\xFF");
    }
    QCOMPARE(device.waiting, qint64(HeldBack));
    // A command waits for room, and is not forgotten.
    receiver.onSendReadyTimer();
    QTest::qWait(100);
    QCOMPARE(device.waiting, qint64(HeldBack));
    device.waiting = 0;
    QTest::qWait(100);
    QCOMPARE(device.waiting, qint64(Ready.size()));
}

void TestSerialLine::ports_data()
{
    QTest::addColumn<bool>("polled");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("waits"); // for a byte that does not come, in ms
    QTest::newRow("polled") << true << 500 << 500;
    QTest::newRow("polled, no time-out") << true << -1 << 0;
    QTest::newRow("event-driven") << false << 500 << 0;
}

// The serial layer does as the library does, also where that is unpleasant.
void TestSerialLine::ports()
{
    QFETCH(bool, polled);
    QFETCH(int, timeout);
    QFETCH(int, waits);
    std::unique_ptr<PtyBox> box(new PtyBox);
    QextSerialPort port(box->path(), line(timeout),
                        polled ? QextSerialPort::Polling : QextSerialPort::EventDriven);
    QSignalSpy data(&port, SIGNAL(readyRead()));
    QSignalSpy hangUp(&port, SIGNAL(readChannelFinished()));
    QVERIFY(port.open(QIODevice::ReadWrite));
    QCOMPARE(port.errorString(), QString("No Error has occurred"));

    QElapsedTimer clock;
    clock.start();
    QCOMPARE(port.read(5), QByteArray());
    QCOMPARE(int(clock.elapsed()), waits);
    QVERIFY(box->send("box"));
    QTest::qWait(50);
    QCOMPARE(data.isEmpty(), polled);
    QCOMPARE(port.bytesAvailable(), qint64(3));
    QCOMPARE(port.read(5), QByteArray("box"));
    QCOMPARE(port.write("unit"), qint64(4));
    QCOMPARE(box->received(), QByteArray("unit"));

    box.reset();
    QTest::qWait(50);
    QCOMPARE(int(hangUp.size()), polled ? 0 : 1);
    char byte;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(port.bytesAvailable(), qint64(-1));
        QCOMPARE(port.read(&byte, 1), qint64(0));
        QCOMPARE(port.write("x"), qint64(-1));
    }
    QVERIFY(port.isOpen());
    QCOMPARE(static_cast<QIODevice &>(port).errorString(), QFile().errorString());
}

void TestSerialLine::losses_data()
{
    QTest::addColumn<int>("available");
    QTest::newRow("hung up") << -1;
    QTest::newRow("what is there is not delivered") << 5;
    QTest::newRow("closed by somebody else") << 0;
}

void TestSerialLine::losses()
{
    QFETCH(int, available);
    Receiver receiver;
    FailingDevice device;
    receiver.attachIODevice(&device);
    QTest::qWait(2000); // of silence
    device.clock.start();
    device.available = available;
    if (available == 0) {
        device.close();
    }
    QTest::qWait(2800);
    QVERIFY(!device.isOpen());
    const int due[] = {50, 100, 250, 500, 1500, 2500};
    QCOMPARE(int(device.tries.size()), 6);
    for (int i = 0; i < 6; ++i) {
        // A poll late, and every pause is up to 5 % out.
        QVERIFY2(qAbs(device.tries.at(i) - due[i]) <= 25 + due[i] / 20,
                 qPrintable(QString::number(device.tries.at(i))));
    }
}

void TestSerialLine::lostLineComesBack()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("line");
    std::unique_ptr<PtyBox> box(new PtyBox);
    QVERIFY(QFile::link(box->path(), link));

    AdapterFixture fixture;
    Receiver *const receiver = fixture.construct<Receiver>();
    fixture.openPort(link);
    const QByteArray package = RaiseWire::frame("20 01 01");
    for (int round = 0; round < 2; ++round) {
        QVERIFY(box->send(package));
        QVERIFY(PtyBox::waitUntil([&] { return receiver->packages.size() == round + 1; }));
        box.reset();
        QVERIFY(PtyBox::waitUntil([&] { return messages.filter("lost the device").size() == round + 1; }));
        QTest::qWait(300);
        box.reset(new PtyBox);
        QVERIFY(QFile::remove(link));
        QVERIFY(QFile::link(box->path(), link));
        QVERIFY(PtyBox::waitUntil([&] { return messages.filter("there again").size() == round + 1; }, 4000));
    }
    // One line for each change of state, however long it lasts.
    QCOMPARE(messages.filter("lost the device").size(), 2);
}

void TestSerialLine::queuedMeanwhileLeavesOnce()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("line");
    AdapterFixture fixture;
    Receiver *const receiver = fixture.construct<Receiver>();
    fixture.openPort(link);
    QTest::qWait(100);
    receiver->writeDatas(Ready); // past the adapter's own manners
    receiver->writeDatas_direct("\xFF");
    PtyBox box;
    QVERIFY(QFile::link(box.path(), link));
    QVERIFY(box.waitForBytes(Ready.size(), 4000));
    QCOMPARE(box.takeUntilQuiet(200), Ready);
}

void TestSerialLine::portThatIsMissing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("hasPort");
    QTest::newRow("no such file") << "/dev/no-such-port" << true;
    QTest::newRow("not a terminal") << "/dev/null" << true;
    QTest::newRow("a folder") << "/dev" << true;
    QTest::newRow("no name") << "" << false;
}

void TestSerialLine::portThatIsMissing()
{
    QFETCH(QString, path);
    QFETCH(bool, hasPort);
    AdapterFixture fixture;
    Receiver *const receiver = fixture.construct<Receiver>();
    fixture.openPort(path);
    QCOMPARE(receiver->isInited(), hasPort);
    const QStringList opened = messages.filter("Open CanBus Serial Port");
    QCOMPARE(opened.size(), hasPort ? 1 : 0);
    if (hasPort) {
        QVERIFY2(opened.first().startsWith("Open CanBus Serial Port  \"" + path + "\"  Ret: false \""),
                 qPrintable(opened.first()));
    }
    // An attempt to open it again later, nothing has been said about it.
    QTest::qWait(1100);
    QVERIFY(messages.size() <= 2);
}

void TestSerialLine::trafficLog()
{
    AdapterFixture fixture;
    Receiver *const receiver = fixture.start<Receiver>();
    receiver->setDebugMode("CanBus_Test", true);
    messages.clear();
    QVERIFY(fixture.box.send(RaiseWire::frame("20 01 01")));
    QVERIFY(PtyBox::waitUntil([&] { return receiver->packages.size() == 1; }));
    receiver->onSendReadyTimer();
    QCOMPARE(messages.size(), 2);
    QVERIFY2(QRegularExpression("^CanBus_Test recv \\d+ 2e20020101db$").match(messages.at(0)).hasMatch(),
             qPrintable(messages.at(0)));
    QVERIFY2(QRegularExpression("^CanBus_Test send \\d+ 2e8101017c$").match(messages.at(1)).hasMatch(),
             qPrintable(messages.at(1)));
    receiver->setDebugMode("CanBus_Test", false);
    receiver->onSendReadyTimer();
    QCOMPARE(messages.size(), 2);
}

CANBUS_TEST_MAIN(TestSerialLine)
#include "tst_serialline.moc"
