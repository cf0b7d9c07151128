#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"

#include "orbhost.h"

/// The settings pages where they depart from the plain menu: the warning speed, the individual driving modes,
/// and what may happen while a page or its dialog is open.
class TestVwPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quirk_vw_warning_speed();
    void individualModes_data();
    void individualModes();
    void staleDialog_data();
    void staleDialog();
    void secondPageOfAKind();
    void languageChangesWhileOpen();
    void reportRowsDoNothing();
};

using VwBench::cancel;
using VwBench::choose;
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
}

void TestVwPages::individualModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("choice"); // -1: a row without a dialog
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("rowsGo");
    QTest::newRow("another driving mode") << 3 << 208 << 1 << 1 << true;
    QTest::newRow("the individual mode, until the car has taken it") << 3 << 208 << 3 << 3 << true;
    QTest::newRow("steering") << 3 << 209 << 1 << 1 << true;
    QTest::newRow("engine") << 3 << 210 << 2 << 2 << true;
    QTest::newRow("climate, first option") << 3 << 211 << 0 << 0 << false;
    QTest::newRow("climate, second option") << 3 << 211 << 1 << 2 << false;
    QTest::newRow("front lighting") << 3 << 213 << 1 << 1 << true;
    QTest::newRow("reset") << 3 << 212 << -1 << 1 << false;
    QTest::newRow("off-road climate, first option") << 6 << 228 << 0 << 0 << false;
    QTest::newRow("off-road climate, second option") << 6 << 228 << 1 << 2 << false;
    QTest::newRow("off-road reset") << 6 << 232 << -1 << 1 << false;
}

void TestVwPages::individualModes()
{
    QFETCH(int, mode);
    QFETCH(int, item);
    QFETCH(int, choice);
    QFETCH(int, code);
    QFETCH(bool, rowsGo);
    Page bench(785);
    const QByteArray reply = QByteArray::fromHex("a0000000").replace(1, 1, QByteArray(1, char(mode)));
    bench.feed(reply);
    const int rows = VwBench::modelOf(*bench.page)->rowCount();
    QCOMPARE(bench.tap(item, [&](SelectDialog &dialog) { cancel(dialog); }), choice >= 0);
    QCOMPARE(bench.sent(), choice >= 0 ? QStringList() : commands(item, code));
    QCOMPARE(bench.tap(item, [&](SelectDialog &dialog) { choose(dialog, choice); }), choice >= 0);
    QCOMPARE(bench.sent(), commands(item, code));
    QCOMPARE(VwBench::modelOf(*bench.page)->rowCount(), rowsGo ? 3 : rows);
    bench.feed(reply);
    QCOMPARE(VwBench::modelOf(*bench.page)->rowCount(), rows);
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
    bench.feed(QByteArray::fromHex("20017800"));
    bench.feed(QByteArray::fromHex("a0030000"));
    QVERIFY(bench.tap(item, [&](SelectDialog &dialog) {
        VwBench::check(dialog, 1);
        if (happens == "home")
            bench.page->home();
        else if (happens == "back")
            bench.page->back();
        else if (happens == "deleted")
            delete bench.page;
        else if (happens == "mode")
            bench.feed(QByteArray::fromHex("a0000000"));
        else
            bench.feed(QByteArray::fromHex("1000"));
        // Whoever left the page has closed the dialog as well.
        QCOMPARE(VwBench::openDialog() == nullptr, happens != "mode" && happens != "replies");
        if (SelectDialog *open = VwBench::openDialog())
            VwBench::click(*open, "btnOk");
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

void TestVwPages::languageChangesWhileOpen()
{
    OrbHost *host = OrbHost::instance();
    host->addTranslationDir(TRANSLATION_FOLDER);
    Page bench(771);
    bench.feed(QByteArray::fromHex("20015002"));
    QVERIFY(host->setLanguage("zh_CN"));
    QCoreApplication::sendPostedEvents();
    const QString title = bench.page->windowTitle();
    const QString load = bench.valueOf(35);
    const QStringList options = VwBench::modelOf(*bench.page)->itemDatas(3).bindData(4097).toStringList();
    host->setLanguage("en");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(title, QString("轮胎"));
    QCOMPARE(load, QString("满载"));
    QCOMPARE(options, QStringList({"舒适", "标准", "满载"}));
    QCOMPARE(bench.page->windowTitle(), QString("Tyres"));
    QCOMPARE(bench.valueOf(35), QString("Full load"));
    QCOMPARE(bench.valueOf(33), QString("80 km/h"));
}

void TestVwPages::reportRowsDoNothing()
{
    for (unsigned int page : {783u, 784u, 786u}) {
        Page bench(page);
        VwBench::feed(*bench.adapter, "60 02 01 02 00 00 00 00 01 | 61 01 00 05 00 | 62 01 03 00 00");
        for (int column : {0, 2}) {
            QVERIFY(!VwBench::tap(*bench.page, 0, column));
        }
        QCOMPARE(bench.sent(), QStringList());
    }
}

CANBUS_TEST_MAIN(TestVwPages)
#include "tst_vwpages.moc"
