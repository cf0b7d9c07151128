#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"

#include "orbhost.h"

/// The settings pages where they depart from the plain menu: the warning speed, what may happen while a page or
/// its dialog is open, the service data and the reports.
class TestVwPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quirk_vw_warning_speed();
    void tapOnALeftPage();
    void staleDialog_data();
    void staleDialog();
    void secondPageOfAKind();
    void languageChangesWhileOpen();
    void service_data();
    void service();
    void reports_data();
    void reports();
    void laterPageKnowsTheReports();
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
    for (int item : {16, 32}) {
        Page bench(item == 16 ? 782 : 771);
        bench.feed(QByteArray::fromHex("1001"));
        const int column = item == 16 ? 0 : 2;
        bench.page->back();
        Q_EMIT VwBench::listOf(*bench.page)
            ->itemColumnClicked(VwBench::modelOf(*bench.page),
                                VwBench::modelOf(*bench.page)->index(bench.rowOf(item), column));
        QVERIFY(!VwBench::openDialog());
        QCOMPARE(bench.sent(), QStringList());
    }
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

void TestVwPages::service_data()
{
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *package, int item, const char *text) {
        QTest::newRow(name) << QByteArray(package) << item << QString(text);
    };
    row("vehicle number", "63 00 57 56 57 31 32", 0, "WVW12");
    row("vehicle number ends at a NUL", "63 00 57 56 00 57", 0, "WV");
    row("vehicle number without what cannot be shown", "63 00 57 1f 7f 80 ff 7e 41", 0, "W~A");
    row("vehicle number of 32 characters at most", ("63 00" + QByteArray(" 41").repeated(40)).constData(), 0,
        QByteArray(32, 'A').constData());
    row("vehicle number without characters", "63 00", 0, "--");
    row("days left", "63 10 01 5a 00", 16, "90 days");
    row("most days", "63 10 f9 ff ff", 16, "65535 days");
    row("days unknown", "63 10 00 5a 00", 16, "--");
    row("days overdue", "63 20 02 0a 01", 32, "overdue by 266 days");
    row("kilometres left", "63 11 01 96 00", 17, "15000 km");
    row("miles left", "63 11 11 96 00", 17, "15000 mi");
    row("miles by another bit", "63 21 41 01 00", 33, "100 mi");
    row("bit 7 is no mile", "63 21 81 01 00", 33, "100 km");
    row("kilometres overdue", "63 21 02 ff ff", 33, "overdue by 6553500 km");
    row("distance unknown", "63 21 10 01 00", 33, "--");
    row("short counter", "63 10 01 5a", 16, "--");
    row("wipers in their service position", "63 22 01", 140, "on");
    row("the other bits say nothing of the wipers", "63 22 fe", 140, "off");
}

void TestVwPages::service()
{
    QFETCH(QByteArray, package);
    QFETCH(int, item);
    QFETCH(QString, text);
    Page bench(779);
    QStringList expected = bench.rows();
    QString &row = expected[bench.rowOf(item)];
    row = row.section('=', 0, 0) + '=' + text;
    VwBench::feed(*bench.adapter, package);
    QCOMPARE(bench.rows(), expected);
}

void TestVwPages::reports_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QStringList>("rows");

    const auto row = [](const char *name, int page, const char *package, const QStringList &rows) {
        QTest::newRow(name) << page << QByteArray(package) << rows;
    };
    const QStringList none{"No entries available="};
    row("start-stop: active, no text", 783, "60 00 01 02 03 04 05 06 01",
        {"Start-stop system is activated="});
    row("start-stop: texts", 783, "60 02 00 21 05 00 00 00 01",
        {"Trailer mode=", "Start-stop system requires engine to be running="});
    row("start-stop: off for a reason", 783, "60 01 12 00 00 00 00 00 fe",
        {"Start-stop system is deactivated=", "Driver door open="});
    row("start-stop: six texts at most", 783, "60 ff 01 01 01 01 01 01 01",
        QStringList(QVector<QString>(6, "Windscreen could become fogged=").toList()));
    row("start-stop: unknown texts", 783, "60 02 22 ff 00 00 00 00 01", {"Start-stop system is activated="});
    row("start-stop: 7 bytes", 783, "60 01 01 00 00 00 00 00", none);
    row("reports: none", 784, "61 00 00 01 02", none);
    row("reports: seven at most", 784, "61 00 01 01 00 01 00 01 00 01 00 01 00 01 00 01 00 01 00",
        QStringList(QVector<QString>(7, "Report code=1").toList()));
    row("reports: fewer than claimed", 784, "61 05 00 e8 03 ff ff 02",
        {"Report code=1000", "Report code=65535"});
    row("reports: one byte", 784, "61 01", none);
    row("consumers: none", 786, "62 00 01 02 03", none);
    row("consumers: first and last", 786, "62 02 01 12 03", {"Air conditioning=", "Drink holder="});
    row("consumers: three at most", 786, "62 09 02 03 04 05",
        {"Auxiliary heater=", "Rear window heating=", "Left seat heating="});
    row("consumers: unknown ones", 786, "62 03 00 13 ff", none);
    row("consumers: 3 bytes", 786, "62 02 01 02", none);
}

void TestVwPages::reports()
{
    QFETCH(int, page);
    QFETCH(QByteArray, package);
    QFETCH(QStringList, rows);
    Page bench(page);
    QCOMPARE(bench.rows(), QStringList{"No entries available="});
    VwBench::feed(*bench.adapter, package);
    QCOMPARE(bench.rows(), rows);
    // The next report replaces all of them.
    VwBench::feed(*bench.adapter, "60 01 00 00 00 00 00 00 01 | 61 00 00 | 62 00 00 00 00");
    QCOMPARE(bench.rows(), page == 783 ? QStringList{"Trailer mode="} : QStringList{"No entries available="});
}

void TestVwPages::laterPageKnowsTheReports()
{
    TestScreen screen;
    CanBus_Raise_Volkswagen adapter;
    VwBench::feed(adapter, "62 01 11 00 00 | 40 10 02");
    VWFunctionSetting consumers(786, &adapter);
    VWFunctionSetting top(782, &adapter);
    consumers.show();
    top.show();
    QCOMPARE(VwBench::modelOf(consumers)->itemDatas(0).text(), QString("Socket"));
    QCOMPARE(VwBench::valueOf(top, 0), QString());
}

CANBUS_TEST_MAIN(TestVwPages)
#include "tst_vwpages.moc"
