// The Volkswagen box: layouts worked out by hand from its data sheet, requests and settings from the unit.

#include "boxtools.h"
#include "simulatedunit.h"

#include <QtTest>

namespace {
const int volkswagen = 3;
}

class TestBoxVolkswagen : public QObject
{
    Q_OBJECT

private slots:
    void carReports_data();
    void carReports() { compareReport(); }
    void drivingData_data();
    void drivingData() { compareReport(); }
    void serviceAndMessages_data();
    void serviceAndMessages() { compareReport(); }
    void settings_data();
    void settings() { compareReport(); }
    void keys_data();
    void keys();
    void requests_data();
    void requests();
    void writes_data();
    void writes();
    void writeIsAnsweredWithTheNewState();
    void unitsReachWhatIsShownInThem();
    void tyresAreToldAfterTheWarning();

private:
    static void addColumns();
    static void row(const char *name, const char *changes, const char *report, const char *package);
    static void compareReport();
};

void TestBoxVolkswagen::addColumns()
{
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArray>("package");
}

void TestBoxVolkswagen::row(const char *name, const char *changes, const char *report, const char *package)
{
    QTest::newRow(name) << QString(changes) << QString(report) << QByteArray(package);
}

void TestBoxVolkswagen::compareReport()
{
    QFETCH(QString, changes);
    QFETCH(QString, report);
    const auto box = makeBox(volkswagen);
    change(box.get(), changes);
    QTEST(reportData(*box, report), "package");
}

void TestBoxVolkswagen::carReports_data()
{
    addColumns();
    row("climate", "", "climate", "21 80 42 0b 0b 00 00 00 00");
    row("climate switches", "climate.auto on; climate.ac on; climate.circulation in; climate.defrost on",
        "climate", "21 ea 42 0b 0b 00 00 00 00");
    row("climate circulates by itself", "climate.circulation auto; climate.fan 0", "climate",
        "21 80 40 0b 0b 20 00 00 00");
    row("LO and HI", "climate.left LO; climate.right HI", "climate", "21 80 42 00 1f 00 00 00 00");
    row("ends of the scale", "climate.left 16; climate.right 30.5", "climate", "21 80 42 01 1e 00 00 00 00");
    row("past the scale", "climate.left 15.5; climate.right 31", "climate", "21 80 42 00 1f 00 00 00 00");
    row("Fahrenheit", "climate.unit F; climate.left 16; climate.right 22", "climate",
        "21 80 42 02 0d 01 00 00 00");
    row("Fahrenheit past the scale", "climate.unit F; climate.left 15; climate.right 32", "climate",
        "21 80 42 00 1f 01 00 00 00");
    row("rear distances", "radar.rear.1 1; radar.rear.2 1; radar.rear.3 6; radar.rear.4 6", "radar rear",
        "22 05 0d 97 37 00 00");
    row("front distances", "radar.front.1 1; radar.front.2 1; radar.front.3 6; radar.front.4 6",
        "radar front", "23 05 0a 6e 37 00 00");
    row("doors", "doors.front_right on; doors.rear_left on", "doors", "24 90");
    row("tyre states", "tyres.front_right low; tyres.rear_left high", "tyre states", "65 00 01 02 00");
    row("tyre warning", "tyres.warning.front_left on; tyres.warning.rear_right on; tyres.message low",
        "tyre warning", "68 09 03");
    row("tyres to check", "tyres.warning.front_right on; tyres.message check", "tyre warning", "68 02 02");
    row("tyre loses pressure", "tyres.warning.rear_left on; tyres.message loss", "tyre warning", "68 04 04");
}

void TestBoxVolkswagen::drivingData_data()
{
    addColumns();
    row("range", "", "range", "50 10 01 08 02 00 00");
    row("range in miles", "settings.units.distance mi", "range", "50 10 00 43 01 00 00");
    row("distance of two bytes", "trip.since_start.distance 6553.5", "distance since_start",
        "50 20 01 ff ff 00 00");
    row("distance of three bytes", "", "distance long_term", "50 22 01 e0 f6 01 00");
    row("distance in miles", "settings.units.distance mi; trip.since_refuel.distance 100",
        "distance since_refuel", "50 21 00 6d 02 00 00");
    row("litres", "", "consumption since_refuel", "50 31 00 40 00 00 00");
    row("kilometres per litre", "settings.units.consumption km/L; trip.since_start.consumption 5",
        "consumption since_start", "50 30 01 c8 00 00 00");
    row("imperial gallons", "settings.units.consumption mpg(UK); trip.since_start.consumption 5",
        "consumption since_start", "50 30 02 35 02 00 00");
    row("US gallons", "settings.units.consumption mpg(US); trip.since_start.consumption 5",
        "consumption since_start", "50 30 03 d6 01 00 00");
    row("nothing consumed", "settings.units.consumption mpg(US)", "consumption since_start",
        "50 30 03 00 00 00 00");
    row("more per litre than two bytes hold", "settings.units.consumption km/L; trip.consumption 0.01",
        "consumption now", "50 61 01 ff ff 00 00");
    row("consumption now", "trip.consumption 12.3", "consumption now", "50 61 00 7b 00 00 00");
    row("speed", "", "speed since_refuel", "50 41 00 1c 02 00 00");
    row("speed in miles", "settings.units.speed mph", "speed since_refuel", "50 41 01 50 01 00 00");
    row("time", "", "time since_refuel", "50 51 cb 00 00 00 00");
    row("long time", "trip.long_term.time 65535", "time long_term", "50 52 ff ff 00 00 00");
}

void TestBoxVolkswagen::serviceAndMessages_data()
{
    addColumns();
    row("vehicle number", "service.vehicle_number AB1", "vehicle number", "63 00 41 42 31");
    row("days left", "", "inspection days", "63 10 01 d6 00");
    row("days overdue", "service.inspection.days -300", "inspection days", "63 10 02 2c 01");
    row("days not known", "service.known off", "oil change days", "63 20 00 98 00");
    row("distance left", "", "inspection distance", "63 11 01 76 00");
    row("distance in miles", "settings.units.distance mi", "inspection distance", "63 11 11 49 00");
    row("distance overdue", "service.oil.distance -1200", "oil change distance", "63 21 02 0c 00");
    row("wiper position", "service.wiper_position on", "wiper position", "63 22 01 00 00");
    row("start-stop with reasons", "startstop.reasons 3,17", "start-stop", "60 02 03 11 00 00 00 00 01");
    row("start-stop off with all the reasons it can tell",
        "startstop.active off; startstop.reasons 0,2,3,4,5,33", "start-stop", "60 06 00 02 03 04 05 21 00");
    row("no reports", "", "vehicle reports", "61 00 00");
    row("reports", "reports.codes 1,300", "vehicle reports", "61 02 00 01 00 2c 01");
    row("no consumers", "", "consumers", "62 00 00 00 00");
    row("consumers", "consumers.active 3,17", "consumers", "62 02 03 11 00");
}

void TestBoxVolkswagen::settings_data()
{
    addColumns();
    row("esc", "settings.esc sport", "settings 0x10", "40 10 02");
    row("tyres in km/h", "settings.tyres.speed_warning on", "settings 0x20", "40 20 01 78 01");
    row("tyres in mph", "settings.units.speed mph; settings.tyres.speed 75; settings.tyres.load full",
        "settings 0x20", "40 20 02 4b 02");
    row("assistance", "settings.assist.lane off; settings.assist.lane_keeping on", "settings 0x30",
        "40 30 02 01");
    row("distance control", "", "settings 0x31", "40 31 02 22 00");
    row("distance control, others",
        "settings.assist.drive_program eco; settings.assist.distance very_far; settings.assist.last_distance "
        "on; "
        "settings.assist.front off; settings.assist.advance_warning on; settings.assist.distance_warning on; "
        "settings.assist.hill_descent on",
        "settings 0x31", "40 31 0d 31 01");
    row("parking", "", "settings 0x40", "40 40 02 55 55");
    row("parking, others",
        "settings.parking.automatic on; settings.parking.brake on; settings.parking.active off; "
        "settings.parking.front_volume 9; settings.parking.front_tone 1; settings.parking.rear_volume 2; "
        "settings.parking.rear_tone 3",
        "settings 0x40", "40 40 05 19 32");
    row("light", "", "settings 0x50", "40 50 71 46 0f 0a");
    row("light, others", "settings.light.switch_on late; settings.light.rain off", "settings 0x50",
        "40 50 62 46 0f 0a");
    row("light, second page",
        "settings.light.traffic left; settings.light.distance 5; settings.light.motorway on; "
        "settings.light.dynamic on",
        "settings 0x51", "40 51 0b 28 32 03");
    row("light, third page",
        "settings.light.head 0; settings.light.front 10; settings.light.colour blue; settings.light.all 100",
        "settings 0x52", "40 52 00 0a 03 64");
    row("mirrors", "", "settings 0x60", "40 60 0e");
    row("mirrors, others",
        "settings.mirrors.synchronous on; settings.mirrors.fold on; settings.mirrors.lower_reversing off; "
        "settings.mirrors.rain_wiping off; settings.mirrors.rear_wiping off",
        "settings 0x60", "40 60 11");
    row("opening", "", "settings 0x70", "40 70 21 01 01");
    row("opening, others",
        "settings.opening.convenience all; settings.opening.doors side; settings.opening.auto_lock off; "
        "settings.opening.tailgate on; settings.opening.front_window on; settings.opening.confirmation off",
        "settings 0x70", "40 70 02 06 00");
    row("windows and roof", "settings.opening.rear_window on; settings.opening.sunroof on", "settings 0x70",
        "40 70 21 19 01");
    row("display", "", "settings 0x80", "40 80 73 00");
    row("display, others",
        "settings.display.speed on; settings.display.eco_tips on; settings.display.oil_temperature on",
        "settings 0x80", "40 80 fb 02");
    row("units", "", "settings 0x90", "40 90 00 01");
    row("units, others",
        "settings.units.distance mi; settings.units.speed mph; climate.unit F; settings.units.volume "
        "gal(US); "
        "settings.units.consumption km/L; settings.units.pressure kPa",
        "settings 0x90", "40 90 27 23");
    row("driving mode",
        "settings.drive.mode individual; settings.drive.steering sport; settings.drive.engine eco; "
        "settings.drive.climate eco; settings.drive.lighting sport",
        "settings 0xa0", "40 a0 03 21 12");
    row("driving mode once more", "settings.drive.mode offroad_individual", "settings 0xb1", "40 b1 06");
    row("seat", "settings.seat.memory on", "settings 0xb0", "40 b0 03");
}

void TestBoxVolkswagen::keys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("package");
    QTest::newRow("wheel pressed") << "mute" << 1 << QByteArray("20 06 01");
    QTest::newRow("wheel held") << "mute" << 2 << QByteArray("20 06 02");
    QTest::newRow("wheel released") << "mute" << 0 << QByteArray("20 00 00");
    QTest::newRow("function pressed") << "function_call" << 1 << QByteArray("2f 11");
    QTest::newRow("function held") << "function_call" << 2 << QByteArray();
    QTest::newRow("function released") << "function_call" << 0 << QByteArray();
    QTest::newRow("seek pressed") << "function_rewind" << 1 << QByteArray("2f 04");
    QTest::newRow("seek held") << "function_rewind" << 2 << QByteArray();
    QTest::newRow("seek released") << "function_rewind" << 0 << QByteArray("2f 05");
}

void TestBoxVolkswagen::keys()
{
    QFETCH(QString, key);
    QFETCH(int, state);
    QTEST(keyData(*makeBox(volkswagen), key, BoxSpeaker::KeyState(state)), "package");
}

void TestBoxVolkswagen::requests_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("settings page") << raiseFrame("90 40 70") << raiseFrame("40 70 21 01 01");
    QTest::newRow("last settings page") << raiseFrame("90 40 b1") << raiseFrame("40 b1 00");
    QTest::newRow("driving data") << raiseFrame("90 50 51") << raiseFrame("50 51 cb 00 00 00 00");
    QTest::newRow("vehicle number") << raiseFrame("90 63 00")
                                    << raiseFrame("63 00 57 56 57 5a 5a 5a 30 30 30 30 30 30 30 30 30 34 32");
    QTest::newRow("service data") << raiseFrame("90 63 20") << raiseFrame("63 20 01 98 00");
    QTest::newRow("reports, with any parameter") << raiseFrame("90 61 55") << raiseFrame("61 00 00");
    QTest::newRow("tyre states") << raiseFrame("90 65 00") << raiseFrame("65 00 00 00 00");
    QTest::newRow("settings page that is none") << raiseFrame("90 40 99") << QByteArray();
    QTest::newRow("command that is none") << raiseFrame("90 99 00") << QByteArray();
    QTest::newRow("request cut short") << raiseFrame("90 40") << QByteArray();
}

void TestBoxVolkswagen::requests()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, answer);
    const auto box = openBox(volkswagen);
    SimulatedUnit unit(*box);
    unit.write(raiseFrame("81 00"));
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 9);
    unit.forget();
    unit.write(request);
    QTRY_COMPARE(unit.singleBytes(), QByteArray("\xff"));
    QTest::qWait(answer.isEmpty() ? 10 : 0);
    QTRY_COMPARE(int(unit.packages().size()), answer.isEmpty() ? 0 : 1);
    QCOMPARE(unit.frames().value(0), answer);
}

void TestBoxVolkswagen::writes_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("text");
    const auto write = [](const char *name, int item, int value, const char *property, const char *text) {
        QTest::newRow(name) << item << value << QString(property) << QString(text);
    };
    write("choice", 16, 2, "settings.esc", "sport");
    write("choice past the last", 16, 3, "settings.esc", "activated");
    write("switch", 48, 0, "settings.assist.lane", "off");
    write("switch that is neither on nor off", 48, 2, "settings.assist.lane", "on");
    write("number", 33, 150, "settings.tyres.speed", "150");
    write("number past the greatest", 33, 255, "settings.tyres.speed", "120");
    write("choice that counts from 1", 55, 1, "settings.assist.drive_program", "eco");
    write("no choice where they count from 1", 55, 0, "settings.assist.drive_program", "normal");
    write("choice that counts in twos", 211, 2, "settings.drive.climate", "eco");
    write("half a choice", 211, 1, "settings.drive.climate", "normal");
    write("setting on no page", 171, 0, "settings.parking.radar_sound", "off");
    write("unit of the climate", 146, 1, "climate.unit", "F");
    write("wiper position", 140, 1, "service.wiper_position", "on");
    write("tyres set", 34, 1, "tyres.front_left", "normal");
    write("driving data since start", 138, 1, "trip.since_start.time", "0");
    write("long-term driving data", 139, 1, "trip.long_term.distance", "0");
    write("service done", 141, 1, "service.inspection.days", "214");
    write("factory settings of one page", 195, 1, "settings.light.head", "60");
    write("factory settings of another page", 193, 1, "settings.light.head", "90");
    write("all factory settings", 199, 1, "settings.light.head", "60");
    write("unknown setting", 255, 1, "settings.light.head", "90");
}

void TestBoxVolkswagen::writes()
{
    QFETCH(int, item);
    QFETCH(int, value);
    QFETCH(QString, property);
    const auto box = makeBox(volkswagen);
    change(box.get(), "tyres.front_left low; trip.since_start.time 61; service.inspection.days -3; "
                      "settings.light.head 90");
    QString meaning;
    const BoxPackage package = {0xC6, QByteArray().append(char(item)).append(char(value))};
    QCOMPARE(box->speaker()->receive(package, &meaning), BoxSpeaker::Understood);
    QTEST(box->car()->text(property), "text");
    QCOMPARE(box->observation(QString("setting %1").arg(item)), QString::number(value));
}

void TestBoxVolkswagen::writeIsAnsweredWithTheNewState()
{
    const auto box = openBox(volkswagen);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 9);
    unit.forget();
    // New, the same once more, and one that the car does not take.
    for (const char *write : {"c6 70 02", "c6 70 02", "c6 70 09"}) {
        unit.forget();
        unit.write(raiseFrame(write));
        QTRY_COMPARE(unit.frames(), QVector<QByteArray>(1, raiseFrame("40 70 22 01 01")));
    }
}

void TestBoxVolkswagen::unitsReachWhatIsShownInThem()
{
    const auto box = openBox(volkswagen);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 9);
    unit.forget();
    unit.write(raiseFrame("c6 91 01"));
    QTRY_VERIFY(unit.frames().contains(raiseFrame("40 90 02 01")));
    QVERIFY(unit.frames().contains(raiseFrame("50 41 01 50 01 00 00")));
    QVERIFY(unit.frames().contains(raiseFrame("40 20 02 78 01")));
}

// A warning hides the states on the unit, so the states have to come last.
void TestBoxVolkswagen::tyresAreToldAfterTheWarning()
{
    const auto box = openBox(volkswagen);
    change(box.get(), "tyres.front_left low; tyres.warning.front_left on; tyres.message low");
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 9);
    unit.forget();
    unit.write(raiseFrame("c6 22 01"));
    QTRY_COMPARE(unit.frames(), (QVector<QByteArray>{raiseFrame("68 00 00"), raiseFrame("65 00 00 00 00")}));
}

QTEST_GUILESS_MAIN(TestBoxVolkswagen)
#include "tst_boxvolkswagen.moc"
