#include "testmain.h"
#include "testscreen.h"
#include "tracerecorder.h"

#include "airconditiondlg.h"

#include <functional>

typedef std::function<void(AirConditionDlg &)> ClimateCalls;
Q_DECLARE_METATYPE(ClimateCalls)

/// The climate display: what it shows, and how it goes.
class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void climateShowsItsState_data();
    void climateShowsItsState();
    void climateIsPutAwayByATap();

private:
    QMap<QString, QImage> m_pictures; // of the climate display, by the row that showed it first
};

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

void TestDialogs::climateShowsItsState_data()
{
    QTest::addColumn<ClimateCalls>("calls");
    QTest::addColumn<QString>("sameAs");
    typedef AirConditionDlg D;
    const auto row = [](const char *name, const ClimateCalls &calls, const char *sameAs = "") {
        QTest::newRow(name) << calls << QString(sameAs);
    };
    row("plain", [](D &) {});
    row("off", [](D &d) { d.setAirConditionEnable(false); });
    row("compressor", [](D &d) { d.setACEnable(true); });
    row("automatic", [](D &d) { d.setAutoModeEnable(true); });
    row("no heater", [](D &d) { d.setPTCModeVisible(false); });
    row("fan 6", [](D &d) { d.setAirVolume(6); });
    row("fan 7", [](D &d) { d.setAirVolume(7); });
    row("fan by the car", [](D &d) { d.setAirVolume(0xFF); });
    row(
        "fan past its end", [](D &d) { d.setAirVolume(9); }, "fan 7");
    row("fan 8", [](D &d) { d.setAirVolume(8); });
    row("fan 7 of 8", [](D &d) { d.setAirVolume(8), d.setAirVolume(7); });
    row(
        "fan past its end of 8", [](D &d) { d.setAirVolume(8), d.setAirVolume(9); }, "fan 8");
    row(
        "fan below zero", [](D &d) { d.setAirVolume(-1); }, "fan 7");
    row("recirculation", [](D &d) { d.setCirculationMode(1); });
    row("air by the car", [](D &d) { d.setCirculationMode(0xFF); });
    row(
        "other circulation", [](D &d) { d.setCirculationMode(5); }, "recirculation");
    row("face", [](D &d) { d.setWindDirectEx(2); });
    row("face and feet", [](D &d) { d.setWindDirectEx(3); });
    row("windscreen", [](D &d) { d.setWindDirectEx(4); });
    row("windscreen and feet", [](D &d) { d.setWindDirectEx(5); });
    row(
        "unknown direction bits", [](D &d) { d.setWindDirectEx(0xFA); }, "face");
    row("0xFF as bits is all", [](D &d) { d.setWindDirectEx(0xFF); });
    row("direction by the car", [](D &d) { d.setWindDirect(0xFF); });
    row(
        "mode as bits", [](D &d) { d.setWindDirect(3); }, "face and feet");
    row("defrosting", [](D &d) { d.setDefrostingMode(); });
    row(
        "direction ends defrosting", [](D &d) { d.setDefrostingMode(), d.setWindDirectEx(0); }, "plain");
    row(
        "mode ends defrosting", [](D &d) { d.setDefrostingMode(), d.setWindDirect(0); }, "plain");
    row("temperature", [](D &d) { d.setTemperature(text("20.5°C"), text("20.0°C")); });
    row("right temperature", [](D &d) { d.setTemperature(text("20.0°C"), "HI"); });
    row("range moves the scale", [](D &d) { d.setTemperatureRange(10, 30); });
    row(
        "range upside down", [](D &d) { d.setTemperatureRange(30, 10); }, "plain");
    row(
        "range of nothing", [](D &d) { d.setTemperatureRange(20, 20); }, "plain");
}

// Each state has a picture of its own.
void TestDialogs::climateShowsItsState()
{
    QFETCH(ClimateCalls, calls);
    QFETCH(QString, sameAs);
    AirConditionDlg dialog;
    dialog.resize(1024, 190);
    dialog.setTemperatureRange(16, 30);
    dialog.setAirConditionEnable(true);
    dialog.setTemperature(text("20.0°C"), text("20.0°C"));
    calls(dialog);
    const QImage picture = dialog.grab().toImage();
    QCOMPARE(m_pictures.key(picture), sameAs);
    if (sameAs.isEmpty()) {
        m_pictures.insert(QTest::currentDataTag(), picture);
    }
}

void TestDialogs::climateIsPutAwayByATap()
{
    TestScreen screen;
    AirConditionDlg dialog;
    dialog.show();
    TraceRecorder trace;
    TestScreen::drag(&dialog, QPoint(300, 100), QPoint(300, -50));
    QVERIFY(dialog.isVisible());
    TestScreen::tap(&dialog, QPoint(300, 100));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(trace.lines(), QStringList("AirConditionDlg.setVisible(false)"));
}

CANBUS_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
