#include "headunitrun.h"
#include "ptybox.h"
#include "raisewire.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

/// The program with the real plug-in on a pseudo-terminal: bytes in, trace and bytes out.
class TestEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void climate();
    void lineThatHangsUp();
    void boxDrivesItsScenario();
    void virtualMinuteIsTheSameEachTime();
    void everyTypeStartsAndEnds_data();
    void everyTypeStartsAndEnds();
};

namespace {

QStringList calls(const QList<QJsonObject> &lines, const QString &object)
{
    QStringList found;
    for (const QJsonObject &line : lines) {
        if (line.value("object") == object) {
            found << line.value("call").toString() +
                         QJsonDocument(line.value("args").toArray()).toJson(QJsonDocument::Compact);
        }
    }
    return found;
}

bool startToyota(HeadUnitRun *run, const QString &port)
{
    return run->start({"--headless", "--trace", "-", "--script", "-", "--can-bus-type", "CanBus_Raise_Toyota",
                       "--port", port}) &&
           !run->waitFor("OrbCommons", "AppendAppTitle").isEmpty();
}

// Processor time that \a process has used, in ms; -1 when it cannot be told.
qint64 processorTime(const QProcess &process)
{
    QFile file(QString("/proc/%1/stat").arg(process.processId()));
    if (!file.open(QFile::ReadOnly)) {
        return -1;
    }
    const QList<QByteArray> fields = file.readAll().split(')').last().split(' ');
    return (fields.value(12).toLongLong() + fields.value(13).toLongLong()) * 1000 / ::sysconf(_SC_CLK_TCK);
}

} // namespace

void TestEndToEnd::climate()
{
    PtyBox box;
    HeadUnitRun run;
    QVERIFY(startToyota(&run, box.path()));
    QVERIFY(box.waitForBytes(15));
    QCOMPARE(RaiseWire::parse(box.take()).packages,
             QByteArrayList({"81 01", "81 01", "81 01"})); // ready, three times
    run.take();
    QVERIFY(box.send(RaiseWire::frame("28 c0 25 0a 0d 00")));
    QVERIFY(box.waitForBytes(1));
    QCOMPARE(box.take(), QByteArray("\xff"));
    QVERIFY(!run.waitFor("AirConditionDlg", "setVisible").isEmpty());
    const QList<QJsonObject> lines = run.take();
    QCOMPARE(calls(lines, "ProtocolUtils"),
             QStringList({"recvProtocolData[\"" + RaiseWire::frame("28 c0 25 0a 0d 00").toHex() + "\"]",
                          "writeDatas_direct[\"ff\"]"}));
    QCOMPARE(calls(lines, "AirConditionDlg"),
             QStringList({"setAirConditionEnable[true]", "setACEnable[true]", "setAutoModeEnable[false]",
                          "setWindDirectEx[1]", "setAirVolume[5]", "setCirculationMode[0]",
                          QString::fromUtf8("setTemperature[\"22.5°C\",\"24.0°C\"]"), "setVisible[true]"}));
    QCOMPARE(run.answer("mode 4"), QString("mode []"));
    QVERIFY(box.waitForBytes(25));
    QCOMPARE(RaiseWire::parse(box.take()).packages, QByteArrayList{"99 04" + QByteArray(" 00").repeated(20)});
}

void TestEndToEnd::lineThatHangsUp()
{
    HeadUnitRun run;
    {
        PtyBox box;
        QVERIFY(startToyota(&run, box.path()));
    }
    QCOMPARE(run.answer("wait 50"), QString("wait []"));
    const qint64 before = processorTime(run.process());
    QCOMPARE(run.answer("wait 400"), QString("wait []"));
    QVERIFY2(processorTime(run.process()) - before < 100, "the unit is busy with a line that is gone");
    QCOMPARE(run.answer("key 1 press"), QString("key [\"delivered\"]"));
    QCOMPARE(run.answer("quit"), QString("quit []"));
    QCOMPARE(run.finish(), 0);
    QCOMPARE(run.errors().count("lost the device"), 1);
}

void TestEndToEnd::boxDrivesItsScenario()
{
    QTemporaryDir folder;
    QFile scenario(folder.filePath("drive.scn"));
    QVERIFY(scenario.open(QFile::WriteOnly));
    const QByteArray package = RaiseWire::frame("55 01").toHex();
    scenario.write("0.2 raw " + package + '\n');
    scenario.close();
    HeadUnitRun run;
    QVERIFY(run.start({"--headless", "--trace", "-", "--can-bus-type", "CanBus_Raise_Nissan", "--decoder-box",
                       scenario.fileName()}));
    QCOMPARE(run.finish(), 0); // with the scenario
    QVERIFY(calls(run.take(), "ProtocolUtils").contains("recvProtocolData[\"" + package + "\"]"));
}

// A drive that starts over every second, and a script whose lines come at once or one by one.
void TestEndToEnd::virtualMinuteIsTheSameEachTime()
{
    QTemporaryDir folder;
    QFile scenario(folder.filePath("drive.scn"));
    QVERIFY(scenario.open(QFile::WriteOnly));
    const QByteArray package = RaiseWire::frame("20 01 01").toHex();
    scenario.write("0.2 raw " + package + "\n1 again\n");
    scenario.close();
    const QByteArrayList script = {"wait 200", "mode 3", "key 1 press", "wait 0", "wait 59800", "quit"};
    QList<QJsonObject> traces[2];
    for (const bool isSlow : {false, true}) {
        HeadUnitRun run;
        QVERIFY(run.start({"--headless", "--virtual-clock", "--trace", "-", "--script", "-", "--can-bus-type",
                           "CanBus_Raise_Toyota", "--decoder-box", scenario.fileName()}));
        if (!isSlow) {
            run.write(script.join('\n'));
        }
        for (const QByteArray &line : isSlow ? script : QByteArrayList()) {
            QVERIFY(!run.answer(line).isEmpty());
        }
        run.process().closeWriteChannel();
        QCOMPARE(run.finish(), 0);
        traces[isSlow] = run.take();
    }
    QCOMPARE(traces[0], traces[1]);
    QCOMPARE(calls(traces[0], "ProtocolUtils").count("recvProtocolData[\"" + package + "\"]"), 60);
}

void TestEndToEnd::everyTypeStartsAndEnds_data()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type <= 16; ++type) {
        QTest::addRow("type %d", type) << type;
    }
}

void TestEndToEnd::everyTypeStartsAndEnds()
{
    QFETCH(int, type);
    PtyBox box;
    QTemporaryDir settings;
    HeadUnitRun run;
    QVERIFY(run.start({"--headless", "--trace", "-", "--script", "-", "--can-bus-type", QString::number(type),
                       "--port", box.path(), "--settings-dir", settings.path()}));
    QCOMPARE(run.answer("wait 80"), QString("wait []"));
    QCOMPARE(run.answer("show 769"), QString("show []"));
    QCOMPARE(run.answer("notify 20486"), QString("notify []"));
    QCOMPARE(run.answer("quit"), QString("quit []"));
    QCOMPARE(run.finish(), 0);
}

QTEST_GUILESS_MAIN(TestEndToEnd)
#include "tst_endtoend.moc"
