#include "headunitoptions.h"
#include "headunitrun.h"
#include "transcript.h"

#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

/// The command line: what it sets, and what the program says to a wrong one.
class TestOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings();
    void boxMayLackItsScenario_data();
    void boxMayLackItsScenario();
    void typeByName_data();
    void typeByName();
    void commandLine();
    void noDisplay_data();
    void noDisplay();
    void goesOnWithoutALink_data();
    void goesOnWithoutALink();
};

void TestOptions::settings()
{
    HeadUnitOptions options;
    QString error;
    QVERIFY2(
        options.parse(
            QString("headunit --can-bus-type CanBus_Raise_Toyota --key-redef 0x2 --tag 0x10001=0x3000000 "
                    "--tag 69641=1 --product Name=a=b --product Code=0x1F --product Zip=007 --tag "
                    "0x10002=0x100000001000000 "
                    "--factory Set=1,two,3 --settings-dir s --product ScreenSize=800x480 --port /dev/x")
                .split(' '),
            &error),
        qPrintable(error));
    QCOMPARE(options.tags.value(0x10008).toUInt(), 9u);
    QCOMPARE(options.tags.value(0x1000c).toUInt(), 2u);
    QCOMPARE(options.tags.value(0x10001).toUInt(), 0x3000000u);
    QCOMPARE(options.tags.value(0x11009).toUInt(), 1u);
    QCOMPARE(options.tags.value(0x10002).toULongLong(), Q_UINT64_C(0x100000001000000));
    QCOMPARE(options.productValues.value("Name").toString(), QString("a=b"));
    QCOMPARE(options.productValues.value("Code").toUInt(), 0x1Fu);
    QCOMPARE(options.productValues.value("Zip").toString(), QString("007"));
    QCOMPARE(options.productValues.value("CANPortName").toString(), QString("/dev/x"));
    QCOMPARE(options.factorySettings.value("Set"), QStringList({"1", "two", "3"}));
    QCOMPARE(options.settingsDir, QString("s"));
    QCOMPARE(options.screenSize, QSize(800, 480));
}

void TestOptions::boxMayLackItsScenario_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("scenario");
    QTest::newRow("last") << "--can-bus-type 9 --decoder-box"
                          << "";
    QTest::newRow("another option behind") << "--decoder-box --can-bus-type 9"
                                           << "";
    QTest::newRow("with scenario") << "--decoder-box drive.scn --can-bus-type 9"
                                   << "drive.scn";
    QTest::newRow("type by tag") << "--decoder-box --tag 0x10008=9"
                                 << "";
}

void TestOptions::boxMayLackItsScenario()
{
    QFETCH(QString, line);
    HeadUnitOptions options;
    QString error;
    QVERIFY2(options.parse(("headunit " + line).split(' '), &error), qPrintable(error));
    QVERIFY(options.hasDecoderBox);
    QTEST(options.scenario, "scenario");
    QCOMPARE(options.canBusType(), 9u);
}

void TestOptions::typeByName_data()
{
    QTest::addColumn<uint>("type");
    for (const char *name : {"toyota", "Raise_TOYOTA", "canbus_raise_toyota", "0x9"}) {
        QTest::newRow(name) << 9u;
    }
    QTest::newRow("zd") << 2u;
    QTest::newRow("XinHang") << 4u;
}

void TestOptions::typeByName()
{
    HeadUnitOptions options;
    QString error;
    QVERIFY2(options.parse({"headunit", "--can-bus-type", QTest::currentDataTag()}, &error),
             qPrintable(error));
    QTEST(options.canBusType(), "type");
}

void TestOptions::commandLine()
{
    const QMap<QString, QString> files = {{"CMAKE_LIST", CMAKE_LIST},
                                          {"NO_CREATE", NO_CREATE},
                                          {"NO_DESTROY", NO_DESTROY},
                                          {"NO_OBJECT", NO_OBJECT}};
    const auto act = [&files](const QString &order) {
        const QString line = order.section(" => ", 0, 0);
        const QString word = order.section(" => ", 1);
        if (line.startsWith("==")) {
            return QStringList();
        }
        const bool isWhole = line.startsWith("run ");
        QStringList arguments = line.split(' ').mid(isWhole ? 1 : 0);
        arguments.last() = files.value(arguments.last(), arguments.last());
        const QStringList whole = {"--headless", "--plugin", PROBE_PLUGIN};
        QTemporaryDir folder;
        HeadUnitRun run;
        run.process().setWorkingDirectory(folder.path());
        run.start((isWhole ? whole : QStringList()) + arguments);
        QStringList lines = {QString("ends with %1").arg(run.finish())};
        for (QString said : run.errors().split('\n')) {
            if (said.startsWith("headunit: ") || said.startsWith("Usage: ")) {
                const bool isLibrarys = !word.isEmpty() && said.contains(word);
                lines << (isLibrarys && lines.size() == 1
                              ? "..." + word
                              : said.replace(QRegularExpression("/\\S*/"), "/.../"));
            }
        }
        return lines;
    };
    COMPARE_WITH_TRANSCRIPT("commandline.txt", act);
}

void TestOptions::noDisplay_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("none") << QString() << "no display; use --headless";
    QTest::newRow("that nobody serves") << ":9999"
                                        << "the display ':9999' cannot be opened; use --headless";
}

void TestOptions::noDisplay()
{
    QFETCH(QString, display);
    QFETCH(QString, sentence);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(name);
    }
    environment.insert("DISPLAY", display);
    HeadUnitRun run;
    run.process().setProcessEnvironment(environment);
    QVERIFY(run.start({}));
    QCOMPARE(run.finish(), 1);
    QCOMPARE(run.errors(), "headunit: " + sentence + "\n");
}

void TestOptions::goesOnWithoutALink_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("port missing") << QStringList{"--can-bus-type", "9", "--port", "/dev/nowhere"}
                                  << "/dev/nowhere";
    QTest::newRow("port is no terminal")
        << QStringList{"--can-bus-type", "9", "--port", "/dev/null"} << "/dev/null";
    QTest::newRow("empty port name") << QStringList{"--can-bus-type", "9", "--port", ""}
                                     << "the port has no name";
    QTest::newRow("unknown type") << QStringList{"--can-bus-type", "99"} << "CAN-bus type 99";
}

void TestOptions::goesOnWithoutALink()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    HeadUnitRun run;
    QVERIFY(run.start(QStringList{"--headless", "--script", "-"} + arguments));
    QCOMPARE(run.answer("wait 100"), QString("wait []"));
    QCOMPARE(run.answer("key 1 press"), QString("key [\"delivered\"]"));
    run.process().closeWriteChannel();
    QCOMPARE(run.finish(), 0);
    const QString errors = run.errors();
    QVERIFY2(errors.contains(message), qPrintable(errors));
}

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_options.moc"
