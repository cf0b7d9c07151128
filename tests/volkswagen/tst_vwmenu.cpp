#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "orbhost.h"

#include <QCheckBox>
#include <QLabel>

/// Walks the whole settings menu under a finger: every row of every page, its dialog, the command that goes
/// out, the reply, and the text that then stands in the row.
class TestVwMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data();
    void pages();
    void rows_data();
    void rows();
};

namespace {

using VwBench::cancel;
using VwBench::choose;
using VwBench::commands;
using VwBench::Page;
using VwMenu::Row;

QString titleOf(const SelectDialog &dialog)
{
    return dialog.findChild<QLabel *>("txtTitle")->text();
}

void walkSwitch(Page &bench, const Row &row)
{
    QVERIFY(!bench.tap(row.item, nullptr, 0));
    QCOMPARE(bench.sent(), QStringList());
    for (int value : {1, 0, 1}) {
        QVERIFY(!bench.tap(row.item, nullptr, 2));
        QCOMPARE(bench.sent(), commands(row.item, value));
        QCOMPARE(bench.valueOf(row.item), QString(value ? "on" : "off"));
    }
}

void walkOptions(Page &bench, const Row &row)
{
    const QStringList options = row.options();
    QVERIFY(bench.tap(row.item, cancel));
    // Nothing is known yet, so nothing is checked and OK chooses nothing.
    QVERIFY(bench.tap(row.item, [](SelectDialog &dialog) {
        QCOMPARE(dialog.getCheckedIndex(), -1);
        VwBench::click(dialog, "btnOk");
    }));
    QCOMPARE(bench.sent(), QStringList());
    QCOMPARE(bench.valueOf(row.item), QString());

    for (int i = 0; i < options.size(); ++i) {
        // The car's answer differs from the choice, so that it is seen to have the last word.
        const int other = (i + 1) % options.size();
        bench.feed(row.reply(row.code(other)));
        QCOMPARE(bench.valueOf(row.item), options.at(other));
        QVERIFY(bench.tap(row.item, [&](SelectDialog &dialog) {
            QCOMPARE(titleOf(dialog), QString(row.label));
            QStringList shown;
            for (const QCheckBox *box : dialog.findChildren<QCheckBox *>()) {
                shown << box->text();
            }
            QCOMPARE(shown, options);
            QCOMPARE(dialog.getCheckedIndex(), other);
            choose(dialog, i);
        }));
        QCOMPARE(bench.sent(), commands(row.item, row.code(i)));
        QCOMPARE(bench.valueOf(row.item), options.at(i));
        bench.feed(row.reply(row.code(other)));
        QCOMPARE(bench.valueOf(row.item), options.at(other));
        QVERIFY(bench.tap(row.item, cancel));
        QCOMPARE(bench.sent(), QStringList());
    }
}

void walkNumber(Page &bench, const Row &row)
{
    const QStringList range = row.options();
    const int minimum = range.at(0).toInt();
    const int maximum = range.at(1).toInt();
    const int step = range.at(2).toInt();
    const QString unit = range.at(3).isEmpty() ? QString() : ' ' + range.at(3);
    const struct
    {
        int before, steps, after;
    } moves[] = {{minimum, 0, minimum},  {minimum, 1, minimum + step}, {maximum, -1, maximum - step},
                 {minimum, 40, maximum}, {maximum, -40, minimum},      {maximum - 1, 1, maximum}};
    for (const auto &move : moves) {
        bench.feed(row.reply(move.before));
        QCOMPARE(bench.valueOf(row.item), QString::number(move.before) + unit);
        QVERIFY(bench.tap(row.item, [&](SelectDialog &dialog) {
            QCOMPARE(titleOf(dialog), QString(row.label));
            QCOMPARE(dialog.getSliderValueText().trimmed(), QString::number(move.before) + unit);
            VwBench::step(dialog, move.steps);
            VwBench::click(dialog, "btnOk");
        }));
        QCOMPARE(bench.sent(), commands(row.item, move.after));
        QCOMPARE(bench.valueOf(row.item), QString::number(move.after) + unit);
    }
    if (row.item == 33) {
        return;
    }
    QVERIFY(bench.tap(row.item, [](SelectDialog &dialog) {
        VwBench::step(dialog, -1);
        cancel(dialog);
    }));
    QCOMPARE(bench.sent(), QStringList());
    QCOMPARE(bench.valueOf(row.item), QString::number(maximum) + unit);
    // A value that no choice can have is shown, and the dialog brings it back into the range.
    const int largest = (1 << row.width) - 1;
    bench.feed(row.reply(largest));
    QVERIFY(bench.tap(row.item, [](SelectDialog &dialog) { VwBench::click(dialog, "btnOk"); }));
    QCOMPARE(bench.sent(), commands(row.item, maximum));
}

void walkConfirmed(Page &bench, const Row &row)
{
    const bool factory = row.page == 781;
    const QString label = row.label;
    QVERIFY(bench.tap(row.item, [&](SelectDialog &dialog) {
        QCOMPARE(titleOf(dialog), QString(factory ? "Factory settings" : "Driving data"));
        QCOMPARE(dialog.findChild<QLabel *>("labelContent")->text(),
                 factory ? "Are you sure restore " + label + " settings ?" : "Are you sure " + label + "?");
        cancel(dialog);
    }));
    QCOMPARE(bench.sent(), QStringList());
    QVERIFY(bench.tap(row.item, [](SelectDialog &dialog) { VwBench::click(dialog, "btnOk"); }));
    QCOMPARE(bench.sent(), commands(row.item, 1));
}

void walkLink(Page &bench, const Row &row)
{
    QVERIFY(!VwBench::tap(*bench.page, VwBench::rowOf(*bench.page, QString(row.label)), 0));
    VWFunctionSetting *opened = qobject_cast<VWFunctionSetting *>(OrbHost::instance()->frontWindow());
    QVERIFY(opened && opened != bench.page);
    QCOMPARE(int(opened->appId()), row.item);
    opened->back();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(OrbHost::instance()->frontWindow(), static_cast<QWidget *>(bench.page));
}

} // namespace

void TestVwMenu::pages_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("requests");

    const auto row = [](int page, const char *title, const char *requests) {
        QTest::newRow(title) << page << QString(title) << QString(requests);
    };
    row(782, "Car Setting", "90 40 10");
    row(771, "Tyres", "90 40 20");
    row(773, "Driver assistance", "90 40 30|90 40 31");
    row(774, "Parking and manoeuvring", "90 40 40");
    row(775, "Light", "90 40 50|90 40 51|90 40 52");
    row(776, "Mirrors and wipers", "90 40 60");
    row(777, "Opening and closing", "90 40 70");
    row(778, "Multifunction display", "90 40 80");
    row(779, "Service", "90 63 00|90 63 10|90 63 11|90 63 20|90 63 21|90 63 22");
    row(780, "Units", "90 40 90");
    row(781, "Factory settings", "");
    row(783, "Vehice Start-stop", "");
    row(784, "Vehice reports", "");
    row(785, "Seat driver profile", "90 40 a0|90 40 b0|90 40 b1");
    row(786, "Convenience consumer", "");
    QTest::newRow("unknown page") << 772 << QString() << QString();
}

void TestVwMenu::pages()
{
    QFETCH(int, page);
    QFETCH(QString, title);
    QFETCH(QString, requests);
    TestScreen screen;
    TraceRecorder trace;
    CanBus_Raise_Volkswagen adapter;
    VWFunctionSetting window(page, &adapter);
    QCOMPARE(VwBench::sent(trace).join('|'), QString());
    window.show();
    QCOMPARE(VwBench::sent(trace).join('|'), requests);
    QCOMPARE(window.windowTitle(), title);
    if (page == 783 || page == 784 || page == 786) {
        return;
    }

    const QList<Row> expected = VwMenu::rowsOf(page);
    QCOMPARE(VwBench::modelOf(window)->rowCount(), int(expected.size()));
    for (int i = 0; i < expected.size(); ++i) {
        const Row &row = expected.at(i);
        const TableViewItemDatas datas = VwBench::modelOf(window)->itemDatas(i);
        QCOMPARE(datas.text(), QString(row.label));
        QCOMPARE(datas.getItemId(), row.kind == VwMenu::Link ? -1 : row.item);
        QCOMPARE(datas.isHeading(), row.kind == VwMenu::Heading);
        QCOMPARE(datas.mark() == ":/dazhong/set/xiala.png", row.kind == VwMenu::Options);
    }
}

void TestVwMenu::rows_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < VwMenu::rows().size(); ++i) {
        const Row &row = VwMenu::rows().at(i);
        QTest::addRow("%d: %s", row.page, row.label) << i;
    }
}

void TestVwMenu::rows()
{
    QFETCH(int, index);
    const Row row = VwMenu::rows().at(index);
    Page bench(row.page);
    switch (row.kind) {
    case VwMenu::Link:
        walkLink(bench, row);
        break;
    case VwMenu::Switch:
        walkSwitch(bench, row);
        break;
    case VwMenu::Options:
        walkOptions(bench, row);
        break;
    case VwMenu::Number:
        walkNumber(bench, row);
        break;
    case VwMenu::Confirmed:
        walkConfirmed(bench, row);
        break;
    case VwMenu::Action:
        QVERIFY(!bench.tap(row.item));
        QCOMPARE(bench.sent(), commands(row.item, 1));
        break;
    case VwMenu::Heading:
    case VwMenu::Reading:
        for (int column : {0, 2}) {
            QVERIFY(!VwBench::tap(*bench.page, VwBench::rowOf(*bench.page, QString(row.label)), column));
        }
        QCOMPARE(bench.sent(), QStringList());
        break;
    }
}

CANBUS_TEST_MAIN(TestVwMenu)
#include "tst_vwmenu.moc"
