#include "carbench.h"

#include "qextserialport.h"

#include <QElapsedTimer>

// What each adapter says when it starts, when it stops repeating itself, and what it does with packages that
// it does not know.
class HandshakeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void start_data();
    void start();
    void readyTimer_data();
    void readyTimer();
    void silentBoxes();
    void cleanupTestCase() { QFile::remove("/tmp/can_version"); }
};

void HandshakeTest::start_data()
{
    QTest::addColumn<int>("type");
    for (const CarSheet &sheet : carSheets()) {
        QTest::newRow(sheet.name().constData()) << int(sheet.type);
    }
}

void HandshakeTest::start()
{
    QFETCH(int, type);
    const CarSheet &sheet = *findSheet(type);
    AdapterFixture fixture;
    CanBusAdapter *const adapter = fixture.take(AdapterFactory::create(sheet.type));
    fixture.open();

    PortSettings settings;
    QVERIFY(adapter->getPortSettings(settings));
    QCOMPARE(int(settings.BaudRate), sheet.baudRate);
    QCOMPARE(settings.Timeout_Millisec, sheet.timeout);

    // Nothing before its time; then, before a 200 ms timer has its turn, everything.
    QTest::qWait(25);
    QCOMPARE(fixture.box.received(), QByteArray());
    QTest::qWait(150);
    const RaiseWire::Traffic traffic = RaiseWire::parse(fixture.box.take());
    QCOMPARE(traffic.faults, QByteArrayList());
    QCOMPARE(traffic.acknowledgements, 0);
    QByteArrayList packages;
    for (const QByteArray &package : traffic.packages) {
        packages << (package.startsWith("c6 50") ? package.left(5) : package);
    }
    QCOMPARE(packages.join('|'), sheet.startUp);

    int interval = 0;
    bool runs = false;
    for (const QTimer *timer : adapter->findChildren<QTimer *>()) {
        if (CarBench::isPeriodic(timer)) {
            interval += timer->interval();
            runs = timer->isActive();
        }
    }
    QCOMPARE(interval, sheet.timerInterval);
    QCOMPARE(runs, sheet.timerRuns);
}

void HandshakeTest::readyTimer_data()
{
    QTest::addColumn<int>("type");
    for (const CarSheet &sheet : carSheets()) {
        if (!sheet.endsReady.isEmpty()) {
            QTest::newRow(sheet.name().constData()) << int(sheet.type);
        }
    }
}

// The ready command comes every 200 ms until the box answers, and never again.
void HandshakeTest::readyTimer()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    const CarSheet &sheet = *findSheet(type);
    AdapterFixture fixture;
    fixture.take(AdapterFactory::create(sheet.type));
    fixture.open();
    const auto readies = [&] {
        return RaiseWire::parse(fixture.box.received()).packages.count(QByteArray("81 01"));
    };
    QVERIFY(PtyBox::waitUntil([&] { return readies() == 1; }));
    QElapsedTimer clock;
    clock.start();
    if (!sheet.otherPackage.isEmpty()) {
        QVERIFY(fixture.box.send(RaiseWire::frame(sheet.otherPackage)));
    }
    QVERIFY(PtyBox::waitUntil([&] { return readies() == 3; }));
    QVERIFY2(clock.elapsed() >= 350 && clock.elapsed() < 700, qPrintable(QString::number(clock.elapsed())));
    fixture.exchange(sheet.endsReady.constData());
    fixture.box.take();
    QTest::qWait(450);
    QCOMPARE(int(readies()), 0);
}

// Boxes whose frame is not known: whatever they send, nothing is delivered, answered or kept.
void HandshakeTest::silentBoxes()
{
    for (const CanBusType type : {CanBusTypeHuidaZd, CanBusTypeLiHangJmcE200N}) {
        if (!findSheet(type)) {
            continue;
        }
        AdapterFixture fixture;
        CanBusAdapter *const adapter = fixture.take(AdapterFactory::create(type));
        fixture.open();
        fixture.settle();
        QVERIFY(fixture.box.send(RaiseWire::frame("20 01 01").repeated(20000)));
        QCOMPARE(fixture.box.takeUntilQuiet(), QByteArray());
        adapter->showApp(1);
        adapter->onKeyEvent(0x01000072, true, false);
        adapter->onRecvAppProtocol("x");
        QCOMPARE(fixture.trace.take(), QStringList());
    }
}

CANBUS_TEST_MAIN(HandshakeTest)
#include "tst_handshake.moc"
