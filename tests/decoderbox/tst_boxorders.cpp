// Orders to a box: scenario files, scripts and the program's command line.

#include "boxscript.h"
#include "decoderbox.h"
#include "scenarioplayer.h"
#include "simulatedunit.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

#include <unistd.h>

namespace {

QString writeScenario(const QTemporaryDir &folder, const QString &text)
{
    QFile file(folder.filePath("drive.scn"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        qFatal("no scenario");
    }
    return file.fileName();
}

} // namespace

class TestBoxOrders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongScenario_data();
    void wrongScenario();
    void shippedScenarios_data();
    void shippedScenarios();
    void scenarioPlaysInTime();
    void scriptAnswers();
    void programEnds_data();
    void programEnds();
    void programServesAUnit();
};

void TestBoxOrders::wrongScenario_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *text, const char *error) {
        QTest::newRow(name) << QString(text) << QString(error);
    };
    const char faultUsage[] = "1: expected: fault noise N, fault cut N, fault corrupt or fault silence MS";
    const char keyUsage[] = "1: expected: key NAME press|hold|release|tap [MS]";
    row("unknown property", "# drive\n1 climate.ac on\n2 x 1\n", "3: unknown property 'x'");
    row("bad value", "0 climate.ac 9", "1: 'climate.ac' takes on or off, not '9'");
    row("negative time", "-1 climate.ac on", "1: '-1' is no time in seconds");
    row("time without end", "inf climate.ac on", "1: 'inf' is no time in seconds");
    row("no order", "1.5", "1: nothing to do at this time");
    row("time goes back", "2 start\n1 start", "2: time goes back, before 2");
    row("after the end", "2 end\n3 start", "2: an order after the end");
    row("after the last order", "2 again\n3 start", "2: an order after the end");
    row("a drive without length", "0 start\n0 again", "2: a drive that starts over takes some time");
    row("no key at all", "1 key", "1: unknown key ''");
    row("unknown key action", "1 key next push", keyUsage);
    row("time for a press", "1 key next press 100", keyUsage);
    row("key as knob", "1 knob next 3", "1: unknown knob 'next'");
    row("no hex", "1 raw zz", "1: expected: raw HEX, two digits for each byte");
    row("unknown fault", "1 fault fire 3", faultUsage);
    row("fault without size", "1 fault cut", faultUsage);
    row("touch without a screen", "1 touch 1 1 press", "1: this box reports no touches");
}

void TestBoxOrders::wrongScenario()
{
    QFETCH(QString, text);
    QTemporaryDir folder;
    const QString path = writeScenario(folder, text);
    const auto box = openBox(9);
    Scenario scenario;
    QString said;
    QVERIFY(!scenario.load(path, *box, &said));
    QFETCH(QString, error);
    QCOMPARE(said, path + ':' + error);
}

void TestBoxOrders::shippedScenarios_data()
{
    QTest::addColumn<int>("type");
    const QMap<QByteArray, int> rows = {{"volkswagen", 3}, {"xinhang", 4}, {"mazda", 5}, {"honda", 7},
                                        {"toyota", 9},     {"gm", 10},     {"jeep", 15}};
    for (auto at = rows.begin(); at != rows.end(); ++at) {
        QTest::newRow(at.key().constData()) << at.value();
    }
}

// Every drive that is shipped reads without error, lasts as long as a demonstration should, and leaves the
// car standing with its doors shut.
void TestBoxOrders::shippedScenarios()
{
    QFETCH(int, type);
    const auto box = openBox(type);
    Scenario scenario;
    QString error;
    const QString path = QString("%1/%2.scn").arg(SCENARIO_FOLDER, QTest::currentDataTag());
    QVERIFY2(scenario.load(path, *box, &error), qPrintable(error));
    const int ms = scenario.steps.last().ms;
    QVERIFY2(ms >= 30000 && ms <= 65000, qPrintable(QString::number(ms)));
    for (const Scenario::Step &step : std::as_const(scenario.steps)) {
        step.command.carryOut(box.get());
    }
    for (const char *door : {"front_left", "front_right", "rear_left", "rear_right"}) {
        QVERIFY2(!box->car()->flag(QString("doors.") + door), door);
    }
}

void TestBoxOrders::scenarioPlaysInTime()
{
    QTemporaryDir folder;
    const QString path = writeScenario(folder, "0 raw 0102\n"
                                               "0.05 start\n"
                                               "0.2 climate.ac on # cold at last\n"
                                               "0.2 key next tap 100\n"
                                               "0.5 end\n");
    const auto box = openBox(9);
    SimulatedUnit unit(*box);
    Scenario scenario;
    QString error;
    QVERIFY2(scenario.load(path, *box, &error), qPrintable(error));
    ScenarioPlayer player(box.get(), scenario);
    QSignalSpy finished(&player, &ScenarioPlayer::finished);
    player.play();
    QTest::qWait(150);
    QCOMPARE(unit.singleBytes(), QByteArray("\x01\x02"));
    QVERIFY(!box->car()->flag("climate.ac"));
    unit.forget();
    QTRY_COMPARE(int(finished.size()), 1);
    QCOMPARE(finished.first().first().toBool(), true);
    const QVector<QByteArray> expected = {RaiseWire::frame("28 c0 42 07 07 00"), RaiseWire::frame("20 03 01"),
                                          RaiseWire::frame("20 03 00")};
    QCOMPARE(unit.frames(), expected);
    const qint64 tap = unit.packages().at(2).ms - unit.packages().at(1).ms;
    QVERIFY2(tap > 80 && tap < 160, qPrintable(QString::number(tap)));
}

void TestBoxOrders::scriptAnswers()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const auto box = openBox(9);
    BoxScript script(box.get(), ends[0]);
    QStringList answers;
    connect(&script, &BoxScript::answered, this, [&answers](const QString &line) { answers << line; });
    QSignalSpy finished(&script, &BoxScript::finished);
    const QByteArray lines =
        "get climate.fan\nclimate.fan 5\nget climate.fan\nget x\nclimate.fan 8\nwait 30\n"
        "observed mode\n\nstate\nstart\nstate\nwait soon\nkey next tap";
    // The line that is still being written when the first half is read counts whole.
    QCOMPARE(int(::write(ends[1], lines.constData(), 20)), 20);
    QTest::qWait(10);
    QCOMPARE(int(::write(ends[1], lines.constData() + 20, size_t(lines.size()) - 20)),
             int(lines.size()) - 20);
    ::close(ends[1]);
    QTRY_COMPARE(int(finished.size()), 1);
    ::close(ends[0]);
    const QString expected = "climate.fan 2\nok\nclimate.fan 5\nerror: unknown property 'x'\n"
                             "error: 'climate.fan' takes a whole number from 0 to 7, not '8'\nok\n"
                             "error: nothing heard of 'mode'\nwaits\nok\ntalks\n"
                             "error: expected: wait MS\nok";
    QCOMPARE(answers.join('\n'), expected);
}

void TestBoxOrders::programEnds_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("said");
    const auto row = [](const char *name, const char *arguments, int exitCode, const char *said) {
        QTest::newRow(name) << QString(arguments) << exitCode << QString(said);
    };
    row("no type", "", 2, "--type takes");
    row("unknown type", "--type 16", 2, "not '16'");
    row("type with a tail", "--type 9a", 2, "not '9a'");
    row("class name in another case", "--type canbus_xinhang", 2, "not 'canbus_xinhang'");
    row("unknown option", "--type 9 --colour", 2, "Usage: ");
    row("stray argument", "--type 9 drive.scn", 2, "what is 'drive.scn'?");
    row("box that nobody knows", "--type 0x2", 1, "CanBus_Huida_ZD");
    row("missing scenario", "--type 9 --scenario /nowhere/a.scn", 1, "/nowhere/a.scn: ");
    row("scenario of another box", "--type 6 --scenario SCENARIOS/toyota.scn", 1,
        "toyota.scn:27: unknown key 'volume_up'");
    row("log in no folder", "--type 9 --log /nowhere/log", 1, "/nowhere/log: ");
    row("link in no folder", "--type 9 --link /nowhere/can", 1, "'/nowhere/can'");
}

void TestBoxOrders::programEnds()
{
    QFETCH(QString, arguments);
    QFETCH(QString, said);
    QProcess program;
    program.start(DECODERBOX,
                  arguments.split(' ', Qt::SkipEmptyParts).replaceInStrings("SCENARIOS", SCENARIO_FOLDER));
    QVERIFY(program.waitForFinished(5000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QTEST(program.exitCode(), "exitCode");
    const QString output = QString::fromLocal8Bit(program.readAllStandardError());
    QVERIFY2(output.contains(said), qPrintable(output));
}

void TestBoxOrders::programServesAUnit()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("can");
    const QString log = folder.filePath("log");
    QProcess program;
    program.start(DECODERBOX,
                  {"--type", "CanBus_Raise_Toyota", "--link", link, "--log", log, "--script", "-"});
    QTRY_VERIFY(program.canReadLine());
    QCOMPARE(QString::fromLocal8Bit(program.readLine()).trimmed(), QFile::symLinkTarget(link));
    program.write("start\nwait 50\nget climate.left\n");
    QTRY_VERIFY(program.bytesAvailable() > 0);
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished(5000));
    QCOMPARE(program.readAllStandardOutput(), QByteArray("ok\nok\nclimate.left 21\n"));
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(!QFileInfo(link).isSymLink());
    QFile lines(log);
    QVERIFY(lines.open(QIODevice::ReadOnly));
    QVERIFY(lines.readLine().contains(" box>unit 2e3020"));
}

QTEST_GUILESS_MAIN(TestBoxOrders)
#include "tst_boxorders.moc"
