// What each box puts into its packages, and what it understands of the unit's: every row was worked out by
// hand from the box's data sheet.

#include "boxcatalog.h"
#include "boxtools.h"
#include "simulatedunit.h"
#include "virtualmain.h"

#include <QtTest>

namespace {

// What a box tells of a car in which something is changed.
const struct
{
    int type;
    const char *name;
    const char *changes;
    const char *package;
} ReportRows[] = {
    {9, "version ends in NULs", "box.version AB",
     "30 41 42 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
    {9, "climate off", "climate.power off; climate.to_face off; climate.fan 0", "28 00 00 07 07 00"},
    {9, "climate switches", "climate.ac on; climate.auto on; climate.defrost on; climate.circulation in",
     "28 ea 42 07 07 00"},
    {9, "climate circulates by itself", "climate.circulation auto", "28 80 42 07 07 20"},
    {9, "air to window and feet, shown",
     "climate.to_window on; climate.to_face off; climate.to_feet on; climate.show on", "28 80 b2 07 07 00"},
    {9, "LO and HI", "climate.left LO; climate.right HI", "28 80 42 00 1f 00"},
    {9, "18 and 32 degrees", "climate.left 18; climate.right 32", "28 80 42 01 1d 00"},
    {9, "16 and 17.5 degrees", "climate.left 16; climate.right 17.5", "28 80 42 20 23 00"},
    {9, "colder than the display goes", "climate.left 15.5", "28 80 42 00 07 00"},
    {9, "Fahrenheit", "climate.unit F; climate.left 20; climate.right HI", "28 80 42 44 ff 01"},
    {9, "left lock", "steering.angle -540", "29 7c 01"},
    {9, "right lock", "steering.angle 540", "29 84 0e"},
    {9, "front radar, every level", "radar.front.1 1; radar.front.2 2; radar.front.3 3; radar.front.4 4",
     "1d 01 02 02 03"},
    {9, "rear radar, far", "radar.rear.1 5; radar.rear.2 6", "1e 04 05 00 00"},
    {9, "front right door", "doors.front_right on", "24 80"},
    {9, "rear right door", "doors.rear_right on", "24 20"},
    {9, "360 view wanted", "camera.view360 on", "32 0c"},
    {9, "360 view no longer", "", "32 04"},

    {7, "climate switches", "climate.ac on; climate.auto on; climate.circulation in; climate.defrost on",
     "21 e8 42 2a 2a 81 00 00 00 00"},
    {7, "screen up and wanted", "climate.screen on; climate.show on", "21 80 52 2a 2a 41 00 00 00 00"},
    {7, "half degrees", "climate.left 22.5; climate.right LO", "21 80 42 2d 00 01 00 00 00 00"},
    {7, "Fahrenheit and HI", "climate.unit F; climate.left 22; climate.right HI",
     "21 80 42 48 ff 00 00 00 00 00"},
    {7, "left lock", "steering.angle -540", "29 00 ee"},
    {7, "rear radar", "radar.rear.1 1; radar.rear.2 3; radar.rear.3 4; radar.rear.4 6", "22 01 02 03 04"},
    {7, "front radar", "radar.front.4 5", "23 00 00 00 03"},
    {7, "doors", "doors.front_left on; doors.rear_right on", "24 60"},

    {10, "climate switches", "climate.ac on; climate.auto on; climate.fan_auto on; climate.circulation in",
     "03 e2 05 09 09 00 00 03"},
    {10, "circulates by itself, fan at most", "climate.circulation auto; climate.fan 7",
     "03 8f 05 09 09 00 00 00"},
    {10, "coldest codes", "climate.left 15; climate.right 15.5", "03 82 05 20 21 00 00 00"},
    {10, "cold codes", "climate.left 16; climate.right 16.5", "03 82 05 1d 1f 00 00 00"},
    {10, "usual codes", "climate.left 17; climate.right 30.5", "03 82 05 01 1c 00 00 00"},
    {10, "hottest codes", "climate.left 31; climate.right 31.5", "03 82 05 22 1e 00 00 00"},
    {10, "LO and HI", "climate.left LO; climate.right HI", "03 82 05 00 1e 00 00 00"},
    {10, "defrost", "climate.defrost on", "03 82 02 09 09 00 00 00"},
    {10, "air nowhere", "climate.to_face off", "03 82 01 09 09 00 00 00"},
    {10, "air to window and feet", "climate.to_face off; climate.to_window on; climate.to_feet on",
     "03 82 08 09 09 00 00 00"},
    {10, "air everywhere", "climate.to_window on; climate.to_feet on", "03 82 09 09 09 00 00 00"},
    {10, "left lock", "steering.angle -540", "26 40 de"},
    {10, "one degree to the right", "steering.angle 1", "26 10 00"},
    {10, "rear radar", "radar.rear.1 6; radar.rear.4 5", "22 06 00 00 05"},
    {10, "front radar", "radar.front.2 1", "23 00 01 00 00"},

    {5, "front left door", "doors.front_left on", "02 80"},
    {5, "other doors", "doors.front_right on; doors.rear_left on; doors.rear_right on", "02 70"},
    {5, "half to the left", "steering.angle -270", "07 00 f7"},
    {5, "radar: the nearer of the middle two", "radar.front.1 1; radar.front.2 6; radar.front.3 4",
     "08 00 01 03 00 00 00 00"},
    {5, "radar: one of the middle two", "radar.rear.3 2; radar.rear.4 6", "08 00 00 00 00 00 02 04"},

    {4, "car type", "box.car_type 261", "0a 01 05"},
    {4, "version ends in NULs", "box.version V2",
     "05 56 32 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
    {4, "radar maxima", "box.radar_maxima 1,2,3,4,5,6,255,0", "09 01 02 03 04 05 06 ff 00"},
    {4, "fewer radar sensors", "box.radar_maxima 9,9", "09 09 09 00 00 00 00 00 00"},
    {4, "reverse gear", "gear.reverse on", "01 20 00 00 00"},
    {4, "right indicator", "indicator.right on", "01 40 00 00 00"},
    {4, "left doors", "doors.front_left on; doors.rear_left on", "01 00 05 00 00"},
    {4, "right doors and lights", "doors.front_right on; doors.rear_right on; light.illumination on",
     "01 00 0a 01 00"},
    {4, "left lock", "steering.angle -540", "02 28 00 00 00 00 00 00 00 00"},
    {4, "68 degrees to the right", "steering.angle 68", "02 85 00 00 00 00 00 00 00 00"},
    {4, "front radar of seven steps", "radar.front.1 1; radar.front.2 3; radar.front.3 5; radar.front.4 6",
     "02 00 01 03 05 07 00 00 00 00"},
    {4, "rear radar of other steps",
     "box.radar_maxima 0,0,0,0,3,60,255,0; radar.rear.1 1; radar.rear.2 2; radar.rear.3 6",
     "02 00 00 00 00 00 01 14 ff 00"},

    {3, "climate switches", "climate.auto on; climate.ac on; climate.circulation in; climate.defrost on",
     "21 ea 42 0b 0b 00 00 00 00"},
    {3, "climate circulates by itself", "climate.circulation auto; climate.fan 0",
     "21 80 40 0b 0b 20 00 00 00"},
    {3, "LO and HI", "climate.left LO; climate.right HI", "21 80 42 00 1f 00 00 00 00"},
    {3, "ends of the scale", "climate.left 16; climate.right 30.5", "21 80 42 01 1e 00 00 00 00"},
    {3, "past the scale", "climate.left 15.5; climate.right 31", "21 80 42 00 1f 00 00 00 00"},
    {3, "Fahrenheit", "climate.unit F; climate.left 16; climate.right 22", "21 80 42 02 0d 01 00 00 00"},
    {3, "Fahrenheit past the scale", "climate.unit F; climate.left 15; climate.right 32",
     "21 80 42 00 1f 01 00 00 00"},
    {3, "rear distances", "radar.rear.1 1; radar.rear.2 1; radar.rear.3 6; radar.rear.4 6",
     "22 05 0d 97 37 00 00"},
    {3, "front distances", "radar.front.1 1; radar.front.2 1; radar.front.3 6; radar.front.4 6",
     "23 05 0a 6e 37 00 00"},
    {3, "doors", "doors.front_right on; doors.rear_left on", "24 90"},
    {3, "tyre states", "tyres.front_right low; tyres.rear_left high", "65 00 01 02 00"},
    {3, "tyre warning", "tyres.warning.front_left on; tyres.warning.rear_right on; tyres.message low",
     "68 09 03"},
    {3, "tyres to check", "tyres.warning.front_right on; tyres.message check", "68 02 02"},
    {3, "tyre loses pressure", "tyres.warning.rear_left on; tyres.message loss", "68 04 04"},
    {3, "range", "", "50 10 01 08 02 00 00"},
    {3, "range in miles", "settings.units.distance mi", "50 10 00 43 01 00 00"},
    {3, "distance of two bytes", "trip.since_start.distance 6553.5", "50 20 01 ff ff 00 00"},
    {3, "distance of three bytes", "", "50 22 01 e0 f6 01 00"},
    {3, "distance in miles", "settings.units.distance mi; trip.since_refuel.distance 100",
     "50 21 00 6d 02 00 00"},
    {3, "litres", "", "50 31 00 40 00 00 00"},
    {3, "kilometres per litre", "settings.units.consumption km/L; trip.since_start.consumption 5",
     "50 30 01 c8 00 00 00"},
    {3, "imperial gallons", "settings.units.consumption mpg(UK); trip.since_start.consumption 5",
     "50 30 02 35 02 00 00"},
    {3, "US gallons", "settings.units.consumption mpg(US); trip.since_start.consumption 5",
     "50 30 03 d6 01 00 00"},
    {3, "nothing consumed", "settings.units.consumption mpg(US)", "50 30 03 00 00 00 00"},
    {3, "more per litre than two bytes hold", "settings.units.consumption km/L; trip.consumption 0.01",
     "50 61 01 ff ff 00 00"},
    {3, "speed", "", "50 41 00 1c 02 00 00"},
    {3, "speed in miles", "settings.units.speed mph", "50 41 01 50 01 00 00"},
    {3, "long time", "trip.long_term.time 65535", "50 52 ff ff 00 00 00"},
    {3, "vehicle number", "service.vehicle_number AB1", "63 00 41 42 31"},
    {3, "days overdue", "service.inspection.days -300", "63 10 02 2c 01"},
    {3, "days not known", "service.known off", "63 20 00 98 00"},
    {3, "distance left", "", "63 11 01 76 00"},
    {3, "distance in miles", "settings.units.distance mi", "63 11 11 49 00"},
    {3, "distance overdue", "service.oil.distance -1200", "63 21 02 0c 00"},
    {3, "wiper position", "service.wiper_position on", "63 22 01 00 00"},
    {3, "start-stop with reasons", "startstop.reasons 3,17", "60 02 03 11 00 00 00 00 01"},
    {3, "start-stop off with all the reasons it can tell",
     "startstop.active off; startstop.reasons 0,2,3,4,5,33", "60 06 00 02 03 04 05 21 00"},
    {3, "reports", "reports.codes 1,300", "61 02 00 01 00 2c 01"},
    {3, "consumers", "consumers.active 3,17", "62 02 03 11 00"},
};

} // namespace

class TestBoxPackages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reports_data();
    void reports();
    void keys_data();
    void keys();
    void knobTurns();
    void unitTellsItsMode();
    void xinHangAnswersEveryReady();
    void xinHangUnitSwitchesTheScreen();
    void xinHangTouch();
    void everyReportIsAboutSomething();
};

void TestBoxPackages::reports_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QByteArray>("package");
    for (const auto &row : ReportRows) {
        QTest::addRow("type %d: %s", row.type, row.name)
            << row.type << QString(row.changes) << QByteArray(row.package);
    }
}

void TestBoxPackages::reports()
{
    QFETCH(int, type);
    QFETCH(QString, changes);
    QFETCH(QByteArray, package);
    const auto box = makeBox(type);
    change(box.get(), changes);
    QCOMPARE(reportLike(*box, package), package);
}

void TestBoxPackages::keys_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("package");
    const auto row = [](const char *name, int type, const char *key, int state, const char *package) {
        QTest::newRow(name) << type << QString(key) << state << QByteArray(package);
    };
    row("toyota: wheel", 9, "volume_up", 1, "20 01 01");
    row("toyota: panel", 9, "panel_next", 0, "20 84 00");
    row("honda: wheel", 7, "mute", 1, "20 17 01");
    row("gm: wheel", 10, "previous", 1, "01 03 01");
    row("gm: panel", 10, "panel_home_2", 2, "02 53 02");
    row("jeep: wheel", 15, "next", 0, "01 1c 00");
    row("jeep: panel", 15, "panel_power_2", 1, "04 0a 01");
    row("mazda: panel", 5, "panel_back", 1, "01 2a 01");
    row("xinhang: wheel", 4, "hangup", 1, "03 01 10");
    row("xinhang: panel", 4, "panel_digit_6", 2, "0b 02 22");
    row("xinhang: cursor pressed", 4, "cursor_right", 1, "87 03");
    row("xinhang: cursor released", 4, "cursor_right", 0, "");
    row("xinhang: application wanted", 4, "application_2", 1, "0c 02");
    row("volkswagen: wheel held", 3, "mute", 2, "20 06 02");
    row("volkswagen: wheel released", 3, "mute", 0, "20 00 00");
    row("volkswagen: function pressed", 3, "function_call", 1, "2f 11");
    row("volkswagen: function held", 3, "function_call", 2, "");
    row("volkswagen: function released", 3, "function_call", 0, "");
    row("volkswagen: seek held", 3, "function_rewind", 2, "");
    row("volkswagen: seek released", 3, "function_rewind", 0, "2f 05");
}

void TestBoxPackages::keys()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    QFETCH(int, state);
    QTEST(keyData(*makeBox(type), key, BoxSpeaker::KeyState(state)), "package");
}

void TestBoxPackages::knobTurns()
{
    for (const int type : {5, 10}) {
        Conversation talk(type);
        QVERIFY(talk.box->turnKnob("volume_knob_up", 255));
        QVERIFY(!talk.box->turnKnob("volume_knob_up", 256));
        QVERIFY(!talk.box->pressKey("volume_knob_up"));
        const QByteArray turned = RaiseWire::frame(type == 5 ? "01 f0 ff" : "02 17 ff");
        QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, turned));
    }
}

void TestBoxPackages::unitTellsItsMode()
{
    const auto box = openBox(9);
    SimulatedUnit unit(*box);
    unit.write(RaiseWire::frame("99 05 00 00"));
    QTRY_COMPARE(box->observation("mode"), QString("0x05"));
}

void TestBoxPackages::xinHangAnswersEveryReady()
{
    const auto box = openBox(4);
    SimulatedUnit unit(*box);
    const QByteArray ready = XinHangWire::frame("81 01");
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size() + 1);
    QCOMPARE(unit.frames().last(), XinHangWire::frame("0a 00 01"));
    unit.write(XinHangWire::frame("55 00") + QByteArray::fromHex("f00281017e f000ff"));
    QTest::qWait(20);
    QVERIFY2(unit.singleBytes().isEmpty(), "this box answers nothing");
}

void TestBoxPackages::xinHangUnitSwitchesTheScreen()
{
    Conversation talk(4);
    talk.unit.write(XinHangWire::frame("83 01"));
    QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, XinHangWire::frame("01 10 00 00 00")));
    QVERIFY(talk.box->car()->flag("screen.factory"));
    talk.unit.write(XinHangWire::frame("83 02"));
    QTRY_VERIFY(!talk.box->car()->flag("screen.factory"));
}

void TestBoxPackages::xinHangTouch()
{
    Conversation talk(4);
    QVERIFY(talk.box->touch(BoxSpeaker::TouchPressed, 1023, 258));
    QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, XinHangWire::frame("04 01 03 ff 01 02")));
}

// A name that is misspelt in a speaker's tables would leave the box mute about it.
void TestBoxPackages::everyReportIsAboutSomething()
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (!row.makeSpeaker) {
            continue;
        }
        const auto box = makeBox(row.type);
        const QStringList properties = box->speaker()->properties();
        for (const BoxReport &report : box->speaker()->reports()) {
            for (const QString &name : report.concerns) {
                const bool isGroup =
                    name.endsWith('.') && !properties.filter(QRegularExpression('^' + name)).isEmpty();
                QVERIFY2(SimulatedCar::has(name) || isGroup, qPrintable(row.className + (": " + name)));
            }
        }
        QSet<QString> names;
        for (const BoxKey &key : box->speaker()->keys()) {
            QVERIFY2(!names.contains(key.name), qPrintable(row.className + (": " + key.name)));
            names << key.name;
        }
    }
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxPackages)
#include "tst_boxpackages.moc"
