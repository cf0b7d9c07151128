#include "tracerecorder.h"
#include "unitscreen.h"

#include "airconditiondlg.h"
#include "orbapplication.h"
#include "orbchoicedialog.h"
#include "updatedialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

typedef std::function<void(AirConditionDlg &)> ClimateCalls;
typedef std::function<void(UpdateDialog &)> UpdateCalls;
Q_DECLARE_METATYPE(ClimateCalls)
Q_DECLARE_METATYPE(UpdateCalls)

/// The climate display and the update dialog: what they report and what they show.
class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void climateCallsAreTraced();
    void climateShowsItsState_data();
    void climateShowsItsState();
    void climateIsPutAwayByATap();
    void updateStates_data();
    void updateStates();
    void updateIsAsked();
    void updateMaySilentlyEnd_data();
    void updateMaySilentlyEnd();
    void updateCallsAreTraced();
    void languageChangesWhileOpen();
};

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QImage pictureAfter(const ClimateCalls &calls)
{
    AirConditionDlg dialog;
    dialog.resize(1024, 190);
    dialog.setTemperatureRange(16, 30);
    dialog.setAirConditionEnable(true);
    dialog.setTemperature(text("20.0°C"), text("20.0°C"));
    calls(dialog);
    return dialog.grab().toImage();
}

/// "btnOk:Update btnCancel:Later 42": the visible buttons, and the progress where it is shown.
QString summary(const UpdateDialog &dialog)
{
    QStringList parts;
    for (const char *name : {"btnOk", "btnCancel"}) {
        const QPushButton *button = dialog.findChild<QPushButton *>(name);
        if (!button->isHidden())
            parts << QString(name) + ':' + button->text();
    }
    const QProgressBar *bar = dialog.findChild<QProgressBar *>();
    if (!bar->isHidden())
        parts << QString::number(bar->value());
    return parts.join(' ');
}

} // namespace

void TestDialogs::climateCallsAreTraced()
{
    TraceRecorder trace;
    AirConditionDlg dialog;
    dialog.setPTCModeVisible(false);
    dialog.setTemperatureRange(16.0, 29.5);
    dialog.setAirConditionEnable(true);
    dialog.setACEnable(false);
    dialog.setAutoModeEnable(true);
    dialog.setWindDirectEx(5);
    dialog.setWindDirect(0xFF);
    dialog.setAirVolume(3);
    dialog.setCirculationMode(0xFF);
    dialog.setDefrostingMode();
    dialog.setTemperature(text("21.5°C"), "LO");
    dialog.setVisible(true);
    QCOMPARE(
        trace.lines(),
        QStringList({"setPTCModeVisible(false)", "setTemperatureRange(16,29.5)",
                     "setAirConditionEnable(true)", "setACEnable(false)", "setAutoModeEnable(true)",
                     "setWindDirectEx(5)", "setWindDirect(255)", "setAirVolume(3)", "setCirculationMode(255)",
                     "setDefrostingMode()", text("setTemperature(21.5°C,LO)"), "setVisible(true)"})
            .replaceInStrings(QRegularExpression("^"), "AirConditionDlg."));
}

void TestDialogs::climateShowsItsState_data()
{
    QTest::addColumn<ClimateCalls>("left");
    QTest::addColumn<ClimateCalls>("right");
    QTest::addColumn<bool>("same");
    typedef AirConditionDlg D;
    const auto same = [](const char *name, const ClimateCalls &left, const ClimateCalls &right) {
        QTest::newRow(name) << left << right << true;
    };
    const auto differ = [](const char *name, const ClimateCalls &left, const ClimateCalls &right) {
        QTest::newRow(name) << left << right << false;
    };
    const ClimateCalls none = [](D &) {};
    differ("off", none, [](D &d) { d.setAirConditionEnable(false); });
    differ("compressor", none, [](D &d) { d.setACEnable(true); });
    differ("automatic", none, [](D &d) { d.setAutoModeEnable(true); });
    differ("heater mark", none, [](D &d) { d.setPTCModeVisible(false); });
    differ(
        "each fan step", [](D &d) { d.setAirVolume(6); }, [](D &d) { d.setAirVolume(7); });
    differ(
        "fan by the car", [](D &d) { d.setAirVolume(7); }, [](D &d) { d.setAirVolume(0xFF); });
    same(
        "fan past its end", [](D &d) { d.setAirVolume(7); }, [](D &d) { d.setAirVolume(9); });
    same(
        "fan below zero", [](D &d) { d.setAirVolume(7); }, [](D &d) { d.setAirVolume(-1); });
    differ("recirculation", none, [](D &d) { d.setCirculationMode(1); });
    differ(
        "air by the car", [](D &d) { d.setCirculationMode(1); }, [](D &d) { d.setCirculationMode(0xFF); });
    same(
        "other circulation", [](D &d) { d.setCirculationMode(1); }, [](D &d) { d.setCirculationMode(5); });
    differ(
        "windscreen and feet", [](D &d) { d.setWindDirectEx(4); }, [](D &d) { d.setWindDirectEx(5); });
    differ(
        "face and feet", [](D &d) { d.setWindDirectEx(2); }, [](D &d) { d.setWindDirectEx(1); });
    same(
        "unknown direction bits", [](D &d) { d.setWindDirectEx(2); }, [](D &d) { d.setWindDirectEx(0xFA); });
    differ(
        "0xFF as bits is all", [](D &d) { d.setWindDirectEx(0xFF); }, [](D &d) { d.setWindDirect(0xFF); });
    same(
        "mode as bits", [](D &d) { d.setWindDirectEx(3); }, [](D &d) { d.setWindDirect(3); });
    differ("defrosting", none, [](D &d) { d.setDefrostingMode(); });
    same("direction ends defrosting", none, [](D &d) { d.setDefrostingMode(), d.setWindDirectEx(0); });
    same("mode ends defrosting", none, [](D &d) { d.setDefrostingMode(), d.setWindDirect(0); });
    differ("temperature", none, [](D &d) { d.setTemperature(text("20.5°C"), text("20.0°C")); });
    differ("right temperature", none, [](D &d) { d.setTemperature(text("20.0°C"), "HI"); });
    differ("range moves the scale", none, [](D &d) { d.setTemperatureRange(10, 30); });
    same("range upside down", none, [](D &d) { d.setTemperatureRange(30, 10); });
    same("range of nothing", none, [](D &d) { d.setTemperatureRange(20, 20); });
}

void TestDialogs::climateShowsItsState()
{
    QFETCH(ClimateCalls, left);
    QFETCH(ClimateCalls, right);
    QFETCH(bool, same);
    QCOMPARE(pictureAfter(left) == pictureAfter(right), same);
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
    QTest::addColumn<UpdateCalls>("calls");
    QTest::addColumn<QString>("shown");
    typedef UpdateDialog D;
    const auto add = [](const char *name, const UpdateCalls &calls, const char *shown) {
        QTest::newRow(name) << calls << QString(shown);
    };
    add(
        "asks", [](D &) {}, "btnOk:Update btnCancel:Later");
    add(
        "runs", [](D &d) { d.updatePercent(42); }, "42");
    add(
        "below 0", [](D &d) { d.updatePercent(-1); }, "0");
    add(
        "above 100 is the end", [](D &d) { d.updatePercent(101); }, "btnCancel:Close");
    add(
        "second disk while it runs", [](D &d) { d.updatePercent(42), d.showUpdateDlg(1); }, "42");
    add(
        "disk out before the answer", [](D &d) { d.setUpdateFailed(2); }, "btnCancel:Close");
    add(
        "fails on the way", [](D &d) { d.updatePercent(42), d.setUpdateFailed(2); },
        "btnOk:Try again btnCancel:Close");
    add(
        "goes on after a failure", [](D &d) { d.setUpdateFailed(2), d.updatePercent(50); }, "50");
    add(
        "disk out after the end", [](D &d) { d.updatePercent(100), d.setUpdateFailed(2); },
        "btnCancel:Close");
    add(
        "asks again after a failure", [](D &d) { d.setUpdateFailed(2), d.showUpdateDlg(1); },
        "btnOk:Update btnCancel:Later");
    add(
        "later failure does not offer a try",
        [](D &d) { d.updatePercent(4), d.setUpdateFailed(2), d.showUpdateDlg(1), d.setUpdateFailed(2); },
        "btnCancel:Close");
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

void TestDialogs::updateMaySilentlyEnd_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("shown");
    QTest::newRow("after the last packet") << 99 << "btnCancel:Close";
    QTest::newRow("on the way") << 42 << "btnCancel:Close 42";
}

void TestDialogs::updateMaySilentlyEnd()
{
    QFETCH(int, percent);
    QFETCH(QString, shown);
    TestScreen screen;
    UpdateDialog dialog;
    dialog.findChild<QTimer *>("silence")->setInterval(10);
    dialog.showUpdateDlg(1);
    dialog.updatePercent(percent);
    QTRY_COMPARE(summary(dialog), shown);
    dialog.updatePercent(percent);
    QCOMPARE(summary(dialog), QString::number(percent));
}

void TestDialogs::updateCallsAreTraced()
{
    TestScreen screen;
    TraceRecorder trace;
    UpdateDialog dialog;
    dialog.showUpdateDlg(1);
    dialog.updatePercent(140);
    dialog.setUpdateFailed(2);
    dialog.reject();
    QCOMPARE(trace.lines(), QStringList({"UpdateDialog.showUpdateDlg(1)", "UpdateDialog.updatePercent(140)",
                                         "UpdateDialog.setUpdateFailed(2)"}));
}

void TestDialogs::languageChangesWhileOpen()
{
    TestScreen screen;
    UpdateDialog update;
    update.showUpdateDlg(1);
    OrbChoiceDialog choice("Convenience opening", {"OFF"}, 0);
    choice.show();
    SampleTranslator german("de");
    qApp->installTranslator(&german);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(summary(update), text("btnOk:Aktualisieren btnCancel:Später"));
    QCOMPARE(choice.findChild<QPushButton *>("btnCancel")->text(), QString("Abbrechen"));
    qApp->removeTranslator(&german);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(summary(update), QString("btnOk:Update btnCancel:Later"));
}

int main(int argc, char **argv)
{
    OrbApplication application(argc, argv);
    TestDialogs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialogs.moc"
