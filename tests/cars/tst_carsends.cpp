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
    void pairs_data();
    void pairs();
    void oemSound();
    void hondaClock_data();
    void hondaClock();
    void hondaClockFormat();
    void hondaKeepsTheClock();
    void hondaSetting();
    void appState();
    void cleanupTestCase();

private:
    // Packages that the adapter queued since the last look, without start byte, length and checksum.
    QByteArrayList queued();

    CarBench m_bench;
};

// What a car does like no other: not tested when another one is.
#define ONLY_OF(Type)                                                                                        \
    if (!findSheet(Type)) {                                                                                  \
        QSKIP("another car");                                                                                \
    }

QByteArrayList CarSendsTest::queued()
{
    QByteArray sent;
    for (const QString &line : m_bench.fixture().trace.take()) {
        if (line.startsWith("ProtocolUtils.writeDatas(")) {
            sent += QByteArray::fromHex(line.section('(', 1).toLatin1());
        }
    }
    return RaiseWire::parse(sent).packages;
}

void CarSendsTest::modes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QByteArray>("codes");
    for (const CarSheet &sheet : carSheets()) {
        if (sheet.isRaiseFramed()) {
            QTest::newRow(sheet.name().constData())
                << int(sheet.type) << sheet.modePackage << QByteArray::fromHex(sheet.modeCodes);
        }
    }
}

// A car that is told no modes is told none.
void CarSendsTest::modes()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    QFETCH(QByteArray, package);
    QFETCH(QByteArray, codes);
    m_bench.use(static_cast<CanBusType>(type));
    QByteArrayList expected;
    for (int mode = 0; mode < 20; ++mode) {
        Q_EMIT OrbApplication::instance()->modeAppChanged(uint(mode), 6);
        expected << QByteArray(package).replace("MM", codes.mid(mode, 1).toHex());
    }
    Q_EMIT OrbApplication::instance()->modeAppChanged(0x106, 6);
    expected << QByteArray(package).replace("MM", "00");
    QCOMPARE(queued(), package.isEmpty() ? QByteArrayList() : expected);
}

// Settings and requests of two bytes; nothing from a car that has none.
void CarSendsTest::pairs()
{
    QFETCH(int, type);
    RaiseAdapter *const car = dynamic_cast<RaiseAdapter *>(m_bench.use(static_cast<CanBusType>(type)));
    if (!car) {
        QSKIP("another frame");
    }
    QFETCH(QByteArray, setting);
    QFETCH(QByteArray, request);
    queued();
    car->writeSettingData(0x10, 0x02);
    car->syncData(0x63, 0x21);
    QByteArrayList expected;
    if (!setting.isEmpty()) {
        expected << setting + " 10 02";
    }
    if (!request.isEmpty()) {
        expected << request + " 63 21";
    }
    QCOMPARE(queued(), expected);
}

void CarSendsTest::pairs_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QByteArray>("request");
    for (const CarSheet &sheet : carSheets()) {
        QTest::newRow(sheet.name().constData())
            << int(sheet.type) << sheet.settingCommand << sheet.requestCommand;
    }
}

void CarSendsTest::oemSound()
{
    ONLY_OF(CanBusTypeRaiseToyota)
    const QByteArrayList on = {"84 08 01", "84 09 01", "84 07 2a"};
    const QList<QPair<QVariant, QByteArrayList>> settings = {
        {QVariant(), {}}, {"0", {}}, {1, on}, {"2", on}, {"yes", {}}};
    m_bench.reset();
    for (const auto &setting : settings) {
        OrbHost::instance()->setProductValue("EnableOEMSound", setting.first);
        AdapterFixture fixture;
        CanBus_Raise_Toyota *const car = fixture.construct<CanBus_Raise_Toyota>();
        OrbHost::instance()->setProductValue("EnableOEMSound", QVariant());
        fixture.open();
        QTest::qWait(70);
        QCOMPARE(RaiseWire::parse(fixture.box.takeUntilQuiet()).packages.mid(3), setting.second);
        car->enableOEMSound(false);
        QCOMPARE(RaiseWire::parse(fixture.box.takeUntilQuiet()).packages, QByteArrayList{"84 08 00"});
    }
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
    QTest::newRow("last second") << QTime(23, 59, 59) << QByteArray("8c3b3b") << QByteArray("173b3b");
}

void CarSendsTest::hondaClock()
{
    ONLY_OF(CanBusTypeRaiseHonda)
    QFETCH(QTime, time);
    QTEST(CanBus_Raise_Honda::clockData(time, true).toHex(), "twelve");
    QTEST(CanBus_Raise_Honda::clockData(time, false).toHex(), "twentyFour");
}

void CarSendsTest::hondaClockFormat()
{
    ONLY_OF(CanBusTypeRaiseHonda)
    CanBus_Raise_Honda *const car = m_bench.use<CanBus_Raise_Honda>(CanBusTypeRaiseHonda);
    const QList<QPair<QVariant, bool>> formats = {
        {QVariant(), false}, {0, false}, {1, true}, {"1", true}, {2, false}};
    for (const auto &format : formats) {
        OrbHost::instance()->setTag(0x11009, format.first);
        m_bench.fixture().trace.take();
        // The second may turn over in between.
        QByteArrayList possible = {"c6 50 " + car->clockData(QTime::currentTime(), format.second).toHex(' ')};
        car->onSyncTimer();
        possible << "c6 50 " + car->clockData(QTime::currentTime(), format.second).toHex(' ');
        const QByteArrayList sent = queued();
        QCOMPARE(sent.size(), 1);
        QVERIFY2(possible.contains(sent.first()), sent.first());
    }
    OrbHost::instance()->setTag(0x11009, QVariant());
}

// A version reply ends a ready handshake; a car that is synchronised has none, and its clock goes on.
void CarSendsTest::hondaKeepsTheClock()
{
    ONLY_OF(CanBusTypeRaiseHonda)
    m_bench.reset();
    AdapterFixture fixture;
    CanBus_Raise_Honda *const car = fixture.start<CanBus_Raise_Honda>();
    fixture.exchange("30 31");
    bool clockRuns = false;
    for (const QTimer *timer : car->findChildren<QTimer *>()) {
        clockRuns = clockRuns || (timer->interval() == 10000 && timer->isActive());
    }
    QVERIFY(clockRuns);
}

void CarSendsTest::hondaSetting()
{
    ONLY_OF(CanBusTypeRaiseHonda)
    CanBus_Raise_Honda *const car = m_bench.use<CanBus_Raise_Honda>(CanBusTypeRaiseHonda);
    m_bench.fixture().trace.take();
    const QByteArray longest(255, 'x');
    car->writeSettingData(0x12, "\x01\x02", 2);
    car->writeSettingData(0x13, nullptr, 0);
    car->writeSettingData(0x14, longest.constData(), 255);
    QCOMPARE(queued(), (QByteArrayList{"c6 12 01 02", "c6 13", "c6 14" + QByteArray(" 78").repeated(254)}));
}

void CarSendsTest::appState()
{
    ONLY_OF(CanBusTypeRaiseToyota)
    CanBus_Raise_Toyota *const car = m_bench.use<CanBus_Raise_Toyota>(CanBusTypeRaiseToyota);
    car->orbAppStateChange(4, 4);
    QVERIFY(car->appState());
    car->orbAppStateChange(0, 5); // of another mask
    QVERIFY(car->appState());
    car->orbAppStateChange(~4UL, 4);
    QVERIFY(!car->appState());
}

void CarSendsTest::cleanupTestCase()
{
    m_bench.reset();
    QFile::remove("/tmp/can_version");
}

CANBUS_TEST_MAIN(CarSendsTest)
#include "tst_carsends.moc"
