// Any file is read as a log without harm: good ones of every format, with bytes changed, left out and cut.

#include "hostilelog.h"

#include <QTest>

#include <random>

class TestHostileLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spoiledLogs_data();
    void spoiledLogs();
};

void TestHostileLog::spoiledLogs_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("ours") << QByteArray(
        "# orblog 1\n# type 7\n# start 2026-11-22T01:07:20.123Z\n(0.02) < 2e8101017cff0011\n"
        "(0.021) > ff2e\n(0.6) ! 00\n(3) # lost: gone\n");
    QTest::newRow("box's own") << QByteArray(
        "   0.020 unit>box 2e8101017c ready\n   3.000 box 2e29 silent\n");
    QTest::newRow("candump") << QByteArray("(1436509052.249713) box 021#0500\n(1436509052.5) unit 0FF#R\n"
                                           "  box  021  [09]  00 01 02 03 04 05 06 07 08\n");
    QTest::newRow("hexadecimal lines")
        << QByteArray("[01:07:20.123] RX: 0x2E,0x20\n2026-11-22T01:07:20+01:00 TX 2e2002\n"
                      "1234 > 2Eh 20h\n00000010: 2e20 0201  . .\n12.5s 2E:20 # \n");
    QTest::newRow("pcapng") << QByteArray::fromHex(
        "0a0d0d0a1c0000004d3c2b1a01000000ffffffffffffffff1c000000"
        "01000000140000009300000000000000"
        "14000000"
        "060000003400000000000000000000000100000005000000050000002e8101017c000000020004000100000000000000"
        "34000000");
}

void TestHostileLog::spoiledLogs()
{
    QFETCH(QByteArray, file);
    QVERIFY(HostileLog::read(file, false) > 0);
    std::mt19937 random(1);
    for (int run = 0; run < 400; ++run) {
        QByteArray spoiled = file;
        for (unsigned int change = random() % 4 + 1; change > 0; --change) {
            const int at = int(random() % unsigned(spoiled.size()));
            switch (random() % 4) {
            case 0:
                spoiled[at] = char(random());
                break;
            case 1:
                spoiled[at] = char(spoiled.at(at) ^ 1 << random() % 8);
                break;
            case 2:
                spoiled.remove(at, int(random() % 4));
                break;
            default:
                spoiled.insert(at, spoiled.mid(int(random() % unsigned(spoiled.size())), 20));
            }
            spoiled += spoiled.isEmpty() ? "x" : "";
        }
        HostileLog::read(spoiled, run % 8 == 0);
        HostileLog::read(spoiled.left(int(random() % unsigned(spoiled.size()))), false);
    }
}

QTEST_GUILESS_MAIN(TestHostileLog)
#include "tst_hostilelog.moc"
