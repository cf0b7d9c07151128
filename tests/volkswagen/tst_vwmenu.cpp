#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "orbhost.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>

#include <memory>

/// Walks the whole settings menu under a finger: every row of every page, its dialog, the command that goes
/// out, the reply, and the text that then stands in the row. And what may happen while a dialog is open.
class TestVwMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data();
    void pages();
    void rows_data();
    void rows();
    void quirk_vw_warning_speed();
    void individualModes_data();
    void individualModes();
    void profileRowsFollowTheCar();
    void staleDialog_data();
    void staleDialog();
    void secondPageOfAKind();
    void languageChangesWhileOpen();
    void reportRowsDoNothing();
};

namespace {

using VwMenu::Row;

struct Bench
{
    explicit Bench(unsigned int pageId)
        : adapter(new CanBus_Raise_Volkswagen), page(new VWFunctionSetting(pageId, adapter.get()))
    {
        page->show();
        sent();
    }
    ~Bench()
    {
        delete page;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList sent() { return VwBench::sent(trace); }
    int rowOf(int item) const { return VwBench::rowOf(*page, item); }
    QString valueOf(int item) const { return VwBench::valueOf(*page, rowOf(item)); }
    bool tap(int item, const std::function<void(SelectDialog &)> &answer = nullptr, int column = 0)
    {
        return VwBench::tap(*page, rowOf(item), column, answer);
    }
    void feed(const QByteArray &data) { adapter->onRecvMcuProtocol(RaiseWire::frame(0x40, data)); }

    TestScreen screen;
    TraceRecorder trace;
    std::unique_ptr<CanBus_Raise_Volkswagen> adapter;
    QPointer<VWFunctionSetting> page;
};

QString command(int item, int value)
{
    return "c6 " + QByteArray(1, char(item)).toHex() + ' ' + QByteArray(1, char(value)).toHex();
}

QStringList commands(int item, int value)
{
    return QStringList{command(item, value)};
}

QString titleOf(const SelectDialog &dialog)
{
    return dialog.findChild<QLabel *>("txtTitle")->text();
}

void cancel(SelectDialog &dialog)
{
    VwBench::click(dialog, "btnCancel");
}

void choose(SelectDialog &dialog, int index)
{
    VwBench::check(dialog, index);
    VwBench::click(dialog, "btnOk");
}

void walkSwitch(Bench &bench, const Row &row)
{
    QVERIFY(!bench.tap(row.item, nullptr, 0));
    QCOMPARE(bench.sent(), QStringList());
    for (int value : {1, 0, 1}) {
        QVERIFY(!bench.tap(row.item, nullptr, 2));
        QCOMPARE(bench.sent(), commands(row.item, value));
        QCOMPARE(bench.valueOf(row.item), QString(value ? "on" : "off"));
    }
    if (row.width == 0)
        return;
    for (int value : {0, 1}) {
        bench.feed(row.reply(value));
        QCOMPARE(bench.valueOf(row.item), QString(value ? "on" : "off"));
    }
}

void walkOptions(Bench &bench, const Row &row)
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
            for (const QCheckBox *box : dialog.findChildren<QCheckBox *>())
                shown << box->text();
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

void walkNumber(Bench &bench, const Row &row)
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
    if (row.item == 33)
        return;
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

void walkConfirmed(Bench &bench, const Row &row)
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

void walkLink(Bench &bench, const Row &row)
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
    if (page == 783 || page == 784 || page == 786)
        return;

    const QList<Row> expected = VwMenu::rowsOf(page);
    QCOMPARE(VwBench::modelOf(window)->rowCount(), int(expected.size()));
    for (int i = 0; i < expected.size(); ++i) {
        const Row &row = expected.at(i);
        const TableViewItemDatas datas = VwBench::modelOf(window)->itemDatas(i);
        const bool link = row.kind == VwMenu::Link;
        QCOMPARE(datas.text(), QString(row.label));
        QCOMPARE(datas.getItemId(), link ? -1 : row.item);
        QCOMPARE(datas.bindData(4096).toInt(), link ? row.item : 0);
        QCOMPARE(datas.isSwitch(), row.kind == VwMenu::Switch);
        QCOMPARE(datas.isHeading(), row.kind == VwMenu::Heading);
        QCOMPARE(datas.bindData(4097).toStringList(),
                 row.kind == VwMenu::Options ? row.options() : QStringList());
        QCOMPARE(datas.bindData(4100).toInt() != 0, row.kind == VwMenu::Number);
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
    Bench bench(row.page);
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
        for (int column : {0, 2})
            QVERIFY(!VwBench::tap(*bench.page, VwBench::rowOf(*bench.page, QString(row.label)), column));
        QCOMPARE(bench.sent(), QStringList());
        break;
    }
}

void TestVwMenu::quirk_vw_warning_speed()
{
    Bench bench(771);
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

void TestVwMenu::individualModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("choice"); // -1: a row without a dialog
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("rowsGo");
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

void TestVwMenu::individualModes()
{
    QFETCH(int, mode);
    QFETCH(int, item);
    QFETCH(int, choice);
    QFETCH(int, code);
    QFETCH(bool, rowsGo);
    Bench bench(785);
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

void TestVwMenu::profileRowsFollowTheCar()
{
    Bench bench(785);
    bench.feed(QByteArray::fromHex("a0030000"));
    QVERIFY(bench.rowOf(209) == 3);
    QVERIFY(bench.tap(208, [](SelectDialog &dialog) { choose(dialog, 1); }));
    QCOMPARE(bench.valueOf(208), QString("Sport"));
    QCOMPARE(VwBench::modelOf(*bench.page)->rowCount(), 3);
    // Choosing the individual mode shows its rows once the car has taken it.
    QVERIFY(bench.tap(208, [](SelectDialog &dialog) { choose(dialog, 3); }));
    QCOMPARE(VwBench::modelOf(*bench.page)->rowCount(), 3);
    bench.feed(QByteArray::fromHex("a0030000"));
    QCOMPARE(VwBench::modelOf(*bench.page)->rowCount(), 8);
}

void TestVwMenu::staleDialog_data()
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
        for (const auto &row : rows)
            QTest::addRow("%s while a page is left: %s", row.name, happens)
                << row.page << row.item << QByteArray(happens);
    }
    QTest::newRow("row goes while its dialog is open") << 785 << 209 << QByteArray("mode");
    QTest::newRow("replies arrive while a dialog is open") << 782 << 16 << QByteArray("replies");
}

void TestVwMenu::staleDialog()
{
    QFETCH(int, page);
    QFETCH(int, item);
    QFETCH(QByteArray, happens);
    Bench bench(page);
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

void TestVwMenu::secondPageOfAKind()
{
    Bench bench(782);
    VWFunctionSetting second(782, bench.adapter.get());
    second.show();
    bench.feed(QByteArray::fromHex("1002"));
    QCOMPARE(bench.valueOf(16), QString("ESC sport"));
    QCOMPARE(VwBench::valueOf(second, 0), QString("ESC sport"));
    delete bench.page;
    bench.feed(QByteArray::fromHex("1001"));
    QCOMPARE(VwBench::valueOf(second, 0), QString("Activated"));
}

void TestVwMenu::languageChangesWhileOpen()
{
    OrbHost *host = OrbHost::instance();
    host->addTranslationDir(TRANSLATION_FOLDER);
    Bench bench(771);
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

void TestVwMenu::reportRowsDoNothing()
{
    for (unsigned int page : {783u, 784u, 786u}) {
        Bench bench(page);
        VwBench::feed(*bench.adapter, "60 02 01 02 00 00 00 00 01 | 61 01 00 05 00 | 62 01 03 00 00");
        for (int column : {0, 2})
            QVERIFY(!VwBench::tap(*bench.page, 0, column));
        QCOMPARE(bench.sent(), QStringList());
    }
}

CANBUS_TEST_MAIN(TestVwMenu)
#include "tst_vwmenu.moc"
