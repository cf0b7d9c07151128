#include "headunitrun.h"
#include "jsontext.h"
#include "lineoutput.h"
#include "tracewriter.h"

#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbkeyset.h"
#include "orbqtcompat.h"

#include <QFile>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The form of the trace, and its readers' bad manners.
class TestTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void events();
    void lineHasTheKeysInOrder();
    void slowReaderKeepsNobodyWaiting();
    void callsWhileThePluginIsBuilt();
    void goneReaderEndsNothing();
    void fileIsWrittenLineByLine();
};

void TestTrace::values_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("bool") << QVariant(true) << QByteArray("true");
    QTest::newRow("largest unsigned number")
        << QVariant(18446744073709551615ull) << QByteArray("18446744073709551615");
    QTest::newRow("negative number") << QVariant(-40) << QByteArray("-40");
    QTest::newRow("fraction") << QVariant(29.5) << QByteArray("29.5");
    QTest::newRow("short fraction") << QVariant(0.5f) << QByteArray("0.5");
    QTest::newRow("text") << QVariant(QString::fromUtf8("21.5°C \"a\\b\"\n"))
                          << QByteArray("\"21.5°C \\\"a\\\\b\\\"\\n\"");
    QTest::newRow("bytes") << QVariant(QByteArray("\x00\xAF", 2)) << QByteArray("\"00af\"");
    QTest::newRow("no bytes") << QVariant(QByteArray("")) << QByteArray("\"\"");
    QTest::newRow("texts") << QVariant(QStringList{"a", "b"}) << QByteArray("[\"a\", \"b\"]");
    QTest::newRow("list in a list") << QVariant(QVariantList{1, QVariantList{false}})
                                    << QByteArray("[1, [false]]");
    QTest::newRow("nothing") << QVariant() << QByteArray("null");
    QTest::newRow("something else") << QVariant(QSize(1, 2)) << QByteArray("null");
}

void TestTrace::values()
{
    QFETCH(QVariant, value);
    QTEST(JsonText::fromVariant(value), "json");
}

void TestTrace::events()
{
    OrbEvent bare(400, 12, OrbEventType::Notify);
    bare.setParams(20508, 0);
    const QByteArray numbers = R"("source": 400, "id": 12, "type": 51007, "param": 20508, "param2": 0)";
    QCOMPARE(JsonText::fromEvent(bare), '{' + numbers + '}');

    OrbEvent full(bare);
    full.setByteArrayParams(QByteArray::fromHex("0A0b"));
    full.setStringParam("a,b");
    full.setVariantParam(-21);
    QCOMPARE(JsonText::fromEvent(full),
             '{' + numbers + R"(, "bytes": "0a0b", "string": "a,b", "variant": -21})");

    OrbKeySet keys = {{1, 4294967296ull}};
    OrbEvent keySet(400, 1, OrbEventType::Notify);
    keySet.setVariantParam(QVariant::fromValue<void *>(&keys));
    keySet.setParams(20497, 21);
    QVERIFY(JsonText::fromEvent(keySet).endsWith(R"("variant": [{"keyCode": 1, "ctrlValue": 4294967296}]})"));
    keySet.setParams(20497, 22);
    QVERIFY(JsonText::fromEvent(keySet).endsWith(R"("variant": null})"));
}

void TestTrace::lineHasTheKeysInOrder()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    {
        LineOutput output(ends[1]);
        TraceWriter(&output).called("GPIOOperater", "setDirection", {30, "out"});
        TraceWriter(&output).valueTold("outside.temperature", 23); // nobody asked for values
        TraceWriter(&output, true).valueTold("outside.temperature", QVariant());
    }
    char bytes[400];
    const QByteArray line(bytes, int(::read(ends[0], bytes, sizeof bytes)));
    const QRegularExpression form(
        R"(^\{"t": 0\.\d\d\d, "object": "GPIOOperater", "call": "setDirection", "args": \[30, "out"\]\}\n)"
        R"(\{"t": 0\.\d\d\d, "object": "car", "call": "outside.temperature", "args": \[null\]\}\n$)");
    QVERIFY2(form.match(line).hasMatch(), line);
    ::close(ends[0]);
    ::close(ends[1]);
}

void TestTrace::slowReaderKeepsNobodyWaiting()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    QByteArray expected;
    QByteArray got;
    LineOutput output(ends[1]);
    for (int i = 0; i < 20000; ++i) { // several times what a pipe holds
        const QByteArray line = "line " + QByteArray::number(i);
        output.writeLine(line);
        expected += line + '\n';
    }
    QCOMPARE(::fcntl(ends[0], F_SETFL, O_NONBLOCK), 0);
    QTRY_VERIFY2_WITH_TIMEOUT(([&] {
                                  char bytes[65536];
                                  const ssize_t count = ::read(ends[0], bytes, sizeof bytes);
                                  got.append(bytes, int(qMax(count, ssize_t(0))));
                                  return got.size() >= expected.size();
                              })(),
                              "the rest never came", 5000);
    QVERIFY(got == expected);
    ::close(ends[0]);
    std::signal(SIGPIPE, SIG_IGN);
    output.writeLine("nobody reads this");
    QVERIFY(!output.isOpen());
    ::close(ends[1]);
}

void TestTrace::callsWhileThePluginIsBuilt()
{
    HeadUnitRun run;
    QVERIFY(run.startProbe());
    QCOMPARE(run.answer("quit"), QString("quit []"));
    QCOMPARE(run.finish(), 0);
    QStringList calls;
    for (const QJsonObject &line : run.take()) {
        calls << line.value("object").toString() + '.' + line.value("call").toString();
    }
    QCOMPARE(calls,
             QStringList({"OrbCommons.AppendAppTitle", "OrbApplication.simulateKey", "OrbApplication.event",
                          "OrbApplication.event", "script.quit", "OrbApplication.dispatchOrbEvent"}));
}

void TestTrace::goneReaderEndsNothing()
{
    QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("trace"));
    QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    const int reader = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    HeadUnitRun run;
    run.process().setStandardOutputFile(folder.filePath("trace"));
    QVERIFY(run.startProbe());
    char byte = 0;
    QTRY_COMPARE(::read(reader, &byte, 1), ssize_t(1));
    ::close(reader);
    run.write("show 1\nshow 1\n");
    run.process().closeWriteChannel();
    QCOMPARE(run.finish(), 0);
}

void TestTrace::fileIsWrittenLineByLine()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("trace.jsonl");
    const auto content = [path] {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    };
    HeadUnitRun run;
    QVERIFY(run.start({"--headless", "--plugin", PROBE_PLUGIN, "--trace", path}));
    QTRY_COMPARE(content().count('\n'), 4);
    run.process().terminate();
    QCOMPARE(run.finish(), 0);
    QVERIFY2(content().contains(R"("id": 7,)"), "destroy was not called");
}

QTEST_GUILESS_MAIN(TestTrace)
#include "tst_trace.moc"
