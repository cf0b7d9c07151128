#include "headunitrun.h"
#include "scriptline.h"

#include <QImage>
#include <QtTest>

/// The commands of a script, carried out by the program with a plug-in that reports what reaches it.
class TestScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void reachesThePlugin_data();
    void reachesThePlugin();
    void errors_data();
    void errors();
    void answersInOrder();
    void frontWindow();
    void modalDialog_data();
    void modalDialog();
    void screenshot();
    void wait();
    void answersWithoutTrace();
    void endOfInput_data();
    void endOfInput();
    void closedStreams();
    void quitInsideADialog();
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

void TestScript::reachesThePlugin_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("reports"); // of the last line
    const auto row = [](const char *name, const char *lines, const char *answer, const char *reports) {
        QTest::newRow(name) << QByteArray(lines).split('\n') << QString(answer)
                            << QString(reports).split(';', Qt::SkipEmptyParts);
    };
    row("show", "show 0x301", "show []", "1 769 0");
    row("notify", "notify 20486", "notify []", "1 20486 0");
    row("notify with two", "notify 20486 3", "notify []", "1 20486 3");
    row("state", "state 0x1000000 0x1000000", "state []", "1 16777216 16777216;4 0 0");
    row("event", "event 51005 1 2 string=\"a b\" bytes=0aFF", "event []", "1 1 2 a b");
    row("key delivered", "key 16777330 press", "key [\"delivered\"]", "1 16777330 1");
    row("key repeats", "key 0x1000072 repeat", "key [\"delivered\"]", "1 16777330 2");
    row("key consumed", "key 5 release", "key [\"consumed\"]", "");
    row("mode, first", "mode 3", "mode []", "2 3 0");
    row("mode remembers", "mode 3\nmode 7", "mode []", "2 7 3");
    row("mode with other", "mode 3 9", "mode []", "2 3 9");
    row("disk comes", "disk 1 1 /a \"/b c\"", "disk []", "3 1 1 /a|/b c");
    row("disk goes", "disk 1 1 /a\ndisk 1 0", "disk []", "3 1 0");
    row("tag", "tag 0x10001 0x3000000\nstate 1 1", "state []", "1 1 1;4 50331648 0");
    row("front", "front 769\nstate 1 1", "state []", "1 1 1;4 0 769");
    row("product", "product Probe \"two words\"\nstate 1 1", "state []", "1 1 1;4 0 0 two words");
}

void TestScript::reachesThePlugin()
{
    QFETCH(QByteArrayList, lines);
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    const QByteArray last = lines.takeLast();
    for (const QByteArray &line : lines) {
        QVERIFY(!run.answer(line).isEmpty());
    }
    run.take();
    // The answer comes after everything that the command brought about.
    QTEST(run.answer(last), "answer");
    QTEST(run.takeReports(), "reports");
}

void TestScript::errors_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *line, const char *reason) {
        QTest::newRow(name) << QByteArray(line) << QString(reason);
    };
    row("unknown command", "jump 1", "unknown command 'jump'");
    row("number missing", "show", "expected: show APPID");
    row("no number", "show radio", "expected: show APPID");
    row("one too many", "windows all", "expected: windows");
    row("number too large", "show 4294967296", "expected: show APPID");
    row("key without phase", "key 5", "expected: key CODE press|repeat|release");
    row("key with a wrong phase", "key 5 push", "'push' is none of press, repeat, release");
    row("odd hex", "event 51007 bytes=0af", "expected: bytes=HEX, two digits a byte, or string=TEXT");
    row("no hex", "event 51007 bytes=zz", "expected: bytes=HEX, two digits a byte, or string=TEXT");
    row("what is that", "event 51007 colour=red", "expected: bytes=HEX, two digits a byte, or string=TEXT");
    row("event that would delete the plug-in", "event 52", "event types are 1000 to 65535");
    row("open quote", "open \"Probe", "a quote is left open");
    row("window that does not exist", "open Nowhere", "no window has the title 'Nowhere'");
    row("text without window", "text lblValue", "no window is in front");
    row("rows without window", "rows", "no window is in front");
    row("check without dialog", "check 0", "no dialog is open");
    row("picture nowhere", "screenshot nowhere/at/all.png", "nowhere/at/all.png: ");
    row("endless wait", "wait 4000000000", "the longest wait is 86400000 ms");
}

void TestScript::errors()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    static HeadUnitRun run; // all rows in one: the script goes on after an error
    if (run.process().state() == QProcess::NotRunning) {
        QVERIFY(run.startProbe());
    }
    const QString answer = run.answer(line);
    QVERIFY2(answer.startsWith("error [\"" + reason), qPrintable(answer));
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

void TestScript::frontWindow()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    QCOMPARE(run.answer("windows"), QString(R"(windows [["ProbeWindow","Probe window",false]])"));
    run.take();
    QCOMPARE(run.answer("open Probe window"), QString("open []"));
    QCOMPARE(run.take().first().value("object").toString(), QString("ProbeWindow")); // setVisible
    QCOMPARE(run.answer("windows"), QString(R"(windows [["ProbeWindow","Probe window",true]])"));
    QCOMPARE(run.answer("text lblValue"), QString::fromUtf8("text [\"21.5°C\"]"));
    QCOMPARE(run.answer("style lblValue"), QString("style [\"color: red\"]"));
    QVERIFY(run.answer("rows").startsWith(
        R"(rows [["Row 0","second","low"],["Row 1","second",true],["Row 2","second","low"],)"));
    run.take();
    QCOMPARE(run.answer("row 1 2"), QString("row []"));
    QCOMPARE(run.answer("row 29"), QString("row []")); // has to be scrolled to
    QCOMPARE(run.takeReports(), QStringList({"5 1 2", "5 29 0"}));
    QVERIFY(run.answer("row 30").startsWith("error [\"there is no cell 30, 0"));
    QVERIFY(run.answer("row 0 3").startsWith("error [\"there is no cell 0, 3"));
    QCOMPARE(run.answer("click btnOff"), QString("error [\"'btnOff' is disabled\"]"));
    QCOMPARE(run.answer("click btnGone"), QString("error [\"'btnGone' is hidden\"]"));
    QCOMPARE(run.answer("click btnNone"), QString("error [\"nothing in front is called 'btnNone'\"]"));
    QCOMPARE(run.answer("click btnBack"), QString("click []"));
    QCOMPARE(run.answer("windows"), QString(R"(windows [["ProbeWindow","Probe window",false]])"));
}

void TestScript::modalDialog_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    QTest::addColumn<QString>("answer");
    QTest::newRow("by a click") << QByteArrayList{"show 700", "click btnAsk"} << "click []";
    QTest::newRow("by an event") << QByteArrayList{"show 701"} << "show []";
    QTest::newRow("by a key filter") << QByteArrayList{"key 6 press"} << "key [\"consumed\"]";
}

void TestScript::modalDialog()
{
    QFETCH(QByteArrayList, lines);
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    const QByteArray opening = lines.takeLast();
    for (const QByteArray &line : lines) {
        run.answer(line);
    }
    QTEST(run.answer(opening), "answer");
    QVERIFY(run.answer("windows").contains(R"(["OrbDialog","Probe dialog",true])"));
    run.take();
    QCOMPARE(run.answer("check 1"), QString("check []"));
    QCOMPARE(run.answer("check 2"), QString("error [\"there is no check box 2, the dialog has 2\"]"));
    QCOMPARE(run.answer("key 7 press"), QString("key [\"delivered\"]"));
    QCOMPARE(run.answer("wait 20"), QString("wait []"));
    QCOMPARE(run.answer("text btnOk"), QString("text [\"OK\"]"));
    QCOMPARE(run.answer("click btnOk"), QString("click []"));
    QCOMPARE(run.takeReports(), QStringList({"5 1 1", "1 7 1", "6 1 0"}));
    QVERIFY(!run.answer("windows").contains("OrbDialog"));
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
    shell.start("sh", {"-c", "exec \"$0\" --headless --plugin \"$1\" --trace - --script - <&- >&-", HEADUNIT,
                       PROBE_PLUGIN});
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
