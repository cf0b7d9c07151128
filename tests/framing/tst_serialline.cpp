// The framer on a terminal device: writing in time, losing the line and getting it back.

#include "receiver.h"

#include "adapterfixture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

namespace {

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
    QFile device(box.path());
    QVERIFY(device.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    receiver.attachIODevice(&device);
    QVERIFY(PtyBox::waitUntil([&] { return box.received().endsWith(" 4095 "); }));
    QVERIFY(box.take().startsWith("0 1 2 3 "));
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
    receiver->onSendReadyTimer();
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

CANBUS_REAL_TIME_TEST_MAIN(TestSerialLine)
#include "tst_serialline.moc"
