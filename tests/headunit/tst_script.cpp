#include "headunitrun.h"
#include "scriptline.h"
#include "testfiles.h"
#include "transcript.h"

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

/// The commands of a script, carried out by the program with a plug-in that reports what reaches it.
class TestScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void orders();
    void answersInOrder();
    void screenshot();
    void wait();
    void answersWithoutTrace();
    void endOfInput_data();
    void endOfInput();
    void closedStreams();
    void quitInsideADialog();
    void strictRunFails_data();
    void strictRunFails();
    void boxTakesOrders();
    void longLine();
    void signalsEndCleanly_data();
    void signalsEndCleanly();
};

void TestScript::words_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("blanks") << "  show \t 1 " << QStringList{"show", "1"};
    QTest::newRow("quoted word") << "open \"Car Setting\"" << QStringList{"open", "Car Setting"};
    QTest::newRow("quoted part") << "event 1 string=\"a b\"c" << QStringList{"event", "1", "string=a bc"};
    QTest::newRow("empty word") << "product K \"\"" << QStringList{"product", "K", ""};
    QTest::newRow("escapes") << R"(text "a\"b\\c\d" e\f)" << QStringList{"text", R"(a"b\c\d)", R"(e\f)"};
    QTest::newRow("open quote") << "open \"Car" << QStringList();
}

void TestScript::words()
{
    QFETCH(QString, line);
    QFETCH(QStringList, words);
    QStringList split;
    const bool ok = ScriptLine::split(line, &split);
    QCOMPARE(ok, !words.isEmpty());
    if (ok) {
        QCOMPARE(split, words);
    }
}

void TestScript::orders()
{
    std::unique_ptr<HeadUnitRun> run;
    const auto act = [&run](const QString &order) {
        if (order == "new") {
            run.reset(new HeadUnitRun);
            run->startProbe();
        }
        if (order == "new" || order.startsWith("==")) {
            return QStringList();
        }
        // The answer comes after everything that the command brought about.
        run->take();
        const QString answer = run->answer(order.toUtf8());
        return QStringList(answer) + run->takeReports();
    };
    COMPARE_WITH_TRANSCRIPT("script.txt", act);
}

void TestScript::answersInOrder()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    run.write("# a comment and an empty line are passed over\n\nshow 1\nwait 30\njump\nkey 5 "
              "press\nquit\nshow 2\n");
    QCOMPARE(run.finish(), 0);
    QStringList calls;
    for (const QJsonObject &line : run.take()) {
        if (line.value("object") == "script") {
            calls << line.value("call").toString();
        }
    }
    QCOMPARE(calls, QStringList({"show", "wait", "error", "key", "quit"}));
}

void TestScript::screenshot()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("a picture.png");
    HeadUnitRun run;
    QVERIFY(run.startProbe({"--product", "ScreenSize=800x480"}));
    QCOMPARE(run.answer(QString("screenshot \"%1\"").arg(path).toUtf8()), QString("screenshot []"));
    const QImage empty(path);
    QCOMPARE(empty.size(), QSize(800, 480));
    QVERIFY(run.answer("screenshot nowhere/a.png").startsWith("error [\"nowhere/a.png: "));
    run.answer("show 700");
    run.answer(QString("screenshot \"%1\"").arg(path).toUtf8());
    QVERIFY(QImage(path) != empty);
}

void TestScript::wait()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    run.write("show 1\nwait 120\nshow 2\n");
    const double before = run.waitFor("script", "show").value("t").toDouble();
    const double after = run.waitFor("script", "show").value("t").toDouble();
    QVERIFY2(after - before >= 0.119 && after - before < 1, qPrintable(QString::number(after - before)));
}

void TestScript::answersWithoutTrace()
{
    HeadUnitRun run;
    QVERIFY(run.start({"--headless", "--plugin", PROBE_PLUGIN, "--script", "-"}));
    QCOMPARE(run.answer("show 1"), QString("show []"));
    QCOMPARE(run.take().size(), 1); // and nothing of what the plug-in did
}

void TestScript::endOfInput_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("answers");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("last line without end") << QByteArray("show 1\nwait 50\nshow 2") << 3;
    QTest::newRow("line end of another system") << QByteArray("show 1\r\nshow 2\r\n") << 2;
    QTest::newRow("many lines") << QByteArray("show 1\n").repeated(3000) << 3000;
}

void TestScript::endOfInput()
{
    QFETCH(QByteArray, input);
    QFETCH(int, answers);
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    run.write(input);
    run.process().closeWriteChannel();
    QCOMPARE(run.finish(), 0);
    int count = 0;
    for (const QJsonObject &line : run.take()) {
        count += line.value("object") == "script" && line.value("call") != "error" ? 1 : 0;
    }
    QCOMPARE(count, answers);
}

void TestScript::closedStreams()
{
    QProcess shell;
    // The shell is this machine's, also where an emulator runs what it starts.
    shell.start("sh",
                {"-c", "exec $CANBUS_EMULATOR \"$0\" --headless --plugin \"$1\" --trace - --script - <&- >&-",
                 HEADUNIT, PROBE_PLUGIN});
    QVERIFY(shell.waitForFinished(5000) || (shell.kill(), shell.waitForFinished(), false));
    QCOMPARE(shell.exitCode(), 0);
}

void TestScript::quitInsideADialog()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    run.answer("show 701");
    QCOMPARE(run.answer("quit"), QString("quit []"));
    QCOMPARE(run.finish(), 0);
}

void TestScript::strictRunFails_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    QTest::addColumn<QByteArray>("report");
    QTest::newRow("all is well") << QByteArray("show 1\nexpect dispatchOrbEvent param=1 within 0\n") << 0
                                 << "" << QByteArray("tests=\"2\" failures=\"0\" errors=\"0\"");
    QTest::newRow("unmet") << QByteArray("# one\nshow 1\nexpect dispatchOrbEvent param=2 within 0\nshow 3\n")
                           << 1
                           << "-:3: expect dispatchOrbEvent param=2 within 0: not met: came instead: "
                              "OrbApplication.dispatchOrbEvent source=7 id=1 type=51001 param=1 param2=0"
                           << QByteArray("tests=\"2\" failures=\"1\" errors=\"0\"");
    QTest::newRow("error, also inside a dialog")
        << QByteArray("show 701\njump <\x01>\n") << 1 << "-:2: jump <\x01>: unknown command 'jump'"
        << QByteArray("tests=\"2\" failures=\"0\" errors=\"1\"");
}

void TestScript::strictRunFails()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, said);
    QFETCH(QByteArray, report);
    QTemporaryDir folder;
    HeadUnitRun run;
    QVERIFY(run.startProbe({"--strict", "--junit", folder.filePath("report.xml")}));
    run.write(script);
    run.process().closeWriteChannel();
    QTEST(run.finish(), "status");
    const QString errors = run.errors();
    QVERIFY2(errors.contains(said), qPrintable(errors));
    const QByteArray xml = TestSupport::contentOf(folder.filePath("report.xml"));
    QVERIFY2(xml.contains(report), xml.constData());
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

// The car changes, and the plug-in tells: what a support case is replayed with.
void TestScript::boxTakesOrders()
{
    QTemporaryDir folder;
    QProcess unit;
    unit.setWorkingDirectory(folder.path());
    unit.start(HEADUNIT, {"--headless", "--virtual-clock", "--strict", "--can-bus-type", "9", "--decoder-box",
                          "--settings-dir", ".", "--script", "-"});
    unit.write(
        "wait 500\nset climate.left 22.5\nexpect AirConditionDlg.setTemperature 22.5°C within 50\n"
        "press volume_up\nexpect simulateKey 16777330 true within 50\nexpect simulateKey * false within 100\n"
        "box fault unplug 1000\nwait 900\nset climate.ac on\nexpect none setACEnable within 50\n"
        "expect setACEnable true within 1000\nlist types\nlist keys\nlist properties\nset climate.fan 10\n");
    unit.closeWriteChannel();
    QVERIFY(unit.waitForFinished(20000));
    const QString said = QString::fromUtf8(unit.readAllStandardError());
    QVERIFY2(
        said.contains("-:15: set climate.fan 10: 'climate.fan' takes a whole number from 0 to 8, not '10'"),
        qPrintable(said));
    const QByteArray answers = unit.readAllStandardOutput();
    QVERIFY(answers.contains("[9, \"CanBus_Raise_Toyota\", \"toyota\", \"box\"]"));
    QVERIFY(answers.contains("[\"volume_up\", \"wheel\"]"));
    QVERIFY(answers.contains("[\"climate.ac\", \"on\", \"on or off\"]"));
}

void TestScript::longLine()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    QCOMPARE(run.answer(QByteArray(200000, 'x')), QString("error [\"the line is too long\"]"));
    QCOMPARE(run.answer("show 1"), QString("show []"));
}

void TestScript::signalsEndCleanly_data()
{
    QTest::addColumn<bool>("isInDialog");
    QTest::newRow("at rest") << false;
    QTest::newRow("inside a dialog") << true;
}

void TestScript::signalsEndCleanly()
{
    QFETCH(bool, isInDialog);
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    run.answer(isInDialog ? "show 701" : "show 1");
    run.process().terminate();
    QCOMPARE(run.finish(), 0);
    QVERIFY2(run.takeReports().contains("7 0 0"), "destroy was not called");
}

QTEST_GUILESS_MAIN(TestScript)
#include "tst_script.moc"
