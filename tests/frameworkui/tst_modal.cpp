#include "samplewindows.h"
#include "testmain.h"
#include "unitscreen.h"

#include "orbchoicedialog.h"
#include "orbhost.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

/// Dialogs that want an answer.
class TestModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrimKeepsTouchesAway();
    void execReturnsTheResult_data();
    void execReturnsTheResult();
    void dialogDeletedWhileOpen();
    void dialogOverDialog();
    void choosing();
    void longChoiceScrollsUnderTheFinger();
    void builderGoesBeforeItsDialog();
};

void TestModal::scrimKeepsTouchesAway()
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

void TestModal::execReturnsTheResult_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<Action>("close");
    typedef HookedWindow W;
    typedef PlainDialog D;
    const auto row = [](const char *name, int result, const Action &close) {
        QTest::newRow(name) << result << close;
    };
    row("back", 0, [](W &, D &d) { d.back(); });
    row("done", 5, [](W &, D &d) { d.done(5); });
    row("hide", 0, [](W &, D &d) { d.hide(); });
    row("accept, then hide", 1, [](W &, D &d) { d.accept(), d.hide(); });
    row("screen goes", 0, [](W &, D &) { OrbHost::instance()->setScreen(nullptr, nullptr); });
}

void TestModal::execReturnsTheResult()
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

void TestModal::dialogDeletedWhileOpen()
{
    TestScreen screen;
    QPointer<PlainDialog> dialog(new PlainDialog(OrbDialog::Choice));
    QCOMPARE(execWhile(dialog, [dialog] { delete dialog.data(); }), 0);
    QVERIFY(!dialog);
    // The scrim is gone with it.
    QCOMPARE(screen.childAt(100, 100), screen.area());
}

void TestModal::dialogOverDialog()
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

void TestModal::choosing()
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

void TestModal::builderGoesBeforeItsDialog()
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

void TestModal::longChoiceScrollsUnderTheFinger()
{
    TestScreen screen;
    QStringList texts;
    for (int i = 0; i < 12; ++i) {
        texts << QString("Profile %1").arg(i);
    }
    OrbChoiceDialog dialog("Profiles", texts, 9);
    dialog.show();
    QCoreApplication::processEvents();
    const QList<QCheckBox *> rows = dialog.findChildren<QCheckBox *>();
    const QScrollBar *bar = dialog.findChild<QScrollArea *>()->verticalScrollBar();
    // What is chosen is in sight.
    QVERIFY(!rows.at(9)->visibleRegion().isEmpty());
    const int before = bar->value();
    const QPoint middle = rows.at(9)->rect().center();
    TestScreen::drag(rows.at(8), middle, middle + QPoint(0, 100));
    QVERIFY(bar->value() <= before - 88);
    QCOMPARE(dialog.chosenIndex(), 9);
    QVERIFY(!rows.at(8)->isDown());
    QTRY_COMPARE(bar->value(), 0);
    QTest::qWait(50);
    TestScreen::tap(rows.at(0), middle);
    QCOMPARE(dialog.chosenIndex(), 0);
}

CANBUS_TEST_MAIN(TestModal)
#include "tst_modal.moc"
