#include "bitgridpicture.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

/// The grid of bits asks the program's own probe, and reads its answer.
class TestBitGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheProbe_data();
    void readsTheProbe();
};

void TestBitGrid::readsTheProbe_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QStringList>("runs");
    QTest::addColumn<QString>("note");
    QTest::newRow("radar, a value and what spoils it")
        << 7 << QByteArray("2e220400000000d9")
        << QStringList{"0.7-3 with d[0].0",
                       "0.2-0 event 20506 bytes: 0..2 = 00000000..02000000, 3 = 04000000, 4 = 06000000, else "
                       "00000000"}
        << QString();
    QTest::newRow("a type without a decoder")
        << 1 << QByteArray("2e2201aa32") << QStringList()
        << QString("the frame of this type is not known, so it decodes nothing that could be probed");
    QTest::newRow("a bad checksum") << 7 << QByteArray("2e220400000000da") << QStringList()
                                    << QString("the checksum of 2e220400000000da is wrong");
}

void TestBitGrid::readsTheProbe()
{
    QFETCH(int, type);
    QFETCH(QByteArray, frame);
    QFETCH(QStringList, runs);
    BitGrid grid(HEADUNIT);
    QSignalSpy shown(&grid, &BitGrid::shown);
    grid.showPackage(9, QByteArray::fromHex("2e24014099")); // given up for the next one
    grid.showPackage(type, QByteArray::fromHex(frame));
    QVERIFY(shown.wait(60000));
    QStringList texts;
    for (const BitGrid::Run &run : grid.findChild<BitGridPicture *>()->runs().mid(0, runs.size())) {
        texts << QString("%1.%2-%3 %4")
                     .arg(run.byte)
                     .arg(run.high)
                     .arg(run.low)
                     .arg(run.partner.isEmpty() ? run.effects.join(", ") : "with " + run.partner);
    }
    QCOMPARE(texts, runs);
    QTEST(grid.findChild<QLabel *>("bitGridNote")->text(), "note");
    QCOMPARE(shown.count(), 1);
}

QTEST_MAIN(TestBitGrid)
#include "tst_bitgrid.moc"
