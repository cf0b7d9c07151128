#include "adapterfixture.h"
#include "testscreen.h"
#include "vwbench.h"

#include "orbhost.h"

/// The settings pages where they depart from the plain menu: the warning speed, and what may happen while a
/// page or its dialog is open.
class TestVwPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quirk_vw_warning_speed();
    void tapOnALeftPage();
    void staleDialog_data();
    void staleDialog();
    void secondPageOfAKind();
};

using VwBench::cancel;
using VwBench::commands;
using VwBench::Page;

void TestVwPages::quirk_vw_warning_speed()
{
    Page bench(771);
    // Before the car has told its value there is none to send.
    QVERIFY(bench.tap(33, cancel));
    QCOMPARE(bench.sent(), QStringList());
    bench.feed(QByteArray::fromHex("20017800"));
    QVERIFY(bench.tap(33, [](SelectDialog &dialog) {
        VwBench::step(dialog, 3);
        cancel(dialog);
    }));
    QCOMPARE(bench.sent(), commands(33, 120));
    bench.feed(QByteArray::fromHex("20034b00"));
    QVERIFY(bench.tap(33, [](SelectDialog &dialog) {
        QCOMPARE(dialog.getSliderValueText(), QString("75 mph"));
        VwBench::step(dialog, 1);
        VwBench::click(dialog, "btnOk");
    }));
    QCOMPARE(bench.sent(), commands(33, 80));
    QCOMPARE(bench.valueOf(33), QString("80 mph"));
    const QMap<int, int> ends{{50, 150}, {-50, 20}};
    for (auto end = ends.begin(); end != ends.end(); ++end) {
        QVERIFY(bench.tap(33, [&](SelectDialog &dialog) {
            VwBench::step(dialog, end.key());
            VwBench::click(dialog, "btnOk");
        }));
        QCOMPARE(bench.sent(), commands(33, *end));
    }
    bench.feed(QByteArray::fromHex("200150"));
    QCOMPARE(bench.valueOf(33), QString("80 km/h"));
}

// A finger that comes between leaving a page and its end.
void TestVwPages::tapOnALeftPage()
{
    Page bench(771);
    bench.page->back();
    TableViewModel *const model = VwBench::modelOf(*bench.page);
    Q_EMIT VwBench::listOf(*bench.page)->itemColumnClicked(model, model->index(bench.rowOf(32), 2));
    QCOMPARE(bench.sent(), QStringList());
}

void TestVwPages::staleDialog_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("item");
    QTest::addColumn<QByteArray>("happens");
    for (const char *happens : {"home", "back", "deleted"}) {
        const struct
        {
            const char *name;
            int page, item;
        } rows[] = {
            {"options", 782, 16}, {"number", 775, 83}, {"warning speed", 771, 33}, {"question", 781, 199}};
        for (const auto &row : rows) {
            QTest::addRow("%s while a page is left: %s", row.name, happens)
                << row.page << row.item << QByteArray(happens);
        }
    }
    QTest::newRow("row goes while its dialog is open") << 785 << 209 << QByteArray("mode");
    QTest::newRow("replies arrive while a dialog is open") << 782 << 16 << QByteArray("replies");
}

void TestVwPages::staleDialog()
{
    QFETCH(int, page);
    QFETCH(int, item);
    QFETCH(QByteArray, happens);
    Page bench(page);
    const QMap<QByteArray, std::function<void()>> events{
        {"home", [&] { bench.page->home(); }},
        {"back", [&] { bench.page->back(); }},
        {"deleted", [&] { delete bench.page; }},
        {"mode", [&] { bench.feed(QByteArray::fromHex("a0000000")); }},
        {"replies", [&] { bench.feed(QByteArray::fromHex("1000")); }}};
    bench.feed(QByteArray::fromHex("20017800"));
    bench.feed(QByteArray::fromHex("a0030000"));
    QVERIFY(bench.tap(item, [&](SelectDialog &dialog) {
        VwBench::check(dialog, 1);
        events[happens]();
        // Whoever left the page has closed the dialog as well.
        QCOMPARE(VwBench::openDialog() == nullptr, happens != "mode" && happens != "replies");
        if (SelectDialog *open = VwBench::openDialog()) {
            VwBench::click(*open, "btnOk");
        }
    }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const bool left = happens == "home" || happens == "back" || happens == "deleted";
    QCOMPARE(bench.page.isNull(), left);
    QCOMPARE(bench.sent(), left ? QStringList() : commands(item, 1));
    // The adapter goes on without the page.
    bench.feed(QByteArray::fromHex("1001"));
}

void TestVwPages::secondPageOfAKind()
{
    Page bench(782);
    VWFunctionSetting second(782, bench.adapter.get());
    second.show();
    bench.feed(QByteArray::fromHex("1002"));
    QCOMPARE(bench.valueOf(16), QString("ESC sport"));
    QCOMPARE(VwBench::valueOf(second, 0), QString("ESC sport"));
    delete bench.page;
    bench.feed(QByteArray::fromHex("1001"));
    QCOMPARE(VwBench::valueOf(second, 0), QString("Activated"));
}

CANBUS_TEST_MAIN(TestVwPages)
#include "tst_vwpages.moc"
