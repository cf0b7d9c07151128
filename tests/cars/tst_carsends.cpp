#include "carbench.h"

#include "raise/canbus_raise_gac.h"
#include "raise/canbus_raise_haval.h"
#include "raise/canbus_raise_honda.h"
#include "raise/canbus_raise_nissan.h"
#include "raise/canbus_raise_toyota.h"

#include <QTime>

// What no sheet reaches: calls of single cars' adapters.
class CarSendsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toyota();
    void honda();
    void nissan();
    void haval();
    void gac();
};

namespace {

// A car's clock, of twelve hours and of 24, where each could go wrong.
QStringList clocks(QByteArray (*data)(const QTime &time, bool twelveHours))
{
    QStringList lines;
    for (const QTime &time : {QTime(0, 5), QTime(11, 59), QTime(12, 0), QTime(13, 59), QTime(23, 0)}) {
        lines << data(time, true).toHex(' ') + " | " + data(time, false).toHex(' ');
    }
    return lines;
}

} // namespace

void CarSendsTest::toyota()
{
    CarBench bench(CanBusTypeRaiseToyota);
    CanBus_Raise_Toyota *const car = bench.car<CanBus_Raise_Toyota>();
    bench.sent();
    car->enableOEMSound(false);
    QCOMPARE(bench.sent(), QStringList("sends 84 08 00"));
    QVERIFY(!car->appState());
    car->orbAppStateChange(4, 4);
    QVERIFY(car->appState());
    car->orbAppStateChange(0, 5); // of another mask
    QVERIFY(car->appState());
    car->orbAppStateChange(~4UL, 4);
    QVERIFY(!car->appState());
}

void CarSendsTest::honda()
{
    // quirk_honda_hour_plus_one: with 12 hours the clock is an hour ahead.
    const QList<QPair<QTime, QByteArray>> times = {{QTime(0, 30, 5), "811e05 001e05"},
                                                   {QTime(11, 59, 59), "8c3b3b 0b3b3b"},
                                                   {QTime(12, 0, 0), "810000 0c0000"},
                                                   {QTime(23, 59, 59), "8c3b3b 173b3b"}};
    for (const auto &row : times) {
        QCOMPARE(CanBus_Raise_Honda::clockData(row.first, true).toHex() + ' ' +
                     CanBus_Raise_Honda::clockData(row.first, false).toHex(),
                 row.second);
    }
    CarBench bench(CanBusTypeRaiseHonda);
    CanBus_Raise_Honda *const car = bench.car<CanBus_Raise_Honda>();
    bench.sent();
    const QByteArray longest(255, 'x');
    car->writeSettingData(0x12, "\x01\x02", 2);
    car->writeSettingData(0x13, nullptr, 0);
    car->writeSettingData(0x14, longest.constData(), 255);
    QCOMPARE(bench.sent(),
             (QStringList{"sends c6 12 01 02", "sends c6 13", "sends c6 14" + QString(" 78").repeated(254)}));
}

void CarSendsTest::nissan()
{
    QCOMPARE(clocks(&CanBus_Raise_Nissan::clockData),
             (QStringList{"05 00 00 | 05 00 01", "3b 0b 00 | 3b 0b 01", "00 0c 00 | 00 0c 01",
                          "3b 0d 00 | 3b 0d 01", "00 17 00 | 00 17 01"}));
}

void CarSendsTest::haval()
{
    QCOMPARE(CanBus_Raise_Haval::clockData(QTime(13, 59)).toHex(), QByteArray("030d3b"));
    QCOMPARE(CanBus_Raise_Haval::clockData(QTime(0, 0)).toHex(), QByteArray("030000"));
}

void CarSendsTest::gac()
{
    QCOMPARE(
        clocks(&CanBus_Raise_GAC::clockData),
        (QStringList{"05 0c 00 00 | 05 00 01 00", "3b 0b 00 00 | 3b 0b 01 00", "00 0c 00 01 | 00 0c 01 01",
                     "3b 01 00 01 | 3b 0d 01 01", "00 0b 00 01 | 00 17 01 01"}));
}

CANBUS_TEST_MAIN(CarSendsTest)
#include "tst_carsends.moc"
