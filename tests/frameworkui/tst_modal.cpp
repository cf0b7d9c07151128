#include "samplewindows.h"
#include "testmain.h"
#include "testscreen.h"

#include "orbchoicedialog.h"
#include "orbhost.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

/// Dialogs that want an answer.
class TestModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrimKeepsTouchesAway();
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

    PlainDialog choice(PlainDialog::Modal);
    choice.show();
    TestScreen::tap(screen.area(), place);
    TestScreen::tap(screen.area(), QPoint(20, 20));
    QCOMPARE(clicked.size(), 1);
    QVERIFY(window.isVisible());
    choice.hide();
    TestScreen::tap(screen.area(), place);
    QCOMPARE(clicked.size(), 2);
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
    QPointer<PlainDialog> dialog(new PlainDialog(PlainDialog::Modal, window));
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
    QTRY_VERIFY(
        (TestScreen::tap(rows.at(0), middle), dialog.chosenIndex() == 0)); // the first may stop the glide
}

CANBUS_TEST_MAIN(TestModal)
#include "tst_modal.moc"
