// What all decoders share: the view that reads no byte outside of a package, and the sums of its frame.

#include "framing.h"
#include "packageview.h"

#include <QTest>

class TestPackageView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void claimedLength_data();
    void claimedLength();
    void numbers();
    void bytes_data();
    void bytes();
    void borrowedData();
    void findStart_data();
    void findStart();
    void checkSum_data();
    void checkSum();
};

// A package's own length byte is not believed.
void TestPackageView::claimedLength_data()
{
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<int>("claimed");
    QTest::addColumn<int>("n");
    QTest::addColumn<QByteArray>("read"); // d(-1) to d(4)

    QTest::newRow("honest") << QByteArray::fromHex("2e8202a1a2cc") << 2 << 2
                            << QByteArray::fromHex("00a1a2cc0000");
    QTest::newRow("too much") << QByteArray::fromHex("2e82ffa1a2cc") << 255 << 3
                              << QByteArray::fromHex("00a1a2cc0000");
    QTest::newRow("negative") << QByteArray::fromHex("2e8200a1") << -1 << 0
                              << QByteArray::fromHex("00a100000000");
    QTest::newRow("no data") << QByteArray::fromHex("2e8200") << 1 << 0 << QByteArray(6, '\0');
    QTest::newRow("cut in its head") << QByteArray::fromHex("2e82") << 1 << 0 << QByteArray(6, '\0');
}

void TestPackageView::claimedLength()
{
    QFETCH(QByteArray, package);
    QFETCH(int, claimed);
    const PackageView view(package, 1, 3, claimed);
    QCOMPARE(int(view.command()), 0x82);
    QTEST(view.n(), "n");
    QByteArray read;
    for (int i = -1; i < 5; ++i) {
        read += char(view.d(i));
    }
    QTEST(read, "read");
    QVERIFY(view.data() <= reinterpret_cast<const uchar *>(package.constData()) + package.size());
    QCOMPARE(PackageView(package, int(package.size()), 3, 0).command(), uchar(0));
}

void TestPackageView::numbers()
{
    const QByteArray package = QByteArray::fromHex("0081928384");
    const PackageView view(package, 0, 1, 4);
    QVERIFY(view.bit(0, 7) && view.bit(0, 0) && !view.bit(0, 6) && view.bit(1, 1) && !view.bit(1, 0));
    QCOMPARE(view.bits(1, 7, 4), 9);
    QCOMPARE(view.bits(1, 4, 1), 9);
    QCOMPARE(view.bits(1, 7, 0), 0x92);
    QCOMPARE(view.u16le(0), quint16(0x9281));
    QCOMPARE(view.u16be(0), quint16(0x8192));
    QCOMPARE(view.s16le(0), qint16(0x9281 - 0x10000));
    QCOMPARE(view.u32le(0), 0x84839281u);
    QCOMPARE(view.u32be(0), 0x81928384u);
    // The part that lies past the package is 0.
    QCOMPARE(view.u16be(3), quint16(0x8400));
    QCOMPARE(view.u32le(2), 0x8483u);
}

void TestPackageView::bytes_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("some") << 1 << 2 << QByteArray("bc");
    QTest::newRow("up to the checksum") << 1 << 9 << QByteArray("bcd");
    QTest::newRow("behind") << 5 << 1 << QByteArray();
    QTest::newRow("before") << -2 << 1 << QByteArray("a");
    QTest::newRow("negative") << 1 << -1 << QByteArray();
}

void TestPackageView::bytes()
{
    QFETCH(int, from);
    QFETCH(int, count);
    const QByteArray package("CLabcdS");
    const PackageView view(package, 0, 2, 4);
    QTEST(view.bytes(from, count), "read");
    QCOMPARE(view.bytes(), QByteArray("abcd"));
}

void TestPackageView::borrowedData()
{
    const uchar data[] = {1, 2, 3};
    const PackageView view(0x77, data, 2);
    QCOMPARE(view.n(), 2);
    QCOMPARE(int(view.d(1)), 2);
    QCOMPARE(int(view.d(2)), 0);
    QCOMPARE(PackageView(0x77, data, -1).bytes(), QByteArray());
}

void TestPackageView::findStart_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("at");
    QTest::newRow("at hand") << 1 << 1;
    QTest::newRow("further on") << 2 << 4;
    QTest::newRow("the last") << 4 << 4;
    QTest::newRow("none left") << 5 << -1;
    QTest::newRow("behind the end") << 6 << -1;
    QTest::newRow("before the beginning") << -1 << -1;
}

void TestPackageView::findStart()
{
    QFETCH(int, from);
    QTEST(Framing::findStart(QByteArray("a.bc.d"), from, '.'), "at");
    // Zeros lie around the array, which are not its own.
    QCOMPARE(Framing::findStart(QByteArray("a.bc.d"), from < 0 ? -2 : from, '\0'), -1);
}

// Sums are formed eight bytes at a time, so every length around that, with carries in every lane.
void TestPackageView::checkSum_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    for (const int count : {1, 7, 8, 9, 15, 16, 17, 40, 255}) {
        for (const int start : {0, 1}) {
            QTest::addRow("%d from %d", count, start) << start << count;
        }
    }
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("negative count") << 0 << -1;
    QTest::newRow("before the array") << -1 << 4;
    QTest::newRow("one too many") << 1 << 256;
    QTest::newRow("number overflow") << 2 << std::numeric_limits<int>::max();
}

void TestPackageView::checkSum()
{
    QFETCH(int, start);
    QFETCH(int, count);
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += char(255 - i * 37);
    }
    int wanted = 0xFF;
    if (start >= 0 && count > 0 && count <= bytes.size() - start) {
        for (int i = start; i < start + count; ++i) {
            wanted = (wanted - uchar(bytes.at(i))) & 0xFF;
        }
    }
    QCOMPARE(int(Framing::checkSum(bytes, start, count)), wanted);
}

QTEST_APPLESS_MAIN(TestPackageView)
#include "tst_packageview.moc"
