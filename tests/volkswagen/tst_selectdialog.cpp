#include "adapterfixture.h"
#include "vwbench.h"

#include "volkswagen/flowlayout.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <limits>

/// The select dialog: its three modes, their limits, and how it ends.
class TestSelectDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void checks_data();
    void checks();
    void choicesMove();
    void showsText();
    void firstModeWins();
    void sizesAndRepeat();
    void ends();
    void flowWraps();

private:
    TestScreen m_screen;
};

void TestSelectDialog::steps_data()
{
    QTest::addColumn<QList<int>>("slider"); // minimum, maximum, step, value
    QTest::addColumn<int>("presses");       // "+", or "-" below 0
    QTest::addColumn<QString>("text");
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    QTest::newRow("starts at its value") << QList<int>{0, 10, 1, 4} << 0 << "4 km";
    QTest::newRow("starts at the maximum at most") << QList<int>{0, 10, 1, 20} << 0 << "10 km";
    QTest::newRow("starts at the minimum at least") << QList<int>{5, 10, 1, -3} << 0 << "5 km";
    QTest::newRow("down") << QList<int>{0, 10, 3, 9} << -2 << "3 km";
    QTest::newRow("a step past the maximum lands on it") << QList<int>{0, 10, 3, 9} << 1 << "10 km";
    QTest::newRow("a step past the minimum lands on it") << QList<int>{1, 10, 3, 2} << -1 << "1 km";
    QTest::newRow("does not wrap at the maximum") << QList<int>{0, 10, 5, 10} << 3 << "10 km";
    QTest::newRow("does not wrap at the minimum") << QList<int>{-10, 10, 5, -10} << -3 << "-10 km";
    QTest::newRow("widest range, up") << QList<int>{least, most, most, 5} << 1 << "2147483647 km";
    QTest::newRow("widest range, down") << QList<int>{least, most, most, -5} << -1 << "-2147483648 km";
    QTest::newRow("limits the wrong way round") << QList<int>{10, 0, 1, 5} << 1 << "10 km";
}

void TestSelectDialog::steps()
{
    QFETCH(QList<int>, slider);
    QFETCH(int, presses);
    QFETCH(QString, text);
    SelectDialog dialog;
    QCOMPARE(dialog.getSliderValueText(), QString());
    QCOMPARE(dialog.getSliderValue(), -1);
    dialog.setSliderMode(slider[0], slider[1], slider[2], slider[3], " km");
    dialog.show();
    VwBench::step(dialog, presses);
    QCOMPARE(dialog.getSliderValueText(), text);
    QCOMPARE(QString::number(dialog.getSliderValue()) + " km", text);
    QCOMPARE(dialog.getCheckedIndex(), -1);
}

void TestSelectDialog::checks_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<int>("index");
    const QStringList items{"OFF", " Activated", "ESC sport "};
    QTest::newRow("blanks around the checked text") << items << "  OFF " << 0;
    QTest::newRow("blanks around the items") << items << "ESC sport" << 2;
    QTest::newRow("unknown text") << items << "Sport" << -1;
    QTest::newRow("no items") << QStringList() << "OFF" << -1;
}

void TestSelectDialog::checks()
{
    QFETCH(QStringList, items);
    QFETCH(QString, checked);
    QFETCH(int, index);
    SelectDialog dialog;
    QCOMPARE(dialog.getCheckedIndex(), -1);
    dialog.setCheckBoxListMode(items, checked, true);
    QCOMPARE(dialog.getCheckedIndex(), index);
    const QList<QCheckBox *> boxes = dialog.findChildren<QCheckBox *>();
    QCOMPARE(int(boxes.size()), int(items.size()));
    for (int i = 0; i < boxes.size(); ++i) {
        QCOMPARE(boxes.at(i)->text(), items.at(i));
        QCOMPARE(boxes.at(i)->focusPolicy(), Qt::StrongFocus);
    }
}

void TestSelectDialog::choicesMove()
{
    SelectDialog several;
    several.setCheckBoxListMode({"a", "b", "c"}, "c", false);
    VwBench::check(several, 1);
    QCOMPARE(several.getCheckedIndex(), 1);
    QVERIFY(several.findChildren<QCheckBox *>().at(2)->isChecked());
    VwBench::check(several, 1);
    VwBench::check(several, 2);
    QCOMPARE(several.getCheckedIndex(), -1);

    SelectDialog exclusive;
    exclusive.setCheckBoxListMode({"a", "b", "c"}, "c", true);
    for (int i = 0; i < 2; ++i) { // a second tap leaves it checked
        VwBench::check(exclusive, 0);
        QCOMPARE(exclusive.getCheckedIndex(), 0);
    }
}

void TestSelectDialog::showsText()
{
    SelectDialog dialog;
    dialog.setWindowTitle("Factory settings");
    dialog.setContentText("Are you sure?");
    QCOMPARE(dialog.findChild<QLabel *>("txtTitle")->text(), QString("Factory settings"));
    QCOMPARE(static_cast<QDialog &>(dialog).windowTitle(), QString());
    QCOMPARE(dialog.findChild<QLabel *>("labelContent")->text(), QString("Are you sure?"));
    dialog.hideButtons();
    dialog.show();
    for (const char *name : {"lineBottom", "btnOk", "btnCancel"}) {
        QVERIFY2(!dialog.findChild<QWidget *>(name)->isVisible(), name);
    }
    QVERIFY(dialog.findChild<QWidget *>("lineTop")->isVisible());
}

void TestSelectDialog::firstModeWins()
{
    for (int first = 0; first < 4; ++first) {
        SelectDialog dialog;
        for (int mode : {first, 0, 1, 2, 3}) {
            if (mode == 0) {
                dialog.setContentText("text");
            } else if (mode == 1) {
                dialog.setCheckBoxListMode({"a", "b"}, "b", true);
            } else if (mode == 2) {
                dialog.setSliderMode(0, 10, 1, 5, "");
            } else {
                dialog.setContentLayout(new QHBoxLayout);
            }
        }
        QCOMPARE(dialog.findChild<QLabel *>("labelContent") != nullptr, first == 0);
        QCOMPARE(dialog.getCheckedIndex(), first == 1 ? 1 : -1);
        QCOMPARE(dialog.getSliderValue(), first == 2 ? 5 : -1);
    }
}

void TestSelectDialog::sizesAndRepeat()
{
    SelectDialog dialog;
    dialog.setSliderMode(0, 10, 1, 5, " s");
    dialog.show();
    const struct
    {
        const char *name;
        QSize smallest;
        bool repeats;
        bool enabled;
    } buttons[] = {{"btnDec", QSize(100, 60), true, true},
                   {"btnValue", QSize(300, 60), false, false},
                   {"btnInc", QSize(100, 60), true, true},
                   {"btnOk", QSize(150, 60), false, true},
                   {"btnCancel", QSize(150, 60), false, true}};
    for (const auto &expected : buttons) {
        const QPushButton *button = dialog.findChild<QPushButton *>(expected.name);
        QVERIFY2(button, expected.name);
        QVERIFY(button->size().expandedTo(expected.smallest) == button->size());
        QCOMPARE(button->autoRepeat(), expected.repeats);
        QCOMPARE(button->isEnabled(), expected.enabled);
        if (expected.repeats) {
            QCOMPARE(QPoint(button->autoRepeatDelay(), button->autoRepeatInterval()), QPoint(500, 200));
        }
    }
    QVERIFY(dialog.findChild<QPushButton *>("btnDec")->x() < dialog.findChild<QPushButton *>("btnInc")->x());
}

void TestSelectDialog::ends()
{
    for (const char *by : {"btnOk", "btnCancel", "the unit's Back key"}) {
        SelectDialog dialog;
        dialog.setContentText("text");
        QTimer::singleShot(0, &dialog, [&dialog, by] {
            if (dialog.findChild<QWidget *>(by)) {
                VwBench::click(dialog, by);
            } else {
                dialog.back();
            }
        });
        QCOMPARE(dialog.exec(), int(qstrcmp(by, "btnOk") == 0));
        QVERIFY(!dialog.isVisible());
    }
}

void TestSelectDialog::flowWraps()
{
    FlowLayout flow(20, 30, 25);
    for (int width : {70, 40, 60, 100}) {
        flow.addItem(new QSpacerItem(width, width == 100 ? 80 : 60));
    }
    const auto places = [&flow](const QRect &room) {
        flow.setGeometry(room);
        QStringList tiles;
        for (int i = 0; i < flow.count(); ++i) {
            const QRect tile = flow.itemAt(i)->geometry();
            tiles << QString("%1,%2 %3x%4").arg(tile.x()).arg(tile.y()).arg(tile.width()).arg(tile.height());
        }
        return tiles.join(" | ");
    };
    // Two columns of which the widest tile just fits one, and what is left over is shared out.
    QCOMPARE(places(QRect(0, 0, 270, 300)),
             QString("20,20 100x60 | 150,20 100x60 | 20,105 100x60 | 150,105 100x80"));
    QCOMPARE(flow.heightForWidth(270), 205);
    // Three columns have room, but two give lines of equal length.
    QCOMPARE(places(QRect(5, 7, 430, 300)),
             QString("25,27 180x60 | 235,27 180x60 | 25,112 180x60 | 235,112 180x80"));
    QCOMPARE(flow.heightForWidth(1000), 120);
    // Four lines would be too many: what is narrow shares one.
    QCOMPARE(places(QRect(0, 0, 240, 900)),
             QString("20,20 85x60 | 135,20 85x60 | 20,105 85x60 | 20,190 200x80"));
    // A tile wider than the room gets the room.
    QCOMPARE(places(QRect(0, 0, 90, 900)),
             QString("20,20 50x60 | 20,105 50x60 | 20,190 50x60 | 20,275 50x80"));
    delete flow.takeAt(3);
    QVERIFY(!flow.takeAt(3) && !flow.takeAt(-1) && !flow.itemAt(7));
}

CANBUS_TEST_MAIN(TestSelectDialog)
#include "tst_selectdialog.moc"
