#include "carbench.h"

#include "orbhost.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_toyota.h"

#include <QTime>

// What the cars' adapters send of their own accord or when the unit asks.
class CarSendsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data();
    void modes();
    void oemSound_data();
    void oemSound();
    void launcherTitle();
    void hondaClock_data();
    void hondaClock();
    void hondaClockFormat_data();
    void hondaClockFormat();
    void hondaKeepsTheClock();
    void hondaSetting();
    void appState_data();
    void appState();
    void cleanupTestCase();

private:
    // Packages that the adapter queued since the last look, without start byte, length and checksum.
    QByteArrayList queued();

    CarBench m_bench;
};

QByteArrayList CarSendsTest::queued()
{
    QByteArray sent;
    for (const QString &line : m_bench.fixture().trace.take()) {
        if (line.startsWith("ProtocolUtils.writeDatas("))
            sent += QByteArray::fromHex(line.section('(', 1).toLatin1());
    }
    return RaiseWire::parse(sent).packages;
}

void CarSendsTest::modes_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<QByteArray>("package"); // MM: the mode's code
    QTest::addColumn<QByteArray>("codes");   // of the modes 0 to 19
    QTest::newRow("Toyota") << "CanBus_Raise_Toyota" << QByteArray("99 MM") + QByteArray(" 00").repeated(20)
                            << QByteArray::fromHex("0000040504040104000700000004000700070700");
    QTest::newRow("Honda") << "CanBus_Raise_Honda" << QByteArray("82 MM")
                           << QByteArray::fromHex("0000040607070104000300000007000300030300");
}

void CarSendsTest::modes()
{
    QFETCH(QString, car);
    QFETCH(QByteArray, package);
    QFETCH(QByteArray, codes);
    m_bench.useByName(car);
    QByteArrayList expected;
    for (int mode = 0; mode < codes.size(); ++mode) {
        Q_EMIT OrbApplication::instance()->modeAppChanged(uint(mode), 6);
        expected << QByteArray(package).replace("MM", codes.mid(mode, 1).toHex());
    }
    Q_EMIT OrbApplication::instance()->modeAppChanged(0x106, 6);
    expected << QByteArray(package).replace("MM", "00");
    QCOMPARE(queued(), expected);
}

void CarSendsTest::oemSound_data()
{
    QTest::addColumn<QVariant>("enabled");
    QTest::addColumn<QByteArrayList>("sent");
    const QByteArrayList on = {"84 08 01", "84 09 01", "84 07 2a"};
    QTest::newRow("not set") << QVariant() << QByteArrayList();
    QTest::newRow("0") << QVariant("0") << QByteArrayList();
    QTest::newRow("1") << QVariant(1) << on;
    QTest::newRow("2 as text") << QVariant("2") << on;
    QTest::newRow("no number") << QVariant("yes") << QByteArrayList();
}

void CarSendsTest::oemSound()
{
    QFETCH(QVariant, enabled);
    QFETCH(QByteArrayList, sent);
    m_bench.reset();
    OrbHost::instance()->setProductValue("EnableOEMSound", enabled);
    AdapterFixture fixture;
    CanBus_Raise_Toyota *const car = fixture.construct<CanBus_Raise_Toyota>();
    OrbHost::instance()->setProductValue("EnableOEMSound", QVariant());
    fixture.open();
    QTest::qWait(70);
    QCOMPARE(RaiseWire::parse(fixture.box.takeUntilQuiet()).packages.mid(3), sent);
    car->enableOEMSound(false);
    QCOMPARE(RaiseWire::parse(fixture.box.takeUntilQuiet()).packages, QByteArrayList{"84 08 00"});
}

// The title comes after the ready packages are queued and before anything else.
void CarSendsTest::launcherTitle()
{
    m_bench.reset();
    AdapterFixture fixture;
    fixture.construct<CanBus_Raise_Toyota>();
    QCOMPARE(fixture.trace.take(), (QStringList{"AirConditionDlg.setPTCModeVisible(false)",
                                                "AirConditionDlg.setTemperatureRange(16,29.5)"}));
    fixture.open();
    QVERIFY(fixture.box.waitForBytes(1));
    const QString ready = "ProtocolUtils.writeDatas(2e8101017c)";
    QCOMPARE(fixture.trace.take(), (QStringList{ready, ready, ready, "OrbCommons.AppendAppTitle(513,360)"}));
}

void CarSendsTest::hondaClock_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QByteArray>("twelve");
    QTest::addColumn<QByteArray>("twentyFour");
    QTest::newRow("quirk_honda_hour_plus_one midnight")
        << QTime(0, 30, 5) << QByteArray("811e05") << QByteArray("001e05");
    QTest::newRow("quirk_honda_hour_plus_one eleven")
        << QTime(11, 59, 59) << QByteArray("8c3b3b") << QByteArray("0b3b3b");
    QTest::newRow("quirk_honda_hour_plus_one noon")
        << QTime(12, 0, 0) << QByteArray("810000") << QByteArray("0c0000");
    QTest::newRow("quirk_honda_hour_plus_one one")
        << QTime(13, 0, 1) << QByteArray("820001") << QByteArray("0d0001");
    QTest::newRow("last second") << QTime(23, 59, 59) << QByteArray("8c3b3b") << QByteArray("173b3b");
}

void CarSendsTest::hondaClock()
{
    QFETCH(QTime, time);
    QTEST(CanBus_Raise_Honda::clockData(time, true).toHex(), "twelve");
    QTEST(CanBus_Raise_Honda::clockData(time, false).toHex(), "twentyFour");
}

void CarSendsTest::hondaClockFormat_data()
{
    QTest::addColumn<QVariant>("tag");
    QTest::addColumn<bool>("twelveHours");
    QTest::newRow("not set") << QVariant() << false;
    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("1") << QVariant(1) << true;
    QTest::newRow("1 as text") << QVariant("1") << true;
    QTest::newRow("2") << QVariant(2) << false;
    QTest::newRow("-1") << QVariant(-1) << false;
}

void CarSendsTest::hondaClockFormat()
{
    QFETCH(QVariant, tag);
    QFETCH(bool, twelveHours);
    CanBus_Raise_Honda *const car = m_bench.use<CanBus_Raise_Honda>();
    OrbHost::instance()->setTag(0x11009, tag);
    QByteArrayList possible;
    // The second may turn over in between.
    QByteArrayList sent;
    for (int i = 0; i < 2 && (sent.isEmpty() || !possible.contains(sent.first())); ++i) {
        const QTime before = QTime::currentTime();
        m_bench.fixture().trace.take();
        car->onSyncTimer();
        sent = queued();
        possible.clear();
        for (const QTime &time : {before, QTime::currentTime()}) {
            const int hour = twelveHours ? 0x80 + time.hour() % 12 + 1 : time.hour();
            QByteArray clock("\xC6\x50");
            clock.append(char(hour)).append(char(time.minute())).append(char(time.second()));
            possible << clock.toHex(' ');
        }
    }
    OrbHost::instance()->setTag(0x11009, QVariant());
    QCOMPARE(sent.size(), 1);
    QVERIFY2(possible.contains(sent.first()), sent.first());
}

// A version reply ends a ready handshake; a car that is synchronised has none, and its clock goes on.
void CarSendsTest::hondaKeepsTheClock()
{
    m_bench.reset();
    AdapterFixture fixture;
    CanBus_Raise_Honda *const car = fixture.start<CanBus_Raise_Honda>();
    fixture.exchange("30 31");
    bool clockRuns = false;
    for (const QTimer *timer : car->findChildren<QTimer *>())
        clockRuns = clockRuns || (timer->interval() == 10000 && timer->isActive());
    QVERIFY(clockRuns);
}

void CarSendsTest::hondaSetting()
{
    CanBus_Raise_Honda *const car = m_bench.use<CanBus_Raise_Honda>();
    m_bench.fixture().trace.take();
    const QByteArray longest(255, 'x');
    car->writeSettingData(0x12, "\x01\x02", 2);
    car->writeSettingData(0x13, nullptr, 0);
    car->writeSettingData(0x14, longest.constData(), 255);
    QCOMPARE(queued(), (QByteArrayList{"c6 12 01 02", "c6 13", "c6 14" + QByteArray(" 78").repeated(254)}));
}

void CarSendsTest::appState_data()
{
    QTest::addColumn<ulong>("state");
    QTest::addColumn<ulong>("mask");
    QTest::addColumn<bool>("flag"); // true before
    QTest::newRow("bit 2 set") << 4UL << 4UL << true;
    QTest::newRow("bit 2 clear") << ~4UL << 4UL << false;
    QTest::newRow("another mask") << 0UL << 5UL << true;
}

void CarSendsTest::appState()
{
    QFETCH(ulong, state);
    QFETCH(ulong, mask);
    CanBus_Raise_Toyota *const car = m_bench.use<CanBus_Raise_Toyota>();
    car->orbAppStateChange(4, 4);
    car->orbAppStateChange(state, mask);
    QTEST(car->appState(), "flag");
}

void CarSendsTest::cleanupTestCase()
{
    m_bench.reset();
    QFile::remove("/tmp/can_version");
}

CANBUS_TEST_MAIN(CarSendsTest)
#include "tst_carsends.moc"
