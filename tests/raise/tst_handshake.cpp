#include "adapterfixture.h"

#include "decoders/canbus_huida_zd.h"
#include "decoders/canbus_lihang_jmce200n.h"
#include "decoders/canbus_xbs_mazda.h"
#include "decoders/canbus_xinri.h"
#include "raise/canbus_raise_gac.h"
#include "raise/canbus_raise_gm.h"
#include "raise/canbus_raise_haval.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_jeep.h"
#include "raise/canbus_raise_nissan.h"
#include "raise/canbus_raise_renault.h"
#include "raise/canbus_raise_toyota.h"
#include "raise/canbus_raise_venucia.h"
#include "volkswagen/canbus_raise_volkswagen.h"

#include "qextserialport.h"

#include <QElapsedTimer>
#include <QTimer>

namespace {

typedef CanBusAdapter *(*Builder)(AdapterFixture &);

template <class Adapter>
CanBusAdapter *build(AdapterFixture &fixture)
{
    return fixture.construct<Adapter>();
}

} // namespace

Q_DECLARE_METATYPE(Builder)

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
    QTest::addColumn<Builder>("builder");
    QTest::addColumn<int>("baudRate");
    QTest::addColumn<int>("timerInterval"); // 0: no periodic timer
    QTest::addColumn<bool>("timerRuns");
    QTest::addColumn<QByteArray>("sent"); // packages, those of the clock cut to "c6 50"
    const auto row = [](const char *name, Builder builder, int baudRate, int interval, bool runs,
                        const char *sent) {
        QTest::newRow(name) << builder << baudRate << interval << runs << QByteArray(sent);
    };
    const char three[] = "81 01|81 01|81 01";
    const char withPanel[] = "81 01|81 01|81 01|84 01";
    row("Volkswagen", build<CanBus_Raise_Volkswagen>, 38400, 0, false, "81 00|81 01");
    row("Toyota", build<CanBus_Raise_Toyota>, 38400, 200, false, three);
    row("Haval", build<CanBus_Raise_Haval>, 38400, 200, false, three);
    row("GM", build<CanBus_Raise_GM>, 38400, 200, false, withPanel);
    row("Jeep", build<CanBus_Raise_Jeep>, 38400, 200, false, withPanel);
    row("Honda", build<CanBus_Raise_Honda>, 38400, 10000, true, "81 01|81 01|81 01|c6 50");
    row("Nissan", build<CanBus_Raise_Nissan>, 38400, 10000, true, three);
    row("Venucia", build<CanBus_Raise_Venucia>, 38400, 10000, true, three);
    row("Renault", build<CanBus_Raise_Renault>, 38400, 10000, true, three);
    row("GAC", build<CanBus_Raise_GAC>, 38400, 30000, true, "81 01|81 01");
    row("Mazda", build<CanBus_XBS_Mazda>, 38400, 200, true, "81 01");
    row("XinRi", build<CanBus_XinRi>, 38400, 200, true, "81 01");
    row("Huida", build<CanBus_Huida_ZD>, 19200, 0, false, "");
    row("LiHang", build<CanBus_LiHang_JMCE200N>, 38400, 0, false, "");
}

void HandshakeTest::start()
{
    QFETCH(Builder, builder);
    QFETCH(int, baudRate);
    QFETCH(int, timerInterval);
    QFETCH(bool, timerRuns);
    QFETCH(QByteArray, sent);
    AdapterFixture fixture;
    CanBusAdapter *const adapter = builder(fixture);
    fixture.open();

    PortSettings settings;
    QVERIFY(adapter->getPortSettings(settings));
    QCOMPARE(int(settings.BaudRate), baudRate);
    QCOMPARE(settings.Timeout_Millisec, -1L);

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
    QCOMPARE(packages.join('|'), sent);

    int interval = 0;
    bool runs = false;
    for (const QTimer *timer : adapter->findChildren<QTimer *>()) {
        if (timer->interval() == 200 || timer->interval() >= 10000) {
            interval += timer->interval();
            runs = timer->isActive();
        }
    }
    QCOMPARE(interval, timerInterval);
    QCOMPARE(runs, timerRuns);
}

void HandshakeTest::readyTimer_data()
{
    QTest::addColumn<Builder>("builder");
    QTest::addColumn<QByteArray>("other"); // does not end the handshake
    QTest::addColumn<QByteArray>("ends");
    QTest::newRow("Mazda, by the version")
        << Builder(build<CanBus_XBS_Mazda>) << QByteArray("02 00") << QByteArray("7f 31");
    QTest::newRow("XinRi, by any package")
        << Builder(build<CanBus_XinRi>) << QByteArray() << QByteArray("55 01");
}

// The ready command comes every 200 ms until the box answers, and never again.
void HandshakeTest::readyTimer()
{
    QFETCH(Builder, builder);
    QFETCH(QByteArray, other);
    QFETCH(QByteArray, ends);
    AdapterFixture fixture;
    builder(fixture);
    fixture.open();
    const auto readies = [&] {
        return RaiseWire::parse(fixture.box.received()).packages.count(QByteArray("81 01"));
    };
    QVERIFY(PtyBox::waitUntil([&] { return readies() == 1; }));
    QElapsedTimer clock;
    clock.start();
    if (!other.isEmpty()) {
        QVERIFY(fixture.box.send(RaiseWire::frame(other)));
    }
    QVERIFY(PtyBox::waitUntil([&] { return readies() == 3; }));
    QVERIFY2(clock.elapsed() >= 350 && clock.elapsed() < 700, qPrintable(QString::number(clock.elapsed())));
    fixture.exchange(ends.constData());
    fixture.box.take();
    QTest::qWait(450);
    QCOMPARE(int(readies()), 0);
}

// Boxes whose frame is not known: whatever they send, nothing is delivered, answered or kept.
void HandshakeTest::silentBoxes()
{
    for (const Builder builder : {Builder(build<CanBus_Huida_ZD>), Builder(build<CanBus_LiHang_JMCE200N>)}) {
        AdapterFixture fixture;
        CanBusAdapter *const adapter = builder(fixture);
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
