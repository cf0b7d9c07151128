// The Volkswagen box: layouts worked out by hand from its data sheet, requests and settings from the unit.

#include "boxtools.h"
#include "simulatedunit.h"
#include "virtualmain.h"

#include <QtTest>

namespace {
const int Volkswagen = 3;
}

class TestBoxVolkswagen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsPages_data();
    void settingsPages();
    void requests_data();
    void requests();
    void writes_data();
    void writes();
    void writeIsAnsweredWithTheNewState();
    void unitsReachWhatIsShownInThem();
    void tyresAreToldAfterTheWarning();
};

// What the pages tell of the car as it starts, and after the unit has changed everything on them.
void TestBoxVolkswagen::settingsPages_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("writes"); // ITEM=VALUE
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *before, const char *writes, const char *after) {
        QTest::newRow(name) << "40 " + QByteArray(before) << QByteArray(writes) << "40 " + QByteArray(after);
    };
    row("esc", "10 01", "16=2", "10 02");
    row("tyres", "20 00 78 01", "32=1 145=1 33=75 35=2", "20 03 4b 02");
    row("assistance", "30 03 00", "48=0 54=1", "30 02 01");
    row("distance control", "31 02 22 00", "50=1 51=0 52=1 53=1 55=1 56=3 57=1", "31 0d 31 01");
    row("parking", "40 02 55 55", "64=1 69=0 58=1 65=9 66=1 67=2 68=3", "40 05 19 32");
    row("light", "50 71 46 0f 0a", "80=2 81=0 82=0 200=1 83=7 84=8 85=9", "50 42 07 08 09");
    row("light, second page", "51 00 28 32 00", "86=1 95=5 87=1 88=2 89=1 90=1", "51 0b 01 02 03");
    row("light, third page", "52 3c 3c 01 3c", "91=0 92=10 94=3 93=100", "52 00 0a 03 64");
    row("mirrors", "60 0e", "96=1 98=0 99=0", "60 03");
    row("mirrors, others", "60 0e", "97=0 99=0 100=1", "60 14");
    row("opening", "70 21 01 01", "112=2 113=0 114=0 116=1 102=1 201=0", "70 02 06 00");
    row("windows and roof", "70 21 01 01", "103=1 104=1", "70 21 19 01");
    row("display", "80 73 00", "128=0 131=1 132=0 135=1 136=1", "80 ea 01");
    row("display, others", "80 73 00", "129=0 130=1 133=0 134=0 137=1", "80 15 02");
    row("units", "90 00 01", "144=1 146=1 147=2 149=2", "90 25 21");
    row("units, others", "90 00 01", "145=1 148=3", "90 02 03");
    row("driving mode", "a0 00 00 00", "208=3 209=1 210=2 211=2 213=1", "a0 03 21 12");
    row("driving mode once more", "b1 00", "208=6", "b1 06");
    row("seat", "b0 01", "202=0 203=1", "b0 02");
}

void TestBoxVolkswagen::settingsPages()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, writes);
    const auto box = makeBox(Volkswagen);
    QCOMPARE(reportLike(*box, before), before);
    for (const QByteArray &write : writes.split(' ')) {
        QString meaning;
        const QByteArray data = QByteArray().append(char(write.split('=').first().toInt()));
        box->speaker()->receive({0xC6, data + char(write.split('=').last().toInt())}, &meaning);
    }
    QFETCH(QByteArray, after);
    QCOMPARE(reportLike(*box, after), after);
}

void TestBoxVolkswagen::requests_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("answer");
    const auto row = [](const char *name, const QByteArray &request, const QByteArray &answer) {
        QTest::newRow(name) << request << (answer.isEmpty() ? answer : RaiseWire::frame(answer));
    };
    row("settings page", "90 40 70", "40 70 21 01 01");
    row("last settings page", "90 40 b1", "40 b1 00");
    row("driving data", "90 50 51", "50 51 cb 00 00 00 00");
    row("vehicle number", "90 63 00", "63 00 57 56 57 5a 5a 5a 30 30 30 30 30 30 30 30 30 34 32");
    row("service data", "90 63 20", "63 20 01 98 00");
    row("reports, with any parameter", "90 61 55", "61 00 00");
    row("tyre states", "90 65 00", "65 00 00 00 00");
    row("settings page that is none", "90 40 99", "");
    row("command that is none", "90 99 00", "");
    row("request cut short", "90 40", "");
}

void TestBoxVolkswagen::requests()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, answer);
    Conversation talk(Volkswagen);
    talk.unit.write(RaiseWire::frame(request));
    QTRY_COMPARE(talk.unit.singleBytes(), QByteArray("\xff"));
    QTest::qWait(answer.isEmpty() ? 10 : 0);
    QTRY_COMPARE(int(talk.unit.packages().size()), answer.isEmpty() ? 0 : 1);
    QCOMPARE(talk.unit.frames().value(0), answer);
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
    write("choice past the last", 16, 3, "settings.esc", "activated");
    write("switch that is neither on nor off", 48, 2, "settings.assist.lane", "on");
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
    const auto box = makeBox(Volkswagen);
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
    Conversation talk(Volkswagen);
    // New, the same once more, and one that the car does not take.
    for (const char *write : {"c6 70 02", "c6 70 02", "c6 70 09"}) {
        talk.unit.forget();
        talk.unit.write(RaiseWire::frame(write));
        QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, RaiseWire::frame("40 70 22 01 01")));
    }
}

void TestBoxVolkswagen::unitsReachWhatIsShownInThem()
{
    Conversation talk(Volkswagen);
    talk.unit.write(RaiseWire::frame("c6 91 01"));
    for (const char *report : {"40 90 02 01", "50 41 01 50 01 00 00", "40 20 02 78 01"}) {
        QTRY_VERIFY2(talk.unit.frames().contains(RaiseWire::frame(report)), report);
    }
}

// A warning hides the states on the unit, so the states have to come last.
void TestBoxVolkswagen::tyresAreToldAfterTheWarning()
{
    Conversation talk(Volkswagen);
    change(talk.box.get(), "tyres.front_left low; tyres.warning.front_left on; tyres.message low");
    talk.unit.write(RaiseWire::frame("c6 22 01"));
    const QVector<QByteArray> expected = {RaiseWire::frame("68 00 00"), RaiseWire::frame("65 00 00 00 00")};
    QTRY_COMPARE(talk.unit.frames().mid(talk.unit.packages().size() - 2), expected);
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxVolkswagen)
#include "tst_boxvolkswagen.moc"
