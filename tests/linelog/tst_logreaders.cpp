// What the readers make of logs as they come: our own, other programs', and files that are none.

#include "logtools.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTest>
#include <QTime>

class TestLogReaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void patterns_data();
    void patterns();
    void refusals_data();
    void refusals();
    void header();
    void timesGoOn_data();
    void timesGoOn();
    void oneLineOfAGibibyte();
    void longestLine();
    void brokenCaptures_data();
    void brokenCaptures();
};

void TestLogReaders::lines_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("records");
    QTest::addColumn<QStringList>("skipped");
    const auto row = [](const char *name, const QByteArray &file, const QStringList &records,
                        const QStringList &skipped = {}) {
        QTest::newRow(name) << file << records << skipped;
    };
    const QStringList one = {"(0.000000) < 2e200201"};

    row("ours", "# orblog 1\n(0.02) < 2e 81\n(1.000001) > FF\n(2) ! 00\n(3.5) #  lost:\tgone \n",
        {"(0.020000) < 2e81", "(1.000001) > ff", "(2.000000) ! 00", "(3.500000) # lost: gone"});
    row("ours, wrong lines",
        "# orblog 1\n(1.0) < 2e\n(1.0) < 2\n(1.0) < xx\n(1.0) ? 2e\n(x) < 2e\n(1.0) <\n1.0 < "
        "2e\n(99999999999999) < 00\n"
        "(2.0) > ff\n",
        {"(1.000000) < 2e", "(2.000000) > ff"}, {"7 lines that hold no record (lines 3, 4, 5, 6, 7, 8, 9)"});
    row("ours, cut", "# orblog 1\n(1.0) < 2e\n(2.0) < 2e8", {"(1.000000) < 2e"},
        {"1 last line, cut in the middle (line 3)"});
    row("ours, times run backwards", "# orblog 1\n(2.0) < 2e\n(1.0) < 2f\n(3.0) < 30\n",
        {"(2.000000) < 2e", "(2.000000) < 2f", "(3.000000) < 30"},
        {"1 times that run backwards, set to the one before (line 3)"});
    row("ours, without its header", "(1.0) < 2e\r\n(2.0) > ff\r\n", {"(1.000000) < 2e", "(2.000000) > ff"});
    row("ours, two-byte characters",
        QByteArray("\xFF\xFE") + QByteArray::fromHex("280031002e00300029002000") +
            QByteArray::fromHex("3c002000320065000a00"),
        {"(1.000000) < 2e"});

    row("box's own",
        "   0.020 unit>box 2e8101017c ready\n   0.021 box>unit 2e2902 steering\n"
        "   3.000 box 2e2902 no acknowledgement of steering: silent until started again\n",
        {"(0.020000) > 2e8101017c", "(0.021000) < 2e2902",
         "(3.000000) # 2e2902 no acknowledgement of steering: silent until started again"});

    row("candump -l", "(1436509052.249713) box 020#0101\n(1436509053.25) unit 0FF#R\n",
        {"(0.249713) < 2e20020101db", "(1.250000) > ff"});
    row("candump -l, long", "(0.5) box 020##0000102030405060708\n",
        {"(0.500000) < 2e2009000102030405060708b2"});
    row("candump, screen",
        "  box  020   [2]  01 01\n (2.5)  unit  0FF   [0]  remote request\n"
        " (2026-11-22 01:07:20.5)  vcan0  RX - -  020   [2]  01 01   '..'\n",
        {"(0.000000) < 2e20020101db", "(2.500000) > ff", "(2.500000) < 2e20020101db"});
    row("candump, others' identifiers", "(1.0) can0 7E8#0101\n(2.0) can0 12345678#01\n(3.0) can0 020#0101\n",
        {"(3.000000) < 2e20020101db"},
        {"2 frames with an identifier that is no command of a box (lines 1, 2)"});

    const char *const spellings[] = {"2E200201",
                                     "2e 20 02 01",
                                     "0x2E 0x20 0x02 0x01",
                                     "0x2E,0x20,0x2,0x1",
                                     "2Eh 20h 02h 01h",
                                     "\\x2E\\x20\\x02\\x01",
                                     "2E:20:02:01",
                                     "2E-20-02-01",
                                     "{0x2E, 0x20, 0x02, 0x01};",
                                     "\"2E 20 02 01\"",
                                     "2E 20 02 01  # volume up",
                                     "2E 20 02 01 // volume up",
                                     "2E 20 02 01 volume up",
                                     "2E 20 02 01\tvolume up",
                                     "< 2E 20 02 01",
                                     "RX: 2E 20 02 01",
                                     "[read] 2E 20 02 01",
                                     "COM3 Rx 2E 20 02 01",
                                     "2E20 0201",
                                     "00000000  2e 20 02 01                                       |. ..|",
                                     "00000000: 2e20 0201                                . .."};
    for (const char *const spelling : spellings) {
        row(spelling, QByteArray(spelling) + '\n', one);
    }
    const char *const toBox[] = {"> 2E 20 02 01",          "TX 2E 20 02 01",   "[Send] 2E 20 02 01",
                                 "unit->box: 2E 20 02 01", "WRITE 0x2E200201", "--> 2E 20 02 01"};
    for (const char *const spelling : toBox) {
        row(spelling, QByteArray(spelling) + '\n', {"(0.000000) > 2e200201"});
    }
    row("comments and prose",
        "# a note\n; one more\n// and one\n\n* and one\nPort opened\nit can be added\n2E 20 02 01\n2E 2\n",
        one, {"3 lines that hold no record (lines 6, 7, 9)"});
    row("states in comments", "# (1.0) # lost: gone\n2.0 < 2e 20\n",
        {"(1.000000) # lost: gone", "(2.000000) < 2e20"});
}

void TestLogReaders::lines()
{
    QFETCH(QByteArray, file);
    const LogTools::Log log = LogTools::read(file);
    QCOMPARE(log.error, QString());
    QTEST(log.records, "records");
    QTEST(log.skipped, "skipped");
}

void TestLogReaders::patterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("records");
    QTest::addColumn<QString>("error");
    QTest::newRow("all groups") << "^(?<dir>\\w+);(?<hex>[^;]*);(?<time>.*)$"
                                << QByteArray("R;2E.20;x\nW;2E 20;0:00:01.5\nR;2E,20;0:00:02\nR;;3\n")
                                << QStringList{"(0.000000) > 2e20", "(0.500000) < 2e20"} << "";
    QTest::newRow("hex alone") << "data=(?<hex>\\S+)" << QByteArray("a data=2e20 b\nnothing\n")
                               << QStringList{"(0.000000) < 2e20"} << "";
    QTest::newRow("no group") << "(.*)" << QByteArray("2e\n") << QStringList()
                              << "the pattern has no group named hex: (?<hex>...)";
    QTest::newRow("wrong") << "(?<hex>" << QByteArray("2e\n") << QStringList()
                           << "the pattern is wrong: missing closing parenthesis";
}

void TestLogReaders::patterns()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, pattern);
    LineLogFormats::ReadOptions options;
    options.pattern = pattern;
    const LogTools::Log log = LogTools::read(file, options);
    QTEST(log.error, "error");
    QTEST(log.records, "records");
}

void TestLogReaders::refusals_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << QByteArray() << "the file is empty";
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16)
                             << "this is no log, but a binary file";
    QTest::newRow("prose") << QByteArray("Dear all,\nthe box is silent.\n")
                           << "no line of it looks like a log of a serial line";
    QTest::newRow("later version") << QByteArray("# orblog 2\n(1.0) < 2e\n")
                                   << "this log is of a later version than this program knows";
    QTest::newRow("old capture")
        << QByteArray("\xD4\xC3\xB2\xA1\x02\0\x04\0", 8)
        << "this is an old pcap file; `editcap -F pcapng IN OUT` makes a pcapng file of it";
}

void TestLogReaders::refusals()
{
    QFETCH(QByteArray, file);
    const LogTools::Log log = LogTools::read(file);
    QTEST(log.error, "error");
    QVERIFY(log.records.isEmpty());
}

void TestLogReaders::header()
{
    const LogTools::Log log = LogTools::read("# orblog 1\n# type 7 CanBus_Raise_Honda\n# port /dev/ttyUSB0\n"
                                             "# line 38400 8N1\n# start 2026-11-22T01:07:20.123Z\n# a note\n"
                                             "(1.0) < 2e\n# type 9\n");
    QCOMPARE(log.header.type, QString("7 CanBus_Raise_Honda"));
    QCOMPARE(log.header.port, QString("/dev/ttyUSB0"));
    QCOMPARE(log.header.settings, QString("38400 8N1"));
    QCOMPARE(log.header.start, QDateTime(QDate(2026, 11, 22), QTime(1, 7, 20, 123), Qt::UTC));
    QVERIFY(log.skipped.isEmpty());
}

// Two lines of bytes "2E 20" with these times in front.
void TestLogReaders::timesGoOn_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("times");
    QTest::addColumn<QString>("start");
    const auto row = [](const char *first, const char *second, const char *times, const char *start = "") {
        QTest::newRow(first) << first << second << times << start;
    };
    row("0.25", "1.5", "0.250000 1.500000");
    row("[0.25]", "[1.5]", "0.250000 1.500000");
    row("0.25s", "1.5 s", "0.250000 1.500000");
    row("+0,25", "+1,5", "0.250000 1.500000");
    row("250 ms", "1500ms", "0.250000 1.500000");
    row("250.5ms", "1500.25 ms", "0.250500 1.500250");
    row("250000us", "1500000us", "0.250000 1.500000");
    row("250:", "1500:", "0.250000 1.500000");
    row("01:07:20.5", "01:07:21.75", "0.000000 1.250000");
    row("1:07:20,5 PM", "1:07:21,75 PM", "0.000000 1.250000");
    row("01:07:20:500", "01:07:21:750", "0.000000 1.250000");
    row("23:59:59.5", "00:00:00.5", "0.000000 1.000000");
    row("Nov 22 01:07:20", "Nov 22 01:07:22", "0.000000 2.000000");
    row("2026-11-22T01:07:20.5Z", "2026-11-22T01:07:21.75Z", "0.500000 1.750000", "2026-11-22T01:07:20.000Z");
    row("2026-11-22 01:07:20.5+01:00", "2026-11-22 00:07:21+0000", "0.500000 1.000000",
        "2026-11-22T00:07:20.000Z");
    row("[2026/11/22 01:07:20.5]", "[2026/11/22 01:07:21.5]", "0.500000 1.500000",
        "2026-11-22T01:07:20.000Z");
    row("22.11.2026 01:07:20.5", "23.11.2026 01:07:20.5", "0.500000 86400.500000",
        "2026-11-22T01:07:20.000Z");
    row("11/22/2026, 1:07:20 AM", "11/22/2026, 1:07:20 PM", "0.000000 43200.000000",
        "2026-11-22T01:07:20.000Z");
    row("1795309640.5", "1795309641.75", "0.500000 1.750000", "2026-11-22T01:07:20.000Z");
    row("1795309640500", "1795309641750", "0.500000 1.750000", "2026-11-22T01:07:20.000Z");
    row("1.0", "", "1.000000 1.000000");
}

void TestLogReaders::timesGoOn()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    for (const char *const direction : {" RX ", " < ", " "}) {
        const LogTools::Log log =
            LogTools::read((first + direction + "2E 20\n" + second + direction + "2E 21 22\n").toUtf8());
        QStringList times;
        for (const QString &record : log.records) {
            times << record.section(')', 0, 0).mid(1);
        }
        QTEST(times.join(' '), "times");
        QTEST(log.header.start.toString("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'"), "start");
        QCOMPARE(log.records.value(1).section(' ', 2), QString("2e2122"));
        QVERIFY(log.hasTimes);
    }
    QVERIFY(!LogTools::read("2E 20\n2E 21\n").hasTimes);
    QCOMPARE(LogTools::read("2E 20\n2E 21\n").records.last(), QString("(0.050000) < 2e21"));
}

namespace {

// A line of 'A' that a machine need not hold, and a record behind it.
class LongLine : public QIODevice
{
public:
    explicit LongLine(qint64 size) : m_left(size) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const QByteArray tail("\n(1.0) < 2e\n");
        if (m_left > 0) {
            const qint64 count = qMin(size, m_left);
            memset(data, 'A', size_t(count));
            m_left -= count;
            return count;
        }
        const qint64 count = qMin(size, qint64(tail.size() - m_tailAt));
        memcpy(data, tail.constData() + m_tailAt, size_t(count));
        m_tailAt += int(count);
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 m_left;
    int m_tailAt = 0;
};

#ifdef IS_SANITIZED
const qint64 MostGrowth = 512 << 20; // bytes; the sanitizer holds back what is freed
#else
const qint64 MostGrowth = 8 << 20; // bytes
#endif

qint64 residentMemory()
{
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * 4096 : 0;
}

} // namespace

void TestLogReaders::oneLineOfAGibibyte()
{
    const qint64 before = residentMemory();
    OrbLogReader reader(std::make_unique<LongLine>(qint64(1) << 30));
    LineRecord record;
    QVERIFY(reader.next(&record));
    QCOMPARE(record.bytes.toHex(), QByteArray("2e"));
    QCOMPARE(reader.skipped().texts(), QStringList("1 lines of more than 64 KiB (line 1)"));
    QVERIFY(residentMemory() - before < MostGrowth);
}

// To the byte: a line of 64 KiB is read, the next longer one is not.
void TestLogReaders::longestLine()
{
    const QByteArray head = "(1.0) < ";
    const QByteArray digits(LineSource::LongestLine - head.size(), '0');
    const LogTools::Log log = LogTools::read("# orblog 1\n" + head + digits + '\n' + head + digits + "00\n");
    QCOMPARE(log.records.size(), 1);
    QCOMPARE(log.records.first().section(' ', 2).size(), digits.size());
    QCOMPARE(log.skipped, QStringList("1 lines of more than 64 KiB (line 3)"));
}

// A capture of three packets, with one place changed.
void TestLogReaders::brokenCaptures_data()
{
    QTest::addColumn<int>("at"); // offset of a block's length or so, from the end of the file
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("records");
    QTest::addColumn<QString>("skipped");
    QTest::newRow("as it is") << 0 << QByteArray() << 3 << "";
    QTest::newRow("cut") << -10 << QByteArray() << 2 << "1 last block, cut in the middle (line 5)";
    QTest::newRow("other length at the end")
        << -4 << QByteArray("\x40\0\0\0", 4) << 2
        << "1 blocks that no such file has; nothing behind them was read (line 5)";
    QTest::newRow("length of nothing")
        << -44 << QByteArray("\0\0\0\0", 4) << 2
        << "1 blocks that no such file has; nothing behind them was read (line 5)";
    QTest::newRow("length of everything")
        << -44 << QByteArray("\xFC\xFF\xFF\xFF", 4) << 2 << "1 blocks of more than 1 MiB (line 5)";
    QTest::newRow("packet longer than its block")
        << -28 << QByteArray("\xFF\xFF\xFF\xFF", 4) << 2
        << "1 packets that do not fit their block or have no interface (line 5)";
    QTest::newRow("no such interface")
        << -40 << QByteArray("\x07\0\0\0", 4) << 2
        << "1 packets that do not fit their block or have no interface (line 5)";
}

void TestLogReaders::brokenCaptures()
{
    QFETCH(int, at);
    QFETCH(QByteArray, bytes);
    QByteArray file = LogTools::write("# orblog 1\n(1) < 2e0100fe\n(2) < 2e0200fd\n(3) > 2e0300fc\n",
                                      LineLogFormats::Pcapng)
                          .file;
    if (at < 0) {
        file = bytes.isEmpty() ? file.left(file.size() + at)
                               : file.replace(file.size() + at, bytes.size(), bytes);
    }
    const LogTools::Log log = LogTools::read(file);
    QTEST(int(log.records.size()), "records");
    QTEST(log.skipped.value(0), "skipped");
}

QTEST_GUILESS_MAIN(TestLogReaders)
#include "tst_logreaders.moc"
