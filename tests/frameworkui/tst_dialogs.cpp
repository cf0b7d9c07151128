#include "testmain.h"
#include "tracerecorder.h"
#include "unitscreen.h"

#include "airconditiondlg.h"
#include "orbchoicedialog.h"
#include "orbhost.h"
#include "updatedialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

typedef std::function<void(AirConditionDlg &)> ClimateCalls;
typedef std::function<void(UpdateDialog &)> UpdateCalls;
Q_DECLARE_METATYPE(ClimateCalls)
Q_DECLARE_METATYPE(UpdateCalls)

/// The climate display and the update dialog: what they report and what they show.
class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void climateShowsItsState_data();
    void climateShowsItsState();
    void climateIsPutAwayByATap();
    void updateStates_data();
    void updateStates();
    void updateIsAsked();
    void updateMaySilentlyEnd();
    void languageChangesWhileOpen();

private:
    QMap<QString, QImage> m_pictures; // of the climate display, by the row that showed it first
};

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// "btnOk:Update btnCancel:Later 42": the visible buttons, and the progress where it is shown.
QString summary(const UpdateDialog &dialog)
{
    QStringList parts;
    for (const char *name : {"btnOk", "btnCancel"}) {
        const QPushButton *button = dialog.findChild<QPushButton *>(name);
        if (!button->isHidden()) {
            parts << QString(name) + ':' + button->text();
        }
    }
    const QProgressBar *bar = dialog.findChild<QProgressBar *>();
    if (!bar->isHidden()) {
        parts << QString::number(bar->value());
    }
    return parts.join(' ');
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

void TestDialogs::updateStates_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<UpdateCalls>("calls");
    typedef UpdateDialog D;
    const auto row = [](const char *name, const char *shown, const UpdateCalls &calls) {
        QTest::newRow(name) << QString(shown) << calls;
    };
    const char asks[] = "btnOk:Update btnCancel:Later";
    const char closes[] = "btnCancel:Close";
    row("asks", asks, [](D &) {});
    row("runs", "42", [](D &d) { d.updatePercent(42); });
    row("below 0", "0", [](D &d) { d.updatePercent(-1); });
    row("above 100 is the end", closes, [](D &d) { d.updatePercent(101); });
    row("second disk while it runs", "42", [](D &d) { d.updatePercent(42), d.showUpdateDlg(1); });
    row("disk out before the answer", closes, [](D &d) { d.setUpdateFailed(2); });
    row("fails on the way", "btnOk:Try again btnCancel:Close",
        [](D &d) { d.updatePercent(42), d.setUpdateFailed(2); });
    row("goes on after a failure", "50", [](D &d) { d.setUpdateFailed(2), d.updatePercent(50); });
    row("disk out after the end", closes, [](D &d) { d.updatePercent(100), d.setUpdateFailed(2); });
    row("asks again after a failure", asks, [](D &d) { d.setUpdateFailed(2), d.showUpdateDlg(1); });
    row("later failure does not offer a try", closes,
        [](D &d) { d.updatePercent(4), d.setUpdateFailed(2), d.showUpdateDlg(1), d.setUpdateFailed(2); });
}

void TestDialogs::updateStates()
{
    QFETCH(UpdateCalls, calls);
    QFETCH(QString, shown);
    TestScreen screen;
    UpdateDialog dialog;
    dialog.showUpdateDlg(1);
    calls(dialog);
    QCOMPARE(summary(dialog), shown);
    QVERIFY(dialog.isVisible());
}

void TestDialogs::updateIsAsked()
{
    TestScreen screen;
    UpdateDialog dialog;
    QSignalSpy accepted(&dialog, SIGNAL(acceptUpdate()));
    QPushButton *ok = dialog.findChild<QPushButton *>("btnOk");
    dialog.showUpdateDlg(1);
    ok->click();
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(summary(dialog), QString("0"));
    dialog.setUpdateFailed(2);
    QVERIFY(dialog.findChild<QLabel *>("txtMessage")->text().contains("2"));
    ok->click();
    QCOMPARE(accepted.size(), 2);
    // Closed on the way: nothing opens it again but a new question.
    dialog.back();
    dialog.updatePercent(10);
    dialog.setUpdateFailed(2);
    QVERIFY(!dialog.isVisible());
    dialog.showUpdateDlg(1);
    dialog.findChild<QPushButton *>("btnCancel")->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(accepted.size(), 2);
}

void TestDialogs::updateMaySilentlyEnd()
{
    const QList<QPair<int, QString>> ends = {{99, "btnCancel:Close"}, {42, "btnCancel:Close 42"}};
    for (const auto &end : ends) {
        TestScreen screen;
        UpdateDialog dialog;
        dialog.findChild<QTimer *>("silence")->setInterval(10);
        dialog.showUpdateDlg(1);
        dialog.updatePercent(end.first);
        QTRY_COMPARE(summary(dialog), end.second);
        dialog.updatePercent(end.first);
        QCOMPARE(summary(dialog), QString::number(end.first));
    }
}

void TestDialogs::languageChangesWhileOpen()
{
    TestScreen screen;
    UpdateDialog update;
    update.showUpdateDlg(1);
    OrbChoiceDialog choice("Convenience opening", {"OFF"}, 0);
    choice.show();
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(OrbHost::instance()->setLanguage("de"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(summary(update), text("btnOk:Aktualisieren btnCancel:Später"));
    QCOMPARE(choice.findChild<QPushButton *>("btnCancel")->text(), QString("Abbrechen"));
    OrbHost::instance()->setLanguage("en");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(summary(update), QString("btnOk:Update btnCancel:Later"));
}

CANBUS_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
