// Orders to a box: scenario files, scripts and the program's command line.

#include "boxscript.h"
#include "decoderbox.h"
#include "scenarioplayer.h"
#include "simulatedunit.h"
#include "transcript.h"
#include "virtualmain.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QSignalSpy>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

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
    void wrongScenario();
    void shippedScenarios_data();
    void shippedScenarios();
    void scenarioPlaysInTime();
    void scriptAnswers();
    void programEnds();
    void programServesAUnit();
};

void TestBoxOrders::wrongScenario()
{
    QTemporaryDir folder;
    const auto box = openBox(9);
    const auto act = [&](const QString &drive) {
        const QString path = writeScenario(folder, QString(drive).replace(" | ", "\n"));
        Scenario scenario;
        QString said;
        return QStringList(scenario.load(path, *box, &said) ? "good" : said.remove(path + ':'));
    };
    COMPARE_WITH_TRANSCRIPT("wrongdrives.txt", act);
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
                                               "0.4 climate.ac on # cold at last\n"
                                               "0.4 key next tap 100\n"
                                               "0.8 end\n");
    const auto box = openBox(9);
    SimulatedUnit unit(*box);
    Scenario scenario;
    QString error;
    QVERIFY2(scenario.load(path, *box, &error), qPrintable(error));
    ScenarioPlayer player(box.get(), scenario);
    QSignalSpy finished(&player, &ScenarioPlayer::finished);
    player.play();
    QTest::qWait(350);
    QCOMPARE(unit.singleBytes(), QByteArray("\x01\x02"));
    QVERIFY(!box->car()->flag("climate.ac"));
    unit.forget();
    QTRY_COMPARE(int(finished.size()), 1);
    QCOMPARE(finished.first().first().toBool(), true);
    const QVector<QByteArray> expected = {RaiseWire::frame("28 c0 42 07 07 00"), RaiseWire::frame("20 03 01"),
                                          RaiseWire::frame("20 03 00")};
    QCOMPARE(unit.frames(), expected);
    const qint64 tap = unit.packages().at(2).ms - unit.packages().at(1).ms;
    QVERIFY2(tap >= 80 && tap < 160, qPrintable(QString::number(tap)));
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
        "get climate.fan\nclimate.fan 5\nget climate.fan\nget x\nclimate.fan 9\nwait 30\n"
        "observed mode\n\nstate\nstart\nstate\nwait soon\nkey next tap";
    // The line that is still being written when the first half is read counts whole.
    const QByteArray firstHalf = lines.left(20);
    const QByteArray secondHalf = lines.mid(20);
    QCOMPARE(::write(ends[1], firstHalf.constData(), size_t(firstHalf.size())), ssize_t(firstHalf.size()));
    QTRY_COMPARE(int(answers.size()), 1);
    QCOMPARE(::write(ends[1], secondHalf.constData(), size_t(secondHalf.size())), ssize_t(secondHalf.size()));
    ::close(ends[1]);
    QTRY_COMPARE(int(finished.size()), 1);
    ::close(ends[0]);
    const QString expected = "climate.fan 2\nok\nclimate.fan 5\nerror: unknown property 'x'\n"
                             "error: 'climate.fan' takes a whole number from 0 to 8, not '9'\nok\n"
                             "error: nothing heard of 'mode'\nwaits\nok\ntalks\n"
                             "error: expected: wait MS\nok";
    QCOMPARE(answers.join('\n'), expected);
}

void TestBoxOrders::programEnds()
{
    const auto act = [](QString line) {
        const VirtualClock::Hold hold;
        QProcess program;
        program.start(DECODERBOX, line.replace("SCENARIOS", SCENARIO_FOLDER).split(' ').mid(1));
        const bool hasEnded = program.waitForFinished(5000) && program.exitStatus() == QProcess::NormalExit;
        const QString said = QString::fromLocal8Bit(program.readAllStandardError()).remove(SCENARIO_FOLDER);
        return QStringList{hasEnded ? QString("ends with %1").arg(program.exitCode()) : "does not end",
                           said.section('\n', 0, 0),
                           said.contains("\nUsage: ") ? "and the usage" : "no more"};
    };
    COMPARE_WITH_TRANSCRIPT("commandline.txt", act);
}

void TestBoxOrders::programServesAUnit()
{
    const VirtualClock::Hold hold; // another process
    QTemporaryDir folder;
    const QString link = folder.filePath("can");
    const QString log = folder.filePath("log");
    QProcess program;
    program.start(DECODERBOX,
                  {"--type", "CanBus_Raise_Toyota", "--link", link, "--log", log, "--script", "-"});
    QVERIFY(program.waitForReadyRead(5000));
    QCOMPARE(QString::fromLocal8Bit(program.readLine()).trimmed(), QFile::symLinkTarget(link));
    program.write("start\nwait 50\nget climate.left\n");
    QVERIFY(program.waitForReadyRead(5000)); // without an end of the script
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished(5000));
    QCOMPARE(program.readAllStandardOutput(), QByteArray("ok\nok\nclimate.left 21\n"));
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(!QFileInfo(link).isSymLink());
    QFile lines(log);
    QVERIFY(lines.open(QIODevice::ReadOnly));
    QVERIFY(lines.readLine().contains(" box>unit 2e3020"));
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxOrders)
#include "tst_boxorders.moc"
