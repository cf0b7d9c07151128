// What the writers make of our own log, and that it comes back as it was but for what is counted.

#include "linelogring.h"
#include "linevaluesource.h"
#include "logtools.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

class TestLogWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrips_data();
    void roundTrips();
    void candumpText();
    void csvText();
    void longStates();
    void fullDisk();
    void ringKeepsAMinute();
    void ringKeepsFourMebibytes();
};

namespace {

const char Header[] = "# orblog 1\n# type 7 CanBus_Raise_Honda\n# port /dev/ttyUSB0\n# line 38400 8N1\n"
                      "# start 2026-11-22T01:07:20.000Z\n";

// A frame of the Raise kind with so many data bytes.
QByteArray frame(int size)
{
    return FrameFormat::raise().frame({0x21, QByteArray(size, '\x55')}).toHex();
}

} // namespace

void TestLogWriters::roundTrips_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("records"); // parted by '|'
    QTest::addColumn<QString>("back");    // empty: as they were
    QTest::addColumn<QString>("losses");
    QTest::addColumn<QString>("changes");
    const QString packages =
        QString("(0.020000) > 2e8101017c|(0.021000) < ff|(0.021000) < 2e2900d6|(0.029999) > ff|"
                "(61.000000) < %1|(61.000001) < %2|(61.000001) < %3")
            .arg(QString(frame(8)), QString(frame(9)), QString(frame(64)));
    const QString rest = "(0.100000) # opened|(0.200000) ! 0011|(0.300000) # lost: gone|(0.300000) # back";
    const QString chunks = "(0.001000) < 2e81|(0.002000) < 01017c2e2900d6";
    const QString cut = "(0.002000) < 2e8101017c|(0.002000) < 2e2900d6";
    const QString isCut = "2 chunks that were not one package each, cut or joined";
    const QString noHeader = "3 lines of the header, for which a CAN log has no place";
    const auto row = [](const char *name, LineLogFormats::Format format, const QString &records,
                        const QString &back = "", const QString &losses = "", const QString &changes = "") {
        QTest::newRow(name) << int(format) << records << (back.isEmpty() ? records : back) << losses
                            << changes;
    };
    row("candump, packages", LineLogFormats::Candump, packages, "", "", noHeader);
    row("candump, long packages", LineLogFormats::Candump,
        "(0.100000) < " + frame(65) + "|(0.200000) < " + frame(0) + "|(0.300000) > " + frame(255),
        "(0.200000) < " + frame(0), "2 packages with more than 64 bytes of data", noHeader);
    row("candump, rest", LineLogFormats::Candump, rest + "|(0.400000) > ff", "(0.400000) > ff",
        "3 states of the line|2 bytes that are no package", noHeader);
    row("candump, chunks", LineLogFormats::Candump, chunks, cut, "", noHeader + '|' + isCut);
    row("pcapng, packages", LineLogFormats::Pcapng, packages);
    row("pcapng, long packages", LineLogFormats::Pcapng, "(1.000000) < " + frame(255));
    row("pcapng, rest", LineLogFormats::Pcapng, rest + '|' + "(0.400000) > ff" + '|' + "(0.500000) # silent");
    row("pcapng, chunks", LineLogFormats::Pcapng, chunks, cut, "", isCut);
    row("hex, packages", LineLogFormats::HexLines, packages);
    row("hex, rest and chunks", LineLogFormats::HexLines, chunks + '|' + QString(rest).replace("(", "(1"));
    row("ours", LineLogFormats::OrbLogText, chunks + '|' + QString(rest).replace("(", "(1"));
}

void TestLogWriters::roundTrips()
{
    QFETCH(int, format);
    QFETCH(QString, records);
    QFETCH(QString, back);
    const QByteArray log = Header + records.replace('|', '\n').toUtf8() + '\n';
    const LogTools::Written written = LogTools::write(log, LineLogFormats::Format(format));
    QTEST(written.losses.join('|'), "losses");
    QTEST(written.changes.join('|'), "changes");

    const LogTools::Log again = LogTools::read(written.file);
    QCOMPARE(again.records.join('|'), back);
    QCOMPARE(again.skipped, QStringList());
    const bool hasHeader = format != LineLogFormats::Candump;
    QCOMPARE(again.header.type, hasHeader ? QString("7 CanBus_Raise_Honda") : QString());
    QCOMPARE(again.header.settings, hasHeader ? QString("38400 8N1") : QString());
    QCOMPARE(again.header.start, QDateTime(QDate(2026, 11, 22), QTime(1, 7, 20), Qt::UTC));
}

void TestLogWriters::candumpText()
{
    const QByteArray log =
        QByteArray("# orblog 1\n(0.02) < ") + frame(8) + "\n(1.5) > " + frame(9) + "\n(2) < f3\n";
    QCOMPARE(LogTools::write(log, LineLogFormats::Candump).file,
             QByteArray("(0000000000.020000) box 021#5555555555555555\n"
                        "(0000000001.500000) unit 021##0555555555555555555\n"
                        "(0000000002.000000) box 0F3#R\n"));
}

namespace {

class SomeValues : public LineValueSource
{
public:
    Meaning meaning(const BoxPackage &package, bool isTowardsUnit) override
    {
        return isTowardsUnit
                   ? Meaning{"climate, left", {{"left", "21"}, {"name", "a \"b\""}, {"sum", "=1+1"}}}
               : package.command == 0x81 ? Meaning{"ready", {}}
                                         : Meaning();
    }
};

} // namespace

void TestLogWriters::csvText()
{
    SomeValues values;
    const LogTools::Written written = LogTools::write(
        "# orblog 1\n(1.5) > 2e8101017c\n(2) < 2e2900d6\n(2) < ff\n(3) > 2e2900d6\n(4) # lost\n",
        LineLogFormats::Csv, {&FrameFormat::raise(), &values});
    QCOMPARE(written.file, QByteArray("seconds,direction,command,meaning,name,value\n"
                                      "1.500000,unit,0x81,ready,,\n"
                                      "2.000000,box,0x29,\"climate, left\",left,21\n"
                                      "2.000000,box,0x29,\"climate, left\",name,\"a \"\"b\"\"\"\n"
                                      "2.000000,box,0x29,\"climate, left\",sum,'=1+1\n"
                                      "3.000000,unit,0x29,,,\n"));
    QCOMPARE(written.losses, QStringList({"1 packages of unknown commands, whose values have no names",
                                          "1 states of the line"}));
}

// More of them than a packet's comment holds are counted, not cut.
void TestLogWriters::longStates()
{
    QByteArray log = "# orblog 1\n";
    for (int i = 0; i < 30; ++i) {
        log += "(1.0) # " + QByteArray(4000, 'x') + '\n';
    }
    const LogTools::Written written = LogTools::write(log + "(2) < ff\n", LineLogFormats::Pcapng);
    QCOMPARE(LogTools::read(written.file).records.size() + 15 + 1, 30 + 1);
    QCOMPARE(written.losses, QStringList("16 states of the line, too many between two packets"));
}

void TestLogWriters::fullDisk()
{
    for (const auto format : {LineLogFormats::OrbLogText, LineLogFormats::Candump, LineLogFormats::Pcapng}) {
        auto device = std::make_unique<QFile>("/dev/full");
        QVERIFY(device->open(QIODevice::WriteOnly));
        const auto writer = LineLogFormats::writer(format, std::move(device), {});
        writer->begin({});
        for (int i = 0; i < 5000; ++i) {
            writer->write({i, LineRecord::ToUnit, QByteArray::fromHex("2e8101017c"), {}});
        }
        QVERIFY(!writer->finish());
        QCOMPARE(writer->error(), QString("No space left on device"));
    }
    QString error;
    QVERIFY(!LineLogRing().save("/nowhere/line.orblog", &error));
    QCOMPARE(error, QString("/nowhere/line.orblog: No such file or directory"));
}

void TestLogWriters::ringKeepsAMinute()
{
    LineLogRing ring;
    LineLogHeader header;
    header.type = "9 CanBus_Raise_Toyota";
    ring.setHeader(header);
    for (qint64 second = 0; second <= 90; ++second) {
        ring.add({second * 1000000, LineRecord::ToUnit, QByteArray(1, char(second)), {}});
    }
    QCOMPARE(ring.records().size(), size_t(61));
    QTemporaryDir folder;
    QString error;
    QVERIFY(ring.save(folder.filePath("line.orblog"), &error));
    QFile file(folder.filePath("line.orblog"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const LogTools::Log log = LogTools::read(file.readAll());
    QCOMPARE(log.header, header);
    QCOMPARE(log.records.first(), QString("(30.000000) < 1e"));
    QCOMPARE(log.records.last(), QString("(90.000000) < 5a"));
}

// However the bytes come: the estimate counts what each chunk takes besides them.
void TestLogWriters::ringKeepsFourMebibytes()
{
    for (const int size : {1, 4096, 1000000}) {
        LineLogRing ring;
        for (int i = 0; i < 100000 && i < 20000000 / size; ++i) {
            QByteArray chunk(size, 'x');
            chunk.reserve(size + 65536);
            ring.add({1, LineRecord::ToUnit, chunk, {}});
        }
        qint64 bytes = 0;
        for (const LineRecord &record : ring.records()) {
            bytes += record.bytes.capacity() + qint64(sizeof record);
        }
        QVERIFY2(bytes > 1000000 && bytes <= ring.memory() && ring.memory() <= LineLogRing::MostMemory,
                 qPrintable(QString::number(bytes)));
    }
}

QTEST_GUILESS_MAIN(TestLogWriters)
#include "tst_logwriters.moc"
