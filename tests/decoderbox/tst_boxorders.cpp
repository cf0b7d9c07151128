// Orders to a box: scenario files, scripts and the program's command line.

#include "boxcatalog.h"
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

private slots:
    void wrongScenario_data();
    void wrongScenario();
    void missingScenario();
    void shippedScenarios_data();
    void shippedScenarios();
    void scenarioPlaysInTime();
    void scriptAnswers();
    void typeFromText_data();
    void typeFromText();
    void typeWithoutBox();
    void programEnds_data();
    void programEnds();
    void programServesAUnit();
};

void TestBoxOrders::wrongScenario_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown property") << "# drive\n1 climate.ac on\n2 x 1\n"
                                      << ":3: unknown property 'x'";
    QTest::newRow("bad value") << "0 climate.fan 9"
                               << ":1: 'climate.fan' takes a whole number from 0 to 7, not '9'";
    QTest::newRow("no time") << "climate.ac on"
                             << ":1: 'climate.ac' is no time in seconds";
    QTest::newRow("negative time") << "-1 climate.ac on"
                                   << ":1: '-1' is no time in seconds";
    QTest::newRow("time without end") << "inf climate.ac on"
                                      << ":1: 'inf' is no time in seconds";
    QTest::newRow("no order") << "1.5"
                              << ":1: nothing to do at this time";
    QTest::newRow("time goes back") << "2 start\n1 start"
                                    << ":2: time goes back";
    QTest::newRow("after the end") << "2 end\n3 start"
                                   << ":2: an order after the end";
    QTest::newRow("unknown key") << "1 key horn tap"
                                 << ":1: unknown key 'horn'";
    QTest::newRow("no key at all") << "1 key"
                                   << ":1: unknown key ''";
    QTest::newRow("unknown key action") << "1 key next push"
                                        << ":1: expected: key NAME press|hold|release|tap [MS]";
    QTest::newRow("time for a press") << "1 key next press 100"
                                      << ":1: expected: key NAME press|hold|release|tap [MS]";
    QTest::newRow("key as knob") << "1 knob next 3"
                                 << ":1: unknown knob 'next'";
    QTest::newRow("half a byte") << "1 raw 2e8"
                                 << ":1: expected: raw HEX, two digits for each byte";
    QTest::newRow("no hex") << "1 raw zz"
                            << ":1: expected: raw HEX, two digits for each byte";
    QTest::newRow("unknown fault")
        << "1 fault fire 3"
        << ":1: expected: fault noise N, fault cut N, fault corrupt or fault silence MS";
    QTest::newRow("fault without size")
        << "1 fault cut"
        << ":1: expected: fault noise N, fault cut N, fault corrupt or fault silence MS";
    QTest::newRow("touch without a screen") << "1 touch 1 1 press"
                                            << ":1: this box reports no touches";
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
    QCOMPARE(said, path + error);
}

void TestBoxOrders::missingScenario()
{
    const auto box = openBox(9);
    Scenario scenario;
    QString error;
    QVERIFY(!scenario.load("/nowhere/drive.scn", *box, &error));
    QVERIFY(error.startsWith("/nowhere/drive.scn: "));
}

void TestBoxOrders::shippedScenarios_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("volkswagen") << 3;
    QTest::newRow("xinhang") << 4;
    QTest::newRow("mazda") << 5;
    QTest::newRow("honda") << 7;
    QTest::newRow("toyota") << 9;
    QTest::newRow("gm") << 10;
    QTest::newRow("jeep") << 15;
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
    const QVector<QByteArray> expected = {raiseFrame("28 c0 42 07 07 00"), raiseFrame("20 03 01"),
                                          raiseFrame("20 03 00")};
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
    const QStringList expected = {"climate.fan 2",
                                  "ok",
                                  "climate.fan 5",
                                  "error: unknown property 'x'",
                                  "error: 'climate.fan' takes a whole number from 0 to 7, not '8'",
                                  "ok",
                                  "error: nothing heard of 'mode'",
                                  "waits",
                                  "ok",
                                  "talks",
                                  "error: expected: wait MS",
                                  "ok"};
    QCOMPARE(answers, expected);
}

void TestBoxOrders::typeFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::newRow("decimal") << "9" << 9;
    QTest::newRow("hexadecimal") << "0xF" << 15;
    QTest::newRow("class name") << "CanBus_Raise_Toyota" << 9;
    QTest::newRow("class name in another case") << "canbus_raise_toyota" << 0;
    QTest::newRow("no type") << "0" << 0;
    QTest::newRow("past the last") << "16" << 0;
    QTest::newRow("nothing") << "" << 0;
    QTest::newRow("number with a tail") << "9a" << 0;
}

void TestBoxOrders::typeFromText()
{
    QFETCH(QString, text);
    QTEST(BoxCatalog::typeFromText(text), "type");
}

void TestBoxOrders::typeWithoutBox()
{
    for (const int type : {0, 1, 2, 16}) {
        QString error;
        QVERIFY(!BoxCatalog::createBox(type, nullptr, &error));
        QVERIFY(error.contains(QString::number(type)));
    }
}

void TestBoxOrders::programEnds_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("said");
    QTest::newRow("no type") << QStringList() << 2 << "--type takes";
    QTest::newRow("unknown type") << QStringList({"--type", "44"}) << 2 << "not '44'";
    QTest::newRow("unknown option") << QStringList({"--type", "9", "--colour"}) << 2 << "Usage: ";
    QTest::newRow("option without value") << QStringList({"--type"}) << 2 << "Usage: ";
    QTest::newRow("stray argument") << QStringList({"--type", "9", "drive.scn"}) << 2
                                    << "what is 'drive.scn'?";
    QTest::newRow("box that nobody knows") << QStringList({"--type", "2"}) << 1 << "CanBus_Huida_ZD";
    QTest::newRow("missing scenario")
        << QStringList({"--type", "9", "--scenario", "/nowhere/a.scn"}) << 1 << "/nowhere/a.scn: ";
    QTest::newRow("scenario of another box")
        << QStringList({"--type", "6", "--scenario", SCENARIO_FOLDER "/toyota.scn"}) << 1
        << "toyota.scn:27: unknown key 'volume_up'";
    QTest::newRow("log in no folder")
        << QStringList({"--type", "9", "--log", "/nowhere/log"}) << 1 << "/nowhere/log: ";
    QTest::newRow("link in no folder")
        << QStringList({"--type", "9", "--link", "/nowhere/can"}) << 1 << "'/nowhere/can'";
}

void TestBoxOrders::programEnds()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    QProcess program;
    program.start(DECODERBOX, arguments);
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
