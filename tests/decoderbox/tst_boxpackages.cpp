// What each box puts into its packages, and what it understands of the unit's: every row was worked out by
// hand from the box's data sheet.

#include "boxcatalog.h"
#include "decoderbox.h"
#include "simulatedunit.h"

#include <QtTest>

namespace {

/// Carries out "climate.left 21.5; climate.ac on" on the car.
void change(DecoderBox *box, const QString &changes)
{
    const QStringList parts = changes.split(';');
    for (const QString &part : parts) {
        const QString text = part.trimmed();
        QString error;
        if (!text.isEmpty() && !box->car()->setValue(text.section(' ', 0, 0), text.section(' ', 1), &error)) {
            qFatal("%s", qPrintable(error));
        }
    }
}

/// The data of the report called \a meaning, in hex.
QByteArray reportData(const DecoderBox &box, const QString &meaning)
{
    for (int i = 0; i < box.speaker()->reports().size(); ++i) {
        if (box.speaker()->reports().at(i).meaning == meaning) {
            const BoxPackage package = box.speaker()->reportPackage(i);
            return QByteArray(1, char(package.command)).toHex() + ' ' + package.data.toHex(' ');
        }
    }
    return "no such report";
}

} // namespace

class TestBoxPackages : public QObject
{
    Q_OBJECT

private slots:
    void reports_data();
    void reports();
    void keys_data();
    void keys();
    void observations_data();
    void observations();
    void everyReportIsAboutSomething_data();
    void everyReportIsAboutSomething();

private:
    void toyotaReports();
};

void TestBoxPackages::reports_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArray>("package");
    toyotaReports();
}

void TestBoxPackages::toyotaReports()
{
    const auto row = [](const char *name, const char *changes, const char *report, const char *package) {
        QTest::addRow("toyota: %s", name) << 9 << QString(changes) << QString(report) << QByteArray(package);
    };
    row("version ends in NULs", "box.version AB", "version",
        "30 41 42 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    row("climate off", "climate.power off; climate.to_face off; climate.fan 0", "climate",
        "28 00 00 07 07 00");
    row("climate switches", "climate.ac on; climate.auto on; climate.defrost on; climate.circulation in",
        "climate", "28 ea 42 07 07 00");
    row("climate circulates by itself", "climate.circulation auto", "climate", "28 80 42 07 07 20");
    row("air to window and feet, shown",
        "climate.to_window on; climate.to_face off; climate.to_feet on; climate.show on", "climate",
        "28 80 b2 07 07 00");
    row("LO and HI", "climate.left LO; climate.right HI", "climate", "28 80 42 00 1f 00");
    row("18 and 32 degrees", "climate.left 18; climate.right 32", "climate", "28 80 42 01 1d 00");
    row("16 and 17.5 degrees", "climate.left 16; climate.right 17.5", "climate", "28 80 42 20 23 00");
    row("colder than the display goes", "climate.left 15.5", "climate", "28 80 42 00 07 00");
    row("Fahrenheit", "climate.unit F; climate.left 20; climate.right HI", "climate", "28 80 42 44 ff 01");
    row("left lock", "steering.angle -540", "steering", "29 7c 01");
    row("right lock", "steering.angle 540", "steering", "29 84 0e");
    row("straight on", "", "steering", "29 00 00");
    row("front radar, every level", "radar.front.1 1; radar.front.2 2; radar.front.3 3; radar.front.4 4",
        "radar front", "1d 01 02 03 03");
    row("rear radar, far", "radar.rear.1 5; radar.rear.2 6", "radar rear", "1e 04 05 00 00");
    row("front left door", "doors.front_left on", "doors", "24 40");
    row("front right door", "doors.front_right on", "doors", "24 80");
    row("rear left door", "doors.rear_left on", "doors", "24 10");
    row("rear right door", "doors.rear_right on", "doors", "24 20");
    row("360 view wanted", "camera.view360 on", "360 view", "32 0c");
    row("360 view no longer", "", "360 view", "32 04");
}

void TestBoxPackages::reports()
{
    QFETCH(int, type);
    QFETCH(QString, changes);
    QFETCH(QString, report);
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
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
}

void TestBoxPackages::keys()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    QFETCH(int, state);
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    const BoxKey *found = box->speaker()->findKey(key);
    QVERIFY(found);
    QByteArray sent;
    const auto packages = box->speaker()->keyPackages(*found, BoxSpeaker::KeyState(state));
    for (const BoxPackage &package : packages) {
        sent += QByteArray(1, char(package.command)).toHex() + ' ' + package.data.toHex(' ');
    }
    QTEST(sent, "package");
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
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
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
