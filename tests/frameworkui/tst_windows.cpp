#include "samplewindows.h"
#include "testmain.h"
#include "tracerecorder.h"
#include "unitscreen.h"

#include "airconditiondlg.h"
#include "orbhost.h"
#include "orbwindowmanager.h"
#include "updatedialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

/// Windows and dialogs on the unit's screen: what is reported, where they lie, how they outlive the screen.
class TestWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsAreTracedOnce_data();
    void callsAreTracedOnce();
    void hooksFollowTheWindow();
    void hooksMayDeleteTheWindow();
    void windowsAndDialogsHaveTheirPlaces();
    void frontIsTheTopmost();
    void screenGoesBeforeItsWindows();
    void screenIsReplaced();
    void deletedWindowsAreForgotten();
    void titleIsShown();
    void processEndsWithDialogsOpen();
};

void TestWindows::callsAreTracedOnce_data()
{
    QTest::addColumn<QString>("calls"); // setVisible of window and dialog, + for true
    QTest::addColumn<Action>("action");
    typedef HookedWindow W;
    typedef PlainDialog D;
    const auto row = [](const char *name, const char *calls, const Action &action) {
        QTest::newRow(name) << QString(calls) << action;
    };
    row("nothing changes", "W+ W+ D- D-", [](W &w, D &d) { w.show(), w.show(), d.hide(), d.hide(); });
    row("window back", "W+ W-", [](W &w, D &) { w.show(), w.back(); });
    row("back hook hides itself", "W+ W-", [](W &w, D &) { w.hideOnBack = true, w.show(), w.back(); });
    row("window home", "W+ W-", [](W &w, D &) { w.show(), w.home(); });
    row("home of a hidden window", "", [](W &w, D &) { w.home(); });
    row("window closed", "W+ W-", [](W &w, D &) { w.show(), w.close(); });
    row("dialog accepted", "D+ D-", [](W &, D &d) { d.show(), d.accept(); });
    row("dialog back", "D+ D-", [](W &, D &d) { d.show(), d.back(); });
    row("dialog executed", "D+ D-", [](W &, D &d) { execWhile(&d, [&d] { d.accept(); }); });
    row("screen goes", "W+ D+",
        [](W &w, D &d) { w.show(), d.show(), OrbHost::instance()->setScreen(nullptr, nullptr); });
}

void TestWindows::callsAreTracedOnce()
{
    QFETCH(QString, calls);
    QFETCH(Action, action);
    TestScreen screen;
    HookedWindow window;
    PlainDialog dialog(OrbDialog::Choice);
    TraceRecorder trace;
    action(window, dialog);
    calls.replace('W', "HookedWindow.setVisible").replace('D', "PlainDialog.setVisible");
    QCOMPARE(trace.lines().join(' '), calls.replace('+', "(true)").replace('-', "(false)"));
}

void TestWindows::hooksFollowTheWindow()
{
    TestScreen screen;
    HookedWindow window;
    window.hide();
    QCOMPARE(window.hooks, QStringList());
    window.show();
    window.show();
    window.back();
    window.show();
    window.home();
    QCOMPARE(window.hooks, QStringList({"load", "visible", "back", "hidden", "visible", "home", "hidden"}));
    window.hooks.clear();
    window.show();
    OrbHost::instance()->setScreen(nullptr, nullptr);
    QCOMPARE(window.hooks, QStringList({"visible", "hidden"}));
}

void TestWindows::hooksMayDeleteTheWindow()
{
    TestScreen screen;
    QPointer<HookedWindow> window(new HookedWindow);
    window->deleteOnHome = true;
    window->show();
    window->findChild<QPushButton *>("btnHome")->click();
    QVERIFY(window && window->isHidden());
    QTRY_VERIFY(!window);
}

void TestWindows::windowsAndDialogsHaveTheirPlaces()
{
    TestScreen screen;
    HookedWindow window;
    AirConditionDlg overlay;
    PlainDialog choice(OrbDialog::Choice);
    QVBoxLayout column(&choice);
    QLabel content;
    column.addWidget(&content);
    window.show(), overlay.show(), choice.show();

    const QRect area = screen.area()->rect();
    QCOMPARE(window.geometry(), area);
    QCOMPARE(overlay.geometry(), QRect(0, area.height() - 190, area.width(), 190));
    QCOMPARE(choice.width(), 560);
    QVERIFY((choice.geometry().center() - area.center()).manhattanLength() <= 2);

    screen.resize(800, 480);
    QCoreApplication::processEvents();
    QCOMPARE(window.geometry(), screen.area()->rect());
    QCOMPARE(overlay.geometry(), QRect(0, 432 - 190, 800, 190));

    // What needs more room gets it, up to the screen.
    content.setMinimumSize(700, 300);
    QTRY_COMPARE(choice.width(), 700 + column.contentsMargins().left() + column.contentsMargins().right());
    content.setMinimumSize(2000, 2000);
    QTRY_COMPARE(choice.size(), QSize(800 - 32, 432 - 32));
}

void TestWindows::frontIsTheTopmost()
{
    TestScreen screen;
    OrbHost *host = OrbHost::instance();
    HookedWindow first(769), second(770);
    AirConditionDlg overlay;
    PlainDialog choice(OrbDialog::Choice);
    QSignalSpy changes(host, SIGNAL(windowsChanged()));
    QVERIFY(!host->frontWindow());
    first.show(), second.show(), overlay.show();
    QCOMPARE(changes.size(), 3);
    QCOMPARE(host->frontWindow(), &second);
    QCOMPARE(host->frontWindow(false), &overlay);
    first.show();
    QCOMPARE(host->frontWindow(), &first);
    QCOMPARE(OrbWindowManager::getCurWindowAppId(), 769u);
    // A window that is shown later still lies below the overlay.
    QCOMPARE(host->frontWindow(false), &overlay);
    QCOMPARE(screen.childAt(500, 500), &overlay);
    choice.show();
    overlay.show();
    QCOMPARE(host->frontWindow(false), &choice);
    choice.back();
    first.back();
    QCOMPARE(host->frontWindow(), &second);
    QCOMPARE(host->windows(), QList<QWidget *>({&first, &second, &overlay, &choice}));
}

void TestWindows::screenGoesBeforeItsWindows()
{
    std::unique_ptr<TestScreen> screen(new TestScreen);
    AirConditionDlg overlay;
    HookedWindow window;
    PlainDialog choice(OrbDialog::Choice);
    overlay.show(), window.show(), choice.show();
    screen.reset();
    for (QWidget *widget : {static_cast<QWidget *>(&overlay), static_cast<QWidget *>(&window),
                            static_cast<QWidget *>(&choice)}) {
        QVERIFY(!widget->parentWidget());
        QVERIFY(widget->isHidden());
    }
    QVERIFY(!OrbHost::instance()->frontWindow(false));
}

void TestWindows::screenIsReplaced()
{
    TestScreen first;
    HookedWindow window;
    window.show();
    TestScreen second(QSize(800, 480));
    QVERIFY(window.isHidden());
    window.show();
    QCOMPARE(window.parentWidget(), second.area());
    QCOMPARE(window.geometry(), second.area()->rect());
}

void TestWindows::deletedWindowsAreForgotten()
{
    TestScreen screen;
    OrbHost *host = OrbHost::instance();
    HookedWindow below(1);
    below.show();
    HookedWindow *above = new HookedWindow(2);
    above->show();
    QCOMPARE(host->frontWindow(), above);
    delete above;
    QCOMPARE(host->windows(), QList<QWidget *>({&below}));
    QCOMPARE(host->frontWindow(), &below);
}

void TestWindows::titleIsShown()
{
    TestScreen screen;
    HookedWindow window;
    window.setWindowTitle("Tyres");
    window.show();
    const QLabel *title = window.findChild<QLabel *>("orbTitle");
    QCOMPARE(title->text(), QString("Tyres"));
    window.setWindowTitle(QString(200, 'W'));
    QVERIFY(title->text().size() < 200 && title->text().startsWith('W'));
    QCOMPARE(window.width(), 1024);
}

// An adapter lives until the process ends, and so do its dialog and windows.
void TestWindows::processEndsWithDialogsOpen()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--leave-open"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 0, process.readAll().constData());
}

static int leaveOpen(int argc, char **argv)
{
    struct Adapter
    {
        AirConditionDlg climate;
        HookedWindow window;
        UpdateDialog update;
    };
    OrbApplication application(argc, argv);
    TestScreen screen;
    static Adapter *const adapter = new Adapter;
    adapter->window.show();
    adapter->climate.show();
    adapter->update.showUpdateDlg(1);
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    return OrbApplication::exec();
}

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--leave-open") == 0) {
        return leaveOpen(argc, argv);
    }
    OrbApplication application(argc, argv);
    TestWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_windows.moc"
