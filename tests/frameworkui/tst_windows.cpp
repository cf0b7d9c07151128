#include "tracerecorder.h"
#include "unitscreen.h"

#include "airconditiondlg.h"
#include "orbapplication.h"
#include "orbchoicedialog.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "updatedialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

/// Notes the hooks that the framework calls.
class HookedWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    explicit HookedWindow(unsigned int appId = 769, QWidget *parent = nullptr) : OrbMainWindow(appId, parent)
    {}

    QStringList hooks;
    bool deleteOnHome = false;
    bool hideOnBack = false;

protected:
    void onLoadUiSkin() override { hooks << "load"; }
    void onVisibleChange(bool visible) override { hooks << (visible ? "visible" : "hidden"); }
    void onBackEvent() override
    {
        hooks << "back";
        if (hideOnBack)
            hide();
    }
    void onHomeEvent() override
    {
        hooks << "home";
        if (deleteOnHome)
            deleteLater();
    }
};

class PlainDialog : public OrbDialog
{
    Q_OBJECT

public:
    explicit PlainDialog(int kind, QWidget *parent = nullptr) : OrbDialog(parent, kind) { resize(300, 200); }
};

typedef std::function<void(HookedWindow &, PlainDialog &)> Action;

/// Runs \a inside while \a dialog is open, and gives what exec() then returned.
int execWhile(OrbDialog *dialog, const std::function<void()> &inside)
{
    QTimer::singleShot(0, qApp, inside);
    return dialog->exec();
}

} // namespace

Q_DECLARE_METATYPE(Action)

class TestWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsAreTracedOnce_data();
    void callsAreTracedOnce();
    void hooksFollowTheWindow();
    void hooksMayDeleteTheWindow();
    void windowsAndDialogsHaveTheirPlaces();
    void placesFollowTheScreen();
    void frontIsTheTopmost();
    void scrimKeepsTouchesAway();
    void execReturnsTheResult_data();
    void execReturnsTheResult();
    void dialogDeletedWhileOpen();
    void dialogOverDialog();
    void choosing();
    void screenGoesBeforeItsWindows();
    void screenIsReplaced();
    void builderGoesBeforeItsDialog();
    void deletedWindowsAreForgotten();
    void titleIsShown();
    void processEndsWithDialogsOpen();
};

void TestWindows::callsAreTracedOnce_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QStringList>("lines");
    const QString windowOn = "HookedWindow.setVisible(true)";
    const QString windowOff = "HookedWindow.setVisible(false)";
    const QString dialogOn = "PlainDialog.setVisible(true)";
    const QString dialogOff = "PlainDialog.setVisible(false)";

    const auto add = [](const char *name, const Action &action, const QStringList &lines) {
        QTest::newRow(name) << action << lines;
    };
    add("window shown and hidden", [](HookedWindow &w, PlainDialog &) { w.show(), w.hide(); },
        {windowOn, windowOff});
    add("nothing changes", [](HookedWindow &w, PlainDialog &d) { w.show(), w.show(), d.hide(), d.hide(); },
        {windowOn, windowOn, dialogOff, dialogOff});
    add("window back", [](HookedWindow &w, PlainDialog &) { w.show(), w.back(); }, {windowOn, windowOff});
    add("back hook hides itself",
        [](HookedWindow &w, PlainDialog &) { w.hideOnBack = true, w.show(), w.back(); },
        {windowOn, windowOff});
    add("window home", [](HookedWindow &w, PlainDialog &) { w.show(), w.home(); }, {windowOn, windowOff});
    add("home of a hidden window", [](HookedWindow &w, PlainDialog &) { w.home(); }, {});
    add("window closed", [](HookedWindow &w, PlainDialog &) { w.show(), w.close(); }, {windowOn, windowOff});
    add("dialog accepted", [](HookedWindow &, PlainDialog &d) { d.show(), d.accept(); },
        {dialogOn, dialogOff});
    add("dialog rejected", [](HookedWindow &, PlainDialog &d) { d.show(), d.reject(); },
        {dialogOn, dialogOff});
    add("dialog done", [](HookedWindow &, PlainDialog &d) { d.show(), d.done(7); }, {dialogOn, dialogOff});
    add("dialog back", [](HookedWindow &, PlainDialog &d) { d.show(), d.back(); }, {dialogOn, dialogOff});
    add("dialog executed", [](HookedWindow &, PlainDialog &d) { execWhile(&d, [&d] { d.accept(); }); },
        {dialogOn, dialogOff});
    add("dialog over window", [](HookedWindow &w, PlainDialog &d) { w.show(), d.show(); },
        {windowOn, dialogOn});
    add("screen goes",
        [](HookedWindow &w, PlainDialog &d) {
            w.show(), d.show();
            OrbHost::instance()->setScreen(nullptr, nullptr);
        },
        {windowOn, dialogOn});
}

void TestWindows::callsAreTracedOnce()
{
    QFETCH(Action, action);
    QFETCH(QStringList, lines);
    TestScreen screen;
    HookedWindow window;
    PlainDialog dialog(OrbDialog::Choice);
    TraceRecorder trace;
    action(window, dialog);
    QCOMPARE(trace.lines(), lines);
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
    window.show(), overlay.show(), choice.show();

    const QRect area = screen.area()->rect();
    QCOMPARE(window.geometry(), area);
    QCOMPARE(overlay.geometry(), QRect(0, area.height() - 190, area.width(), 190));
    QCOMPARE(choice.width(), 560);
    QVERIFY((choice.geometry().center() - area.center()).manhattanLength() <= 2);
}

void TestWindows::placesFollowTheScreen()
{
    TestScreen screen;
    HookedWindow window;
    AirConditionDlg overlay;
    PlainDialog choice(OrbDialog::Choice);
    QVBoxLayout column(&choice);
    QLabel content;
    column.addWidget(&content);
    window.show(), overlay.show(), choice.show();
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
    HookedWindow first, second;
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

void TestWindows::scrimKeepsTouchesAway()
{
    TestScreen screen;
    HookedWindow window;
    QPushButton *button = new QPushButton("behind");
    QSignalSpy clicked(button, SIGNAL(clicked()));
    window.setCentralWidget(button);
    window.show();
    const QPoint place(20, 120);
    TestScreen::tap(screen.area(), place);
    QCOMPARE(clicked.size(), 1);

    PlainDialog choice(OrbDialog::Choice);
    choice.show();
    TestScreen::tap(screen.area(), place);
    TestScreen::tap(screen.area(), QPoint(20, 20));
    QCOMPARE(clicked.size(), 1);
    QVERIFY(window.isVisible());
    choice.hide();
    TestScreen::tap(screen.area(), place);
    QCOMPARE(clicked.size(), 2);
}

void TestWindows::execReturnsTheResult_data()
{
    QTest::addColumn<Action>("close");
    QTest::addColumn<int>("result");
    QTest::newRow("accept") << Action([](HookedWindow &, PlainDialog &d) { d.accept(); }) << 1;
    QTest::newRow("reject") << Action([](HookedWindow &, PlainDialog &d) { d.reject(); }) << 0;
    QTest::newRow("back") << Action([](HookedWindow &, PlainDialog &d) { d.back(); }) << 0;
    QTest::newRow("done") << Action([](HookedWindow &, PlainDialog &d) { d.done(5); }) << 5;
    QTest::newRow("hide") << Action([](HookedWindow &, PlainDialog &d) { d.hide(); }) << 0;
    QTest::newRow("accept, then hide")
        << Action([](HookedWindow &, PlainDialog &d) { d.accept(), d.hide(); }) << 1;
    QTest::newRow("screen goes") << Action([](HookedWindow &, PlainDialog &) {
        OrbHost::instance()->setScreen(nullptr, nullptr);
    }) << 0;
}

void TestWindows::execReturnsTheResult()
{
    QFETCH(Action, close);
    QFETCH(int, result);
    TestScreen screen;
    HookedWindow window;
    window.show();
    PlainDialog dialog(OrbDialog::Choice);
    bool inside = false;
    const int returned = execWhile(&dialog, [&] {
        inside = dialog.isVisible() && !dialog.isWindow();
        close(window, dialog);
    });
    QCOMPARE(returned, result);
    QVERIFY(inside);
    QVERIFY(dialog.isHidden());
}

void TestWindows::dialogDeletedWhileOpen()
{
    TestScreen screen;
    QPointer<PlainDialog> dialog(new PlainDialog(OrbDialog::Choice));
    QCOMPARE(execWhile(dialog, [dialog] { delete dialog.data(); }), 0);
    QVERIFY(!dialog);
    // The scrim is gone with it.
    QCOMPARE(screen.childAt(100, 100), screen.area());
}

void TestWindows::dialogOverDialog()
{
    TestScreen screen;
    PlainDialog below(OrbDialog::Choice), above(OrbDialog::Choice);
    int inner = -1;
    const int outer = execWhile(&below, [&] {
        inner = execWhile(&above, [&] {
            QCOMPARE(OrbHost::instance()->frontWindow(), &above);
            above.done(3);
        });
        QCOMPARE(OrbHost::instance()->frontWindow(), &below);
        below.done(4);
    });
    QCOMPARE(inner, 3);
    QCOMPARE(outer, 4);
}

void TestWindows::choosing()
{
    TestScreen screen;
    const QStringList texts = {"OFF", "Driver window", "All windows"};
    const auto choose = [&](const char *button, int box) {
        QTimer::singleShot(0, qApp, [button, box] {
            QWidget *dialog = OrbHost::instance()->frontWindow();
            const QList<QCheckBox *> boxes = dialog->findChildren<QCheckBox *>();
            QCoreApplication::processEvents();
            TestScreen::tap(boxes.at(box), boxes.at(box)->rect().center());
            dialog->findChild<QPushButton *>(button)->click();
        });
        return OrbChoiceDialog::choose("Convenience opening", texts, 1);
    };
    QCOMPARE(choose("btnOk", 2), 2);
    QCOMPARE(choose("btnOk", 1), 1);
    QCOMPARE(choose("btnCancel", 2), -1);
    QCOMPARE(OrbHost::instance()->windows().size(), 0);
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

void TestWindows::builderGoesBeforeItsDialog()
{
    TestScreen screen;
    HookedWindow *window = new HookedWindow;
    window->show();
    QPointer<PlainDialog> dialog(new PlainDialog(OrbDialog::Choice, window));
    dialog->show();
    QCOMPARE(dialog->parentWidget(), screen.area());
    delete window;
    QTRY_VERIFY(!dialog);
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
    if (argc == 2 && qstrcmp(argv[1], "--leave-open") == 0)
        return leaveOpen(argc, argv);
    OrbApplication application(argc, argv);
    TestWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_windows.moc"
