// headunit convert, and what the programs make of its files that other people have.

#include "logtools.h"
#include "testfiles.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

using TestSupport::contentOf;
using TestSupport::writeFile;

class TestConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void commandLine_data();
    void commandLine();
    void lossesAsJson();
    void valuesOfTheTypeInTheLog();
    void frameIsTold();
    void tshark();
    void editcap();
    void canUtils();
    void pythonCan();

private:
    struct Outcome
    {
        int exitCode;
        QByteArray output;
        QByteArray errors;
    };

    Outcome run(const QString &program, const QStringList &arguments);
    Outcome convert(const QStringList &words) { return run(HEADUNIT, QStringList{"convert"} + words); }
    QString path(const char *name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const char Log[] = "# orblog 1\n# type 9 CanBus_Raise_Toyota\n# start 2026-11-22T01:07:20.000Z\n"
                   "(0.020000) > 2e8101017c\n"
                   "(0.021000) < ff\n"
                   "(0.021500) < 2e2402019a3e\n"
                   "(0.500000) # silent\n"
                   "(0.600000) > ff00\n"
                   "(1.000000) < 2e200202xx\n";

// Good packages alone: 2 and 9 bytes of data, and an answer.
const char Packages[] = "# orblog 1\n# type 9 CanBus_Raise_Toyota\n# start 2026-11-22T01:07:20.000Z\n"
                        "(0.020000) > 2e8101017c\n"
                        "(0.021000) < ff\n"
                        "(0.021500) < 2e20020101db\n"
                        "(0.500000) < 2e2109000102030405060708b1\n";

// An empty beginning is that of nothing only.
bool begins(const QByteArray &text, const QString &beginning)
{
    return beginning.isEmpty() ? text.isEmpty() : QString(text).startsWith(beginning);
}

} // namespace

void TestConvert::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFile(path("in.orblog"), Packages);
}

TestConvert::Outcome TestConvert::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_folder->path()); // for what keeps settings
    environment.insert("TZ", "UTC");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(program, arguments);
    if (!process.waitForFinished(60000)) {
        return {-1, QByteArray(), (program + ": " + process.errorString()).toLocal8Bit()};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void TestConvert::commandLine_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output"); // begins with
    QTest::addColumn<QString>("errors"); // begins with
    const auto row = [](const char *name, const QStringList &words, int exitCode, const char *output,
                        const char *errors) { QTest::newRow(name) << words << exitCode << output << errors; };
    row("fine", {"in.orblog", "out.pcapng"}, 0, "4 records\n", "");
    row("help", {"--help"}, 0, "Turns one log of a serial line into another.", "");
    row("no OUT", {"in.orblog"}, 2, "", "headunit convert: OUT is required\n");
    row("ending", {"in.orblog", "out.doc"}, 2, "",
        "headunit convert: out.doc: OUT ends in one of .orblog .candump");
    row("itself", {"in.orblog", "./in.orblog"}, 2, "", "headunit convert: in.orblog would become itself\n");
    row("type", {"in.orblog", "out.hex", "--can-bus-type", "tram"}, 2, "",
        "headunit convert: --can-bus-type takes a number or a class name of decoderbox --list, not 'tram'\n");
    row("frame", {"in.orblog", "out.hex", "--frame", "wooden"}, 2, "",
        "headunit convert: --frame takes raise or xinhang, not 'wooden'\n");
    row("pattern", {"in.orblog", "out.hex", "--pattern", "("}, 2, "",
        "headunit convert: the pattern is wrong: ");
    row("values of no type", {"bare.hex", "out.csv"}, 2, "",
        "headunit convert: values have names only for a type: --can-bus-type says which\n");
    row("no such log", {"none.orblog", "out.hex"}, 1, "",
        "headunit convert: none.orblog: No such file or directory\n");
    row("no such folder", {"in.orblog", "none/out.hex"}, 1, "",
        "headunit convert: none/out.hex: No such file or directory\n");
    row("no record", {"empty.orblog", "out.hex"}, 1, "0 records\n",
        "headunit convert: empty.orblog holds no record\n");
    row("folder", {".", "out.hex"}, 1, "", "headunit convert: .: ");
}

void TestConvert::commandLine()
{
    QFETCH(QStringList, words);
    QFETCH(int, exitCode);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    writeFile(path("bare.hex"), "2E 20\n");
    writeFile(path("empty.orblog"), "# orblog 1\n");
    const Outcome outcome = convert(words);
    QVERIFY2(begins(outcome.output, output), outcome.output);
    QVERIFY2(begins(outcome.errors, errors), outcome.errors);
    QCOMPARE(outcome.exitCode, exitCode);
    QCOMPARE(QFile::exists(path("out.pcapng")), exitCode == 0 && words.size() > 1);
}

void TestConvert::lossesAsJson()
{
    writeFile(path("bad.orblog"), Log);
    const Outcome outcome = convert({"--json", "bad.orblog", "out.candump"});
    QCOMPARE(outcome.exitCode, 1);
    const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
    QCOMPARE(object.value("records").toInt(), 5);
    QCOMPARE(object.value("type").toInt(), 9);
    QCOMPARE(QJsonDocument(object.value("not-read").toArray()).toJson(QJsonDocument::Compact),
             QByteArray("[{\"count\":1,\"lines\":[9],\"what\":\"lines that hold no record\"}]"));
    QCOMPARE(QJsonDocument(object.value("lost").toArray()).toJson(QJsonDocument::Compact),
             QByteArray("[{\"count\":1,\"lines\":[],\"what\":\"states of the line\"},"
                        "{\"count\":1,\"lines\":[],\"what\":\"bytes that are no package\"}]"));
    QCOMPARE(contentOf(path("out.candump")), QByteArray("(1795309640.020000) unit 081#01\n"
                                                        "(1795309640.021000) box 0FF#R\n"
                                                        "(1795309640.021500) box 024#019A\n"
                                                        "(1795309640.600000) unit 0FF#R\n"));
}

void TestConvert::valuesOfTheTypeInTheLog()
{
    QCOMPARE(convert({"in.orblog", "out.csv"}).exitCode, 1); // 0x21 is no command of this box
    QCOMPARE(contentOf(path("out.csv")), QByteArray("seconds,direction,command,meaning,name,value\n"
                                                    "0.020000,unit,0x81,ready,,\n"
                                                    "0.021500,box,0x20,key,volume_up,pressed\n"
                                                    "0.500000,box,0x21,,,\n"));
}

// Which frame packages have is told by option, type, or what most of them look like.
void TestConvert::frameIsTold()
{
    writeFile(path("x.orblog"), "# orblog 1\n(1.0) < f00281017d\n(2.0) < f00281017d\n");
    QCOMPARE(convert({"x.orblog", "x.candump"}).exitCode, 0);
    QCOMPARE(contentOf(path("x.candump")),
             QByteArray("(0000000001.000000) box 081#01\n(0000000002.000000) box 081#01\n"));
    QCOMPARE(convert({"x.candump", "back.orblog", "--can-bus-type", "4"}).exitCode, 0);
    QVERIFY(contentOf(path("back.orblog")).endsWith("\n(1.000000) < f00281017d\n(2.000000) < f00281017d\n"));
    QCOMPARE(convert({"x.orblog", "x.candump", "--frame", "raise"}).exitCode, 1);
}

void TestConvert::tshark()
{
    QCOMPARE(convert({"in.orblog", "out.pcapng"}).exitCode, 0);
    QStringList words = {
        "-X", QString("lua_script:") + DISSECTOR, "-r", "out.pcapng", "-T", "fields", "-E", "separator=/s"};
    for (const char *const field :
         {"frame.time_epoch", "frame.packet_flags_direction", "orbcanbus.command", "orbcanbus.name",
          "orbcanbus.data", "orbcanbus.checksum_good", "orbcanbus.answer"}) {
        words << "-e" << field;
    }
    const Outcome outcome = run("tshark", words);
    QVERIFY2(outcome.exitCode == 0, outcome.errors);
    QCOMPARE(QString(outcome.output).split('\n'),
             QStringList({"1795309640.020000000 0x00000002 0x81 ready, end 01 1 ",
                          "1795309640.021000000 0x00000001     0xff",
                          "1795309640.021500000 0x00000001 0x20 key 0101 1 ",
                          "1795309640.500000000 0x00000001 0x21  000102030405060708 1 ", ""}));
}

void TestConvert::editcap()
{
    writeFile(path("bad.orblog"), Log);
    convert({"bad.orblog", "out.pcapng"});
    const Outcome outcome = run("editcap", {"-F", "pcapng", "out.pcapng", "edited.pcapng"});
    QVERIFY2(outcome.exitCode == 0, outcome.errors);
    QCOMPARE(convert({"edited.pcapng", "back.orblog"}).exitCode, 0);
    QCOMPARE(
        contentOf(path("back.orblog")),
        QByteArray(Log).replace("(1.000000) < 2e200202xx\n", "").replace("> ff00", "> ff\n(0.600000) > 00"));
}

void TestConvert::canUtils()
{
    QCOMPARE(convert({"in.orblog", "out.candump"}).exitCode, 0);
    const Outcome asc = run("log2asc", {"-I", "out.candump", "box", "unit"});
    QCOMPARE(QString(asc.output).section('\n', 3).simplified(),
             QString("0.000000 2 81 Rx d 1 01 0.001000 1 FF Rx r 0 0.001500 1 20 Rx d 2 01 01 "
                     "0.480000 CANFD 1 Rx 21 0 0 9 9 00 01 02 03 04 05 06 07 08 130000 130 1000 0 0 0 0 0"));
    // As candump shows it on a screen.
    const Outcome screen = run("sh", {"-c", "log2long < out.candump > screen.txt"});
    QVERIFY2(screen.exitCode == 0, screen.errors);
    QCOMPARE(convert({"screen.txt", "back.orblog"}).exitCode, 0);
    QCOMPARE(contentOf(path("back.orblog")),
             QByteArray(Packages).replace("# type 9 CanBus_Raise_Toyota\n", ""));
}

void TestConvert::pythonCan()
{
    QCOMPARE(convert({"in.orblog", "out.log"}).exitCode, 0);
    const Outcome outcome =
        run("/usr/bin/python3",
            {"-c",
             "import can\n"
             "messages = list(can.CanutilsLogReader('out.log'))\n"
             "for m in messages:\n"
             "    print(m.timestamp, m.channel, m.arbitration_id, m.is_remote_frame, m.is_fd, m.data.hex())\n"
             "writer = can.CanutilsLogWriter('again.log')\n"
             "for m in messages:\n"
             "    writer(m)\n"
             "writer.stop()\n"});
    QVERIFY2(outcome.exitCode == 0, outcome.errors);
    QCOMPARE(outcome.output, QByteArray("1795309640.02 unit 129 False False 01\n"
                                        "1795309640.021 box 255 True False \n"
                                        "1795309640.0215 box 32 False False 0101\n"
                                        "1795309640.5 box 33 False True 000102030405060708\n"));
    QCOMPARE(convert({"again.log", "back.orblog"}).exitCode, 0);
    QCOMPARE(contentOf(path("back.orblog")),
             QByteArray(Packages).replace("# type 9 CanBus_Raise_Toyota\n", ""));
}

QTEST_GUILESS_MAIN(TestConvert)
#include "tst_convert.moc"
