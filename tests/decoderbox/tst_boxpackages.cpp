// What each box puts into its packages, and what it understands of the unit's: every row was worked out by
// hand from the box's data sheet.

#include "boxcatalog.h"
#include "boxtools.h"
#include "simulatedunit.h"

#include <QtTest>

class TestBoxPackages : public QObject
{
    Q_OBJECT

private slots:
    void reports_data();
    void reports();
    void keys_data();
    void keys();
    void knobTurns();
    void observations_data();
    void observations();
    void xinHangAnswersEveryReady();
    void xinHangUnitSwitchesTheScreen();
    void xinHangTouch();
    void everyReportIsAboutSomething_data();
    void everyReportIsAboutSomething();

private:
    static void row(int type, const char *name, const char *changes, const char *report, const char *package);
    void toyotaReports();
    void hondaReports();
    void gmReports();
    void mazdaReports();
    void xinHangReports();
};

void TestBoxPackages::reports_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArray>("package");
    toyotaReports();
    hondaReports();
    gmReports();
    mazdaReports();
    xinHangReports();
}

void TestBoxPackages::row(int type, const char *name, const char *changes, const char *report,
                          const char *package)
{
    QTest::addRow("type %d: %s", type, name)
        << type << QString(changes) << QString(report) << QByteArray(package);
}

void TestBoxPackages::toyotaReports()
{
    row(9, "version ends in NULs", "box.version AB", "version",
        "30 41 42 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    row(9, "climate off", "climate.power off; climate.to_face off; climate.fan 0", "climate",
        "28 00 00 07 07 00");
    row(9, "climate switches", "climate.ac on; climate.auto on; climate.defrost on; climate.circulation in",
        "climate", "28 ea 42 07 07 00");
    row(9, "climate circulates by itself", "climate.circulation auto", "climate", "28 80 42 07 07 20");
    row(9, "air to window and feet, shown",
        "climate.to_window on; climate.to_face off; climate.to_feet on; climate.show on", "climate",
        "28 80 b2 07 07 00");
    row(9, "LO and HI", "climate.left LO; climate.right HI", "climate", "28 80 42 00 1f 00");
    row(9, "18 and 32 degrees", "climate.left 18; climate.right 32", "climate", "28 80 42 01 1d 00");
    row(9, "16 and 17.5 degrees", "climate.left 16; climate.right 17.5", "climate", "28 80 42 20 23 00");
    row(9, "colder than the display goes", "climate.left 15.5", "climate", "28 80 42 00 07 00");
    row(9, "Fahrenheit", "climate.unit F; climate.left 20; climate.right HI", "climate", "28 80 42 44 ff 01");
    row(9, "left lock", "steering.angle -540", "steering", "29 7c 01");
    row(9, "right lock", "steering.angle 540", "steering", "29 84 0e");
    row(9, "straight on", "", "steering", "29 00 00");
    row(9, "front radar, every level", "radar.front.1 1; radar.front.2 2; radar.front.3 3; radar.front.4 4",
        "radar front", "1d 01 02 02 03");
    row(9, "rear radar, far", "radar.rear.1 5; radar.rear.2 6", "radar rear", "1e 04 05 00 00");
    row(9, "front left door", "doors.front_left on", "doors", "24 40");
    row(9, "front right door", "doors.front_right on", "doors", "24 80");
    row(9, "rear left door", "doors.rear_left on", "doors", "24 10");
    row(9, "rear right door", "doors.rear_right on", "doors", "24 20");
    row(9, "360 view wanted", "camera.view360 on", "360 view", "32 0c");
    row(9, "360 view no longer", "", "360 view", "32 04");
}

void TestBoxPackages::hondaReports()
{
    row(7, "climate switches", "climate.ac on; climate.auto on; climate.circulation in; climate.defrost on",
        "climate", "21 e8 42 2a 2a 81 00 00 00 00");
    row(7, "screen up and wanted", "climate.screen on; climate.show on", "climate",
        "21 80 52 2a 2a 41 00 00 00 00");
    row(7, "half degrees", "climate.left 22.5; climate.right LO", "climate", "21 80 42 2d 00 01 00 00 00 00");
    row(7, "Fahrenheit and HI", "climate.unit F; climate.left 22; climate.right HI", "climate",
        "21 80 42 48 ff 00 00 00 00 00");
    row(7, "left lock", "steering.angle -540", "steering", "29 00 ee");
    row(7, "right lock", "steering.angle 540", "steering", "29 00 12");
    row(7, "rear radar", "radar.rear.1 1; radar.rear.2 3; radar.rear.3 4; radar.rear.4 6", "radar rear",
        "22 01 02 03 04");
    row(7, "front radar", "radar.front.4 5", "radar front", "23 00 00 00 03");
    row(7, "doors", "doors.front_left on; doors.rear_right on", "doors", "24 60");
}

void TestBoxPackages::gmReports()
{
    row(10, "climate switches", "climate.ac on; climate.auto on; climate.fan_auto on; climate.circulation in",
        "climate", "03 e2 05 09 09 00 00 03");
    row(10, "circulates by itself, fan at most", "climate.circulation auto; climate.fan 7", "climate",
        "03 8f 05 09 09 00 00 00");
    row(10, "coldest codes", "climate.left 15; climate.right 15.5", "climate", "03 82 05 20 21 00 00 00");
    row(10, "cold codes", "climate.left 16; climate.right 16.5", "climate", "03 82 05 1d 1f 00 00 00");
    row(10, "usual codes", "climate.left 17; climate.right 30.5", "climate", "03 82 05 01 1c 00 00 00");
    row(10, "hottest codes", "climate.left 31; climate.right 31.5", "climate", "03 82 05 22 1e 00 00 00");
    row(10, "LO and HI", "climate.left LO; climate.right HI", "climate", "03 82 05 00 1e 00 00 00");
    row(10, "defrost", "climate.defrost on", "climate", "03 82 02 09 09 00 00 00");
    row(10, "air nowhere", "climate.to_face off", "climate", "03 82 01 09 09 00 00 00");
    row(10, "air to window and feet", "climate.to_face off; climate.to_window on; climate.to_feet on",
        "climate", "03 82 08 09 09 00 00 00");
    row(10, "air everywhere", "climate.to_window on; climate.to_feet on", "climate",
        "03 82 09 09 09 00 00 00");
    row(10, "left lock", "steering.angle -540", "steering", "26 40 de");
    row(10, "one degree to the right", "steering.angle 1", "steering", "26 10 00");
    row(10, "rear radar", "radar.rear.1 6; radar.rear.4 5", "radar rear", "22 06 00 00 05");
    row(10, "front radar", "radar.front.2 1", "radar front", "23 00 01 00 00");
}

void TestBoxPackages::mazdaReports()
{
    row(5, "front left door", "doors.front_left on", "doors", "02 80");
    row(5, "other doors", "doors.front_right on; doors.rear_left on; doors.rear_right on", "doors", "02 70");
    row(5, "half to the left", "steering.angle -270", "steering", "07 00 f7");
    row(5, "radar: the nearer of the middle two", "radar.front.1 1; radar.front.2 6; radar.front.3 4",
        "radar", "08 00 01 03 00 00 00 00");
    row(5, "radar: one of the middle two", "radar.rear.3 2; radar.rear.4 6", "radar",
        "08 00 00 00 00 00 02 04");
}

void TestBoxPackages::xinHangReports()
{
    row(4, "car type", "box.car_type 261", "car type", "0a 01 05");
    row(4, "version ends in NULs", "box.version V2", "version",
        "05 56 32 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    row(4, "radar maxima", "box.radar_maxima 1,2,3,4,5,6,255,0", "radar maxima",
        "09 01 02 03 04 05 06 ff 00");
    row(4, "fewer radar sensors", "box.radar_maxima 9,9", "radar maxima", "09 09 09 00 00 00 00 00 00");
    row(4, "factory screen", "screen.factory on", "status", "01 10 00 00 00");
    row(4, "reverse gear", "gear.reverse on", "status", "01 20 00 00 00");
    row(4, "right indicator", "indicator.right on", "status", "01 40 00 00 00");
    row(4, "left doors", "doors.front_left on; doors.rear_left on", "status", "01 00 05 00 00");
    row(4, "right doors and lights", "doors.front_right on; doors.rear_right on; light.illumination on",
        "status", "01 00 0a 01 00");
    row(4, "left lock", "steering.angle -540", "radar and steering", "02 28 00 00 00 00 00 00 00 00");
    row(4, "68 degrees to the right", "steering.angle 68", "radar and steering",
        "02 85 00 00 00 00 00 00 00 00");
    row(4, "front radar of seven steps", "radar.front.1 1; radar.front.2 3; radar.front.3 5; radar.front.4 6",
        "radar and steering", "02 00 01 03 05 07 00 00 00 00");
    row(4, "rear radar of other steps",
        "box.radar_maxima 0,0,0,0,3,60,255,0; radar.rear.1 1; radar.rear.2 2; radar.rear.3 6",
        "radar and steering", "02 00 00 00 00 00 01 14 ff 00");
}

void TestBoxPackages::reports()
{
    QFETCH(int, type);
    QFETCH(QString, changes);
    QFETCH(QString, report);
    const auto box = makeBox(type);
    change(box.get(), changes);
    QTEST(reportData(*box, report), "package");
}

void TestBoxPackages::keys_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("package");
    QTest::newRow("toyota: volume up pressed") << 9 << "volume_up" << 1 << QByteArray("20 01 01");
    QTest::newRow("toyota: enter held") << 9 << "enter" << 2 << QByteArray("20 16 02");
    QTest::newRow("toyota: the panel's next released") << 9 << "panel_next" << 0 << QByteArray("20 84 00");
    QTest::newRow("honda: mute pressed") << 7 << "mute" << 1 << QByteArray("20 17 01");
    QTest::newRow("gm: wheel") << 10 << "previous" << 1 << QByteArray("01 03 01");
    QTest::newRow("gm: panel") << 10 << "panel_home_2" << 2 << QByteArray("02 53 02");
    QTest::newRow("jeep: wheel") << 15 << "next" << 0 << QByteArray("01 1c 00");
    QTest::newRow("jeep: panel") << 15 << "panel_power_2" << 1 << QByteArray("04 0a 01");
    QTest::newRow("mazda: panel") << 5 << "panel_back" << 1 << QByteArray("01 2a 01");
    QTest::newRow("xinhang: wheel") << 4 << "hangup" << 1 << QByteArray("03 01 10");
    QTest::newRow("xinhang: panel") << 4 << "panel_digit_6" << 2 << QByteArray("0b 02 22");
    QTest::newRow("xinhang: cursor pressed") << 4 << "cursor_right" << 1 << QByteArray("87 03");
    QTest::newRow("xinhang: cursor released") << 4 << "cursor_right" << 0 << QByteArray();
    QTest::newRow("xinhang: application wanted") << 4 << "application_2" << 1 << QByteArray("0c 02");
}

void TestBoxPackages::keys()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    QFETCH(int, state);
    const auto box = makeBox(type);
    const QByteArray sent = keyData(*box, key, BoxSpeaker::KeyState(state));
    QTEST(sent, "package");
}

void TestBoxPackages::knobTurns()
{
    for (const int type : {5, 10}) {
        const auto box = openBox(type);
        SimulatedUnit unit(*box);
        box->start();
        QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
        unit.forget();
        QVERIFY(box->turnKnob("volume_knob_up", 255));
        QVERIFY(!box->turnKnob("volume_knob_up", 256));
        QVERIFY(!box->pressKey("volume_knob_up"));
        QTRY_COMPARE(unit.frames(), QVector<QByteArray>(1, raiseFrame(type == 5 ? "01 f0 ff" : "02 17 ff")));
    }
}

void TestBoxPackages::observations_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QString>("value");
    QTest::newRow("toyota: mode") << 9 << raiseFrame("99 05 00 00") << "mode"
                                  << "0x05";
    QTest::newRow("toyota: car's own sound") << 9 << raiseFrame("84 07 2a") << "sound 0x07"
                                             << "0x2a";
}

void TestBoxPackages::observations()
{
    QFETCH(int, type);
    QFETCH(QByteArray, package);
    QFETCH(QString, topic);
    QFETCH(QString, value);
    const auto box = openBox(type);
    SimulatedUnit unit(*box);
    unit.write(package);
    QTRY_COMPARE(box->observation(topic), value);
}

void TestBoxPackages::xinHangAnswersEveryReady()
{
    const auto box = openBox(4);
    SimulatedUnit unit(*box);
    const QByteArray ready = QByteArray::fromHex("f0038101017c");
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size() + 1);
    QCOMPARE(unit.frames().last(), QByteArray::fromHex("f0030a0001f4"));
    unit.write(xinHangFrame("55 00") + QByteArray::fromHex("f00281017e f000ff"));
    QTest::qWait(20);
    QVERIFY2(unit.singleBytes().isEmpty(), "this box answers nothing");
}

void TestBoxPackages::xinHangUnitSwitchesTheScreen()
{
    const auto box = openBox(4);
    SimulatedUnit unit(*box);
    box->start();
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
    unit.forget();
    unit.write(xinHangFrame("83 01"));
    QTRY_COMPARE(unit.frames(), QVector<QByteArray>(1, xinHangFrame("01 10 00 00 00")));
    QVERIFY(box->car()->flag("screen.factory"));
    unit.write(xinHangFrame("83 02"));
    QTRY_VERIFY(!box->car()->flag("screen.factory"));
}

void TestBoxPackages::xinHangTouch()
{
    const auto box = openBox(4);
    SimulatedUnit unit(*box);
    box->start();
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
    unit.forget();
    QVERIFY(box->touch(BoxSpeaker::TouchPressed, 1023, 258));
    QTRY_COMPARE(unit.frames(), QVector<QByteArray>(1, xinHangFrame("04 01 03 ff 01 02")));
}

void TestBoxPackages::everyReportIsAboutSomething_data()
{
    QTest::addColumn<int>("type");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.makeSpeaker) {
            QTest::newRow(row.className) << row.type;
        }
    }
}

// A name that is misspelt in a speaker's tables would leave the box mute about it.
void TestBoxPackages::everyReportIsAboutSomething()
{
    QFETCH(int, type);
    const auto box = makeBox(type);
    const QStringList properties = box->speaker()->properties();
    for (const BoxReport &report : box->speaker()->reports()) {
        for (const QString &name : report.concerns) {
            const bool known =
                SimulatedCar::has(name) ||
                (name.endsWith('.') && !properties.filter(QRegularExpression('^' + name)).isEmpty());
            QVERIFY2(known, qPrintable(name));
        }
        report.data(*box->car());
    }
    QSet<QString> names;
    for (const BoxKey &key : box->speaker()->keys()) {
        QVERIFY2(!names.contains(key.name), qPrintable(key.name));
        names << key.name;
    }
}

QTEST_GUILESS_MAIN(TestBoxPackages)
#include "tst_boxpackages.moc"
