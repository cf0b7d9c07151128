// The program's sub-commands for a line and its logs, with the real plug-in.

#include "boxcatalog.h"
#include "decoderbox.h"
#include "golden.h"
#include "headunitrun.h"
#include "linelogformats.h"
#include "ptybox.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

#include <memory>

namespace {

// One run of the program to its end, during which this process's event loop runs.
class Run
{
public:
    explicit Run(const QStringList &arguments)
    {
        m_process.start(HEADUNIT, arguments);
        m_process.closeWriteChannel();
    }
    ~Run()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    int exitCode()
    {
        const bool isOver =
            PtyBox::waitUntil([this] { return m_process.state() == QProcess::NotRunning; }, 60000);
        return isOver && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    QByteArray complaints() { return m_process.readAllStandardError(); }
    QJsonDocument json() { return QJsonDocument::fromJson(output()); }
    QByteArray output() { return m_process.readAllStandardOutput(); }

private:
    QProcess m_process;
};

// The records of a log but for their header.
QVector<LineRecord> recordsOf(const QString &path)
{
    QString error;
    const std::unique_ptr<LineLogReader> reader = LineLogFormats::reader(path, {}, &error);
    QVector<LineRecord> records;
    for (LineRecord record; reader && reader->next(&record);) {
        records << record;
    }
    return records;
}

// What went towards the unit, or all the rest.
QVector<LineRecord> partOf(const QVector<LineRecord> &records, bool isTowardsUnit)
{
    QVector<LineRecord> part;
    for (const LineRecord &record : records) {
        if (record.isTowardsUnit() == isTowardsUnit) {
            part << record;
        }
    }
    return part;
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text) == text.size();
}

const QStringList Virtual = {"--headless", "--virtual-clock"};

} // namespace

class TestLineCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void replayOfARecording();
    void gaps();
    void replays_data();
    void replays();
    void tells_data();
    void tells();
    void identifies_data();
    void identifies();
    void checksABox();
    void checksAPortInUse();
    void replaysALostLine();
    void recordsALostLine_data();
    void recordsALostLine();
    void portThatVanishes_data();
    void portThatVanishes();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

// A drive of the virtual box, recorded.
void TestLineCommands::initTestCase()
{
    Run run(Virtual +
            QStringList{"--can-bus-type", "7", "--decoder-box", DRIVE, "--record", path("honda.orblog")});
    QCOMPARE(run.exitCode(), 0);
}

void TestLineCommands::replayOfARecording()
{
    Run run(QStringList{"replay", path("honda.orblog"), "--record", path("again.orblog")} + Virtual);
    QCOMPARE(run.exitCode(), 1); // the drive has bad packages
    const QVector<LineRecord> records = recordsOf(path("honda.orblog"));
    const QVector<LineRecord> again = recordsOf(path("again.orblog"));
    QVERIFY(records.size() > 100);
    QCOMPARE(again.size(), records.size());
    for (bool isTowardsUnit : {true, false}) {
        const QVector<LineRecord> wanted = partOf(records, isTowardsUnit);
        const QVector<LineRecord> found = partOf(again, isTowardsUnit);
        QCOMPARE(found.size(), wanted.size());
        // The unit looks every 4 ms, so what it says may come one look earlier or later.
        const int tolerance = isTowardsUnit ? 2000 : 6000;
        for (int i = 0; i < wanted.size(); ++i) {
            LineRecord record = found.at(i);
            QVERIFY2(qAbs(record.microseconds - wanted.at(i).microseconds) <= tolerance,
                     qPrintable(QString::number(i)));
            record.microseconds = wanted.at(i).microseconds;
            QCOMPARE(record, wanted.at(i));
        }
    }
}

// Chunks that follow each other more closely than the unit looks keep their distance.
void TestLineCommands::gaps()
{
    QByteArray text = "# orblog 1\n# type 7 CanBus_Raise_Honda\n";
    const int gaps[] = {3000, 5700, 12300, 50100, 450000}; // us
    qint64 time = 100300;
    for (int i = 0; time < 60000000; ++i) {
        text += "(" + QByteArray::number(double(time) / 1e6, 'f', 6) + ") < 2e20020101db\n";
        time += gaps[i * 7 % 5];
    }
    QVERIFY(write(path("gaps.orblog"), text));
    Run run(QStringList{"replay", path("gaps.orblog"), "--record", path("gaps-again.orblog")} + Virtual);
    QCOMPARE(run.exitCode(), 0);
    const QVector<LineRecord> wanted = recordsOf(path("gaps.orblog"));
    const QVector<LineRecord> found = partOf(recordsOf(path("gaps-again.orblog")), true);
    QCOMPARE(found.size(), wanted.size());
    for (int i = 1; i < wanted.size(); ++i) {
        QCOMPARE(found.at(i).bytes, wanted.at(i).bytes);
        const qint64 wantedGap = wanted.at(i).microseconds - wanted.at(i - 1).microseconds;
        const qint64 foundGap = found.at(i).microseconds - found.at(i - 1).microseconds;
        QVERIFY2(qAbs(foundGap - wantedGap) <= 2000, qPrintable(QString("%1: %2").arg(i).arg(foundGap)));
    }
}

void TestLineCommands::replays_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("counts"); // packages explained acknowledged unknown bad skipped
    const QByteArray head = "# orblog 1\n# type 7 CanBus_Raise_Honda\n";
    // A key, doors, a command that nobody knows, and no key: the box knows that one, and nothing comes of it.
    const QByteArray log = head + "(1.0) < 2e20020101db\n(2.0) < 2e240140 9a\n(3.0) < 2e2401409a\n"
                                  "(4.0) < 2ed10200c06c\n(5.0) < 2e20020001dc\n";
    const QByteArray bad = head + "(1.0) < 2e20020101dc\n";
    QTest::newRow("all") << log << "" << 0 << "5 3 1 1 0 0";
    QTest::newRow("as fast as it goes") << log << "--speed max" << 0 << "5 3 1 1 0 0";
    QTest::newRow("answer by answer") << log << "--speed 100 --wait-ack" << 0 << "5 3 1 1 0 0";
    QTest::newRow("a part") << log << "--from 1.5 --to 4" << 0 << "3 2 0 1 0 0";
    QTest::newRow("until a command") << log << "--until 0x24" << 0 << "2 2 0 0 0 0";
    QTest::newRow("until a call") << log << "--until call=simulateKey" << 0 << "1 1 0 0 0 0";
    QTest::newRow("until what never comes") << log << "--until call=nothing" << 1 << "5 3 1 1 0 0";
    QTest::newRow("bad package") << bad << "" << 1 << "0 0 0 0 1 6";
    QTest::newRow("line that is none") << log + "hello\n"
                                       << "" << 1 << "5 3 1 1 0 0";
    QTest::newRow("type that is named") << log << "--can-bus-type 15" << 0 << "5 0 0 5 0 0";
    QTest::newRow("no type") << QByteArray("# orblog 1\n(1.0) < 2e20020101db\n") << "" << 2 << "";
    QTest::newRow("no log") << QByteArray() << "" << 1 << "";
    QTest::newRow("speed") << log << "--speed 0" << 2 << "";
    QTest::newRow("box as well") << log << "--port /dev/x" << 2 << "";
}

void TestLineCommands::replays()
{
    QFETCH(QByteArray, log);
    QFETCH(QString, options);
    QFETCH(QString, counts);
    QVERIFY(write(path("log.orblog"), log));
    Run run(QStringList{"replay", path("log.orblog"), "--json"} + Virtual +
            options.split(' ', Qt::SkipEmptyParts));
    QTEST(run.exitCode(), "exitCode");
    const QJsonObject answer = run.json().object();
    QStringList found;
    for (const char *key :
         {"packages", "explained", "acknowledged-only", "unknown", "bad", "skipped-bytes"}) {
        if (answer.contains(QLatin1String(key))) {
            found << QString::number(answer.value(QLatin1String(key)).toInt());
        }
    }
    QCOMPARE(found.join(' '), counts);
}

void TestLineCommands::tells_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("text"); // file of all that is told; empty for nothing
    QTest::newRow("rows") << QStringList{"inspect", LOGS "/toyota.orblog"} << 0 << "inspect-toyota.txt";
    QTest::newRow("rows of a filter")
        << QStringList{"inspect", (LOGS "/toyota.orblog"), "--filter", "call=setTemp* changed", "--json"} << 0
        << "inspect-toyota-json.txt";
    QTest::newRow("what only a screen shows")
        << QStringList{"inspect", LOGS "/volkswagen.orblog", "--filter", "screen=*range* cmd=0x50"} << 0
        << "inspect-screens.txt";
    QTest::newRow("no row") << QStringList{"inspect", (LOGS "/toyota.orblog"), "--filter", "cmd=0x99"} << 1
                            << "";
    QTest::newRow("bad packages") << QStringList{"inspect", path("honda.orblog")} << 1 << "";
    QTest::newRow("no filter") << QStringList{"inspect", (LOGS "/toyota.orblog"), "--filter", "good"} << 2
                               << "";
    QTest::newRow("no type") << QStringList{"inspect", LOGS "/toyota.orblog", "--can-bus-type", "x"} << 2
                             << "";
    QTest::newRow("keys") << QStringList{"keys", LOGS "/gm.orblog"} << 1 << "keys-gm.txt";
}

void TestLineCommands::tells()
{
    QFETCH(QStringList, words);
    QFETCH(int, exitCode);
    QFETCH(QString, text);
    Run run(words);
    QCOMPARE(run.exitCode(), exitCode);
    if (!text.isEmpty()) {
        const QStringList lines = QString::fromUtf8(run.output()).trimmed().split('\n');
        const QString difference = TestSupport::goldenDifference(QString(GOLDEN_FOLDER "/") + text, lines);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void TestLineCommands::identifies_data()
{
    QTest::addColumn<QString>("log");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSure");
    const QString logs = LOGS "/";
    // Half of what these three boxes said is of commands that the decoder does not know.
    QTest::newRow("volkswagen") << logs + "volkswagen.orblog" << 3 << false;
    QTest::newRow("mazda") << logs + "mazda.orblog" << 5 << true;
    QTest::newRow("honda") << logs + "honda.orblog" << 7 << false;
    QTest::newRow("toyota") << logs + "toyota.orblog" << 9 << true;
    QTest::newRow("gm") << logs + "gm.orblog" << 10 << true;
    QTest::newRow("jeep") << logs + "jeep.orblog" << 15 << false;
    QTest::newRow("virtual honda") << path("honda.orblog") << 7 << true;
    // Keys and doors that many boxes say in the same way.
    const QByteArray shared = "# orblog 1\n(1.0) < 2e20020101db\n(2.0) < 2e20020201da\n(3.0) < 2e20020301d9\n"
                              "(4.0) < 2e20020001dc\n(5.0) < 2e240140 9a\n(6.0) < 2e2401805a\n"
                              "(7.0) < 2e220400000000d9\n(8.0) < 2e220408101820 89\n"
                              "(9.0) < 2e23040101010 1d4\n(10.0) < 2e2304123c543600\n";
    QVERIFY(write(path("shared.orblog"), shared));
    QTest::newRow("what many share") << path("shared.orblog") << 7 << false;
    // What three cars have each on its own, in one log: a box of no type.
    QByteArray strange = "# orblog 1\n";
    for (const char *name : {"gm", "toyota", "mazda"}) {
        QFile log(logs + name + ".orblog");
        QVERIFY(log.open(QFile::ReadOnly));
        for (const QByteArray &line : log.readAll().split('\n')) {
            strange += line.startsWith('(') ? line + '\n' : QByteArray();
        }
    }
    QVERIFY(write(path("strange.orblog"), strange));
    QTest::newRow("of no type") << path("strange.orblog") << 10 << false;
}

void TestLineCommands::identifies()
{
    QFETCH(QString, log);
    QFETCH(bool, isSure);
    Run run({"identify", log, "--json"});
    QCOMPARE(run.exitCode(), isSure ? 0 : 1);
    const QJsonObject answer = run.json().object();
    QTEST(answer.value("types").toArray().first().toObject().value("type").toInt(), "type");
    QCOMPARE(answer.value("sure").toBool(), isSure);
}

void TestLineCommands::checksABox()
{
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(7, nullptr, &error));
    QVERIFY(box && box->open(path("box"), &error));
    Run run({"check", path("box"), "--seconds", "1", "--json"});
    QVERIFY(run.exitCode() >= 0);
    QStringList found;
    for (const auto &row : run.json().array()) {
        found << row.toObject().value("check").toString() + ' ' + row.toObject().value("status").toString();
    }
    // The few packages after a start fit several types.
    QCOMPARE(found.mid(0, 9), QStringList({"device ok", "permission ok", "free ok", "opens ok", "bytes ok",
                                           "packages ok", "answers ok", "handshake ok", "version ok"}));
    QCOMPARE(found.size(), 10);
}

// Where the logged line was lost the unit loses its own, and has it again when the log does.
void TestLineCommands::replaysALostLine()
{
    QVERIFY(write(path("lost.orblog"), "# orblog 1\n# type 7 CanBus_Raise_Honda\n(1.0) < 2e20020101db\n"
                                       "(2.0) # lost\n(5.0) # back\n(6.0) < 2e2401409a\n"));
    Run run(QStringList{"replay", path("lost.orblog"), "--record", path("lost-again.orblog"), "--json"} +
            Virtual);
    QCOMPARE(run.exitCode(), 0);
    QCOMPARE(run.json().object().value("explained").toInt(), 2);
    QMap<QString, qint64> states;
    for (const LineRecord &record : recordsOf(path("lost-again.orblog"))) {
        if (record.kind == LineRecord::State && !states.contains(record.text)) {
            states.insert(record.text, record.microseconds);
        }
    }
    QVERIFY2(qAbs(states.value("lost") - 2000000) < 10000, qPrintable(QString::number(states.value("lost"))));
    // The unit tries once a second.
    QVERIFY2(qAbs(states.value("back") - 5500000) < 600000,
             qPrintable(QString::number(states.value("back"))));
}

// The unit goes on without its line, and the log says so; a disk that is full ends the log only.
void TestLineCommands::recordsALostLine_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("losses");
    QTest::addColumn<int>("complaints");
    QTest::newRow("log") << path("vanished.orblog") << 1 << 0;
    QTest::newRow("full disk") << "/dev/full" << 0 << 1;
}

void TestLineCommands::recordsALostLine()
{
    QFETCH(QString, file);
    const QString script = "wait 3000\nbox fault unplug 2000\nwait 5000\nquit\n";
    QVERIFY(write(path("script"), script.toUtf8()));
    Run run(QStringList{"record", file, "--can-bus-type", "7", "--decoder-box", "--strict", "--script",
                        path("script")} +
            Virtual);
    QCOMPARE(run.exitCode(), 0);
    int losses = 0;
    for (const LineRecord &record : recordsOf(file)) {
        losses += record.kind == LineRecord::State && record.text.startsWith("lost") ? 1 : 0;
    }
    QTEST(losses, "losses");
    QTEST(int(run.complaints().count("recording stops, the unit goes on")), "complaints");
}

void TestLineCommands::portThatVanishes_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("identify") << QStringList{"identify", "--seconds", "60"};
    QTest::newRow("check") << QStringList{"check", "--seconds", "60"};
}

void TestLineCommands::portThatVanishes()
{
    QFETCH(QStringList, command);
    QString error;
    std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(6, nullptr, &error));
    QVERIFY(box && box->open(path("box"), &error));
    Run run(command + QStringList{path("box")});
    QVERIFY(PtyBox::waitUntil([&] { return box->isUnitThere(); }));
    box.reset();
    QCOMPARE(run.exitCode(), 1);
}

// Two readers take each other's bytes. Whoever holds the box's end is not one of them.
void TestLineCommands::checksAPortInUse()
{
    PtyBox box;
    QProcess reader;
    reader.setStandardInputFile(box.path());
    reader.start("sleep", {"60"});
    QVERIFY(reader.waitForStarted());
    Run run({"check", box.path(), "--json"});
    QCOMPARE(run.exitCode(), 1);
    const QJsonObject row = run.json().array().at(2).toObject();
    QCOMPARE(row.value("status").toString(), QString("failure"));
    QCOMPARE(row.value("finding").toString(), QString("it is in use by sleep (%1)").arg(reader.processId()));
    QVERIFY(box.take().isEmpty());
    reader.kill();
    reader.waitForFinished();
}

QTEST_GUILESS_MAIN(TestLineCommands)
#include "tst_linecommands.moc"
