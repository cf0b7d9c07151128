#include "headunitoptions.h"
#include "headunitrun.h"

#include <QTemporaryDir>
#include <QtTest>

/// The command line: what it sets, and what the program says to a wrong one.
class TestOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings();
    void boxMayLackItsScenario_data();
    void boxMayLackItsScenario();
    void wrongUsage_data();
    void wrongUsage();
    void cannotRun_data();
    void cannotRun();
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
                    "--tag 69641=1 --product Name=a=b --product Code=0x1F --product Zip=007 "
                    "--factory Set=1,two,3 --settings-dir s --product ScreenSize=800x480 --port /dev/x")
                .split(' '),
            &error),
        qPrintable(error));
    QCOMPARE(options.tags.value(0x10008).toUInt(), 9u);
    QCOMPARE(options.tags.value(0x1000c).toUInt(), 2u);
    QCOMPARE(options.tags.value(0x10001).toUInt(), 0x3000000u);
    QCOMPARE(options.tags.value(0x11009).toUInt(), 1u);
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

void TestOptions::wrongUsage_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown option") << "--colour red"
                                    << "colour";
    QTest::newRow("word without option") << "drive.scn"
                                         << "drive.scn";
    QTest::newRow("value missing at the end") << "--port"
                                              << "port";
    QTest::newRow("option in place of a value") << "--trace --headless"
                                                << "--trace";
    QTest::newRow("unknown class") << "--can-bus-type CanBus_Nobody"
                                   << "CanBus_Nobody";
    QTest::newRow("type with a sign") << "--can-bus-type -9"
                                      << "-9";
    QTest::newRow("type past 32 bits") << "--can-bus-type 4294967296"
                                       << "4294967296";
    QTest::newRow("key set by name") << "--key-redef HUD"
                                     << "HUD";
    QTest::newRow("tag without value") << "--tag 0x10008"
                                       << "ID=VALUE";
    QTest::newRow("tag by name") << "--tag type=9"
                                 << "type=9";
    QTest::newRow("product without key") << "--product =1"
                                         << "KEY=VALUE";
    QTest::newRow("factory without value") << "--factory Set"
                                           << "KEY=VALUE";
    QTest::newRow("screen without height") << "--product ScreenSize=800"
                                           << "ScreenSize";
    QTest::newRow("screen without end") << "--product ScreenSize=99999x99999"
                                        << "ScreenSize";
    QTest::newRow("port and box") << "--can-bus-type 9 --port /dev/x --decoder-box"
                                  << "exclude";
    QTest::newRow("box of no type") << "--decoder-box"
                                    << "--can-bus-type";
    QTest::newRow("virtual clock on a display") << "--virtual-clock"
                                                << "needs --headless";
    QTest::newRow("virtual clock from no such day") << "--headless --virtual-clock 2026-02-30T08:00:00"
                                                    << "2026-02-30T08:00:00";
}

void TestOptions::wrongUsage()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    HeadUnitRun run;
    QVERIFY(run.start(line.split(' ')));
    QCOMPARE(run.finish(), 2);
    const QString errors = run.errors();
    QVERIFY2(errors.section('\n', 0, 0).contains(reason), qPrintable(errors));
    QVERIFY2(errors.contains("Usage: headunit"), qPrintable(errors));
}

void TestOptions::cannotRun_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such plug-in") << "--plugin nowhere.so"
                                     << "nowhere.so: there is no such plug-in";
    QTest::newRow("plug-in is a folder") << "--plugin /"
                                         << "/: there is no such plug-in";
    QTest::newRow("plug-in is a text") << "--plugin " CMAKE_LIST << "CMakeLists.txt";
    QTest::newRow("plug-in lacks create") << "--plugin " NO_CREATE << "lacks the entry point 'create'";
    QTest::newRow("plug-in lacks destroy") << "--plugin " NO_DESTROY << "lacks the entry point 'destroy'";
    QTest::newRow("plug-in builds nothing") << "--plugin " NO_OBJECT << "'create' built no plug-in";
    QTest::newRow("trace in a folder that is not there") << "--trace nowhere/t.jsonl"
                                                         << "nowhere/t.jsonl: ";
    QTest::newRow("script that is not there") << "--script nowhere.txt"
                                              << "nowhere.txt: ";
    QTest::newRow("script that is a folder") << "--script /"
                                             << "/: ";
    QTest::newRow("scenario that is not there") << "--can-bus-type 9 --decoder-box nowhere.scn"
                                                << "nowhere.scn";
    QTest::newRow("scenario with a wrong line")
        << "--can-bus-type 9 --decoder-box " CMAKE_LIST << "CMakeLists.txt:2: ";
    QTest::newRow("box of unknown protocol") << "--can-bus-type 1 --decoder-box"
                                             << "1";
    QTest::newRow("virtual clock without an end") << "--virtual-clock --can-bus-type 9 --decoder-box"
                                                  << "would never end";
}

void TestOptions::cannotRun()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    HeadUnitRun run;
    run.process().setWorkingDirectory(folder.path());
    QVERIFY(run.start(QStringList{"--headless", "--plugin", PROBE_PLUGIN} + line.split(' ')));
    QCOMPARE(run.finish(), 1);
    const QStringList lines = run.errors().split('\n').filter("headunit: ");
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(reason), qPrintable(lines.first()));
}

void TestOptions::noDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(name);
    }
    HeadUnitRun run;
    run.process().setProcessEnvironment(environment);
    QVERIFY(run.start({}));
    QCOMPARE(run.finish(), 1);
    QCOMPARE(run.errors(), QString("headunit: no display; use --headless\n"));
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
