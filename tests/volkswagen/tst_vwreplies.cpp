#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "volkswagen/vwsettingstable.h"
#include "volkswagen/vwtexts.h"

#include <memory>

/// What the settings pages show for each reply: every bit of every layout, the service data, the reports, and
/// replies that are too short or say what no page knows.
class TestVwReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switches_data();
    void switches();
    void fields_data();
    void fields();
    void warningSpeedUnit();
    void service_data();
    void service();
    void reports_data();
    void reports();
    void individualRowsComeAndGo();
    void shortReplies_data();
    void shortReplies();
    void pagesIgnoreOthersReplies();
    void textTables();
    void laterPageKnowsTheReports();
};

namespace {

using VwBench::Page;

void feed(Page &bench, int command, const QByteArray &data)
{
    bench.adapter->onRecvMcuProtocol(RaiseWire::frame(quint8(command), data));
}

QByteArray reply(int subType, int byte, int value, int length = 5)
{
    QByteArray data(length, '\0');
    data[0] = char(subType);
    data[byte] = char(value);
    return data;
}

} // namespace

void TestVwReplies::switches_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("subType");
    QTest::addColumn<int>("byte");
    QTest::addColumn<QList<int>>("items"); // from bit 0 on, -1 where the bit is not a switch

    const auto row = [](int page, int subType, int byte, const QList<int> &items, int command = 0x40) {
        QTest::addRow("page %d, reply %x, byte %d", page, subType, byte)
            << page << command << subType << byte << items;
    };
    row(771, 0x20, 1, {32});
    row(773, 0x30, 1, {48, 49});
    row(773, 0x30, 2, {54});
    row(773, 0x31, 1, {50, 51, 52, 53});
    row(773, 0x31, 3, {57});
    row(774, 0x40, 1, {64, 69, 58});
    row(775, 0x50, 1, {-1, -1, -1, -1, 81, 82, 200});
    row(775, 0x51, 4, {89, 90});
    row(776, 0x60, 1, {96, 97, 98, 99, 100});
    row(777, 0x70, 2, {114, 116, 102, 103, 104});
    row(777, 0x70, 3, {201});
    row(778, 0x80, 1, {128, 129, 130, 131, 132, 133, 134, 135});
    row(778, 0x80, 2, {136, 137});
    row(779, 0x22, 1, {140}, 0x63);
    row(785, 0xB0, 1, {202, 203});
}

void TestVwReplies::switches()
{
    QFETCH(int, page);
    QFETCH(int, command);
    QFETCH(int, subType);
    QFETCH(int, byte);
    QFETCH(QList<int>, items);
    Page bench(page);
    feed(bench, command, reply(subType, byte, 0));
    const QStringList allOff = bench.rows();
    for (int bit = 0; bit < 8; ++bit) {
        const int item = items.value(bit, -1);
        feed(bench, command, reply(subType, byte, 1 << bit));
        QStringList expected = allOff;
        if (item >= 0) {
            QString &text = expected[VwBench::rowOf(*bench.page, item)];
            QVERIFY(text.endsWith("=off"));
            text.replace("=off", "=on");
        }
        // The other bits of a byte may be an option's; only switches are looked at here.
        const QStringList shown = bench.rows();
        for (int i = 0; i < shown.size(); ++i) {
            if (shown.at(i).endsWith("=on") || shown.at(i).endsWith("=off"))
                QCOMPARE(shown.at(i), expected.at(i));
        }
    }
}

void TestVwReplies::fields_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("subType");
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("shift");
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("texts"); // by value; of a number the unit alone

    const auto row = [](const char *name, int page, int item, int subType, int byte, int shift, int width,
                        const char *texts) {
        QTest::newRow(name) << page << item << subType << byte << shift << width << QString(texts).split('|');
    };
    for (const VwMenu::Row &field : VwMenu::rows()) {
        QStringList texts;
        if (field.kind == VwMenu::Number)
            texts << QString(" " + field.options().at(3)).chopped(field.options().at(3).isEmpty() ? 1 : 0);
        else if (field.kind == VwMenu::Options)
            for (int code = 0; code < 8; ++code)
                texts << field.textOf(code);
        else
            continue;
        QTest::newRow(field.label) << field.page << field.item << field.subType << field.byte << field.shift
                                   << field.width << texts;
    }
    row("driving mode of the key", 785, 208, 0xB1, 1, 0, 3,
        "Normal|Sport|ECO|Individual|Snow|Off-road|Off-road individual");
    row("steering", 785, 209, 0xA0, 2, 0, 4, "Normal|Sport");
    row("engine", 785, 210, 0xA0, 2, 4, 4, "Normal|Sport|ECO");
    row("climate", 785, 211, 0xA0, 3, 0, 4, "Normal||ECO");
    row("front lighting", 785, 213, 0xA0, 3, 4, 4, "Normal|Sport|ECO");
}

void TestVwReplies::fields()
{
    QFETCH(int, page);
    QFETCH(int, item);
    QFETCH(int, subType);
    QFETCH(int, byte);
    QFETCH(int, shift);
    QFETCH(int, width);
    QFETCH(QStringList, texts);
    Page bench(page);
    const bool number = texts.size() == 1;
    // The rows of an individual mode need that mode.
    const bool individual = item >= 209 && item <= 213;
    QString shown;
    for (int value = 0; value < 1 << width; ++value) {
        for (int others : {0, 0xFF}) {
            const int mask = (1 << width) - 1;
            QByteArray data = reply(subType, byte, (others & ~(mask << shift)) | value << shift);
            if (individual)
                data[1] = 3;
            bench.feed(data);
            const QString known = texts.value(value);
            if (number)
                shown = QString::number(value) + texts.first();
            else if (!known.isEmpty())
                shown = known; // a value without a text leaves what was there
            QCOMPARE(bench.valueOf(item), shown);
            if (number)
                QCOMPARE(VwBench::modelOf(*bench.page)
                             ->itemDatas(VwBench::rowOf(*bench.page, item))
                             .bindData(4099)
                             .toInt(),
                         value);
        }
    }
}

void TestVwReplies::warningSpeedUnit()
{
    Page bench(771);
    const auto row = [&bench] {
        const TableViewItemDatas datas =
            VwBench::modelOf(*bench.page)->itemDatas(VwBench::rowOf(*bench.page, 33));
        const QSize range = datas.bindData(4098).toSize();
        return QString("%1 %2..%3 step %4 %5")
            .arg(datas.value(2).toString())
            .arg(range.width())
            .arg(range.height())
            .arg(datas.bindData(4100).toInt())
            .arg(datas.bindData(4101).toString());
    };
    QCOMPARE(row(), QString(" 30..240 step 10 km/h"));
    VwBench::feed(*bench.adapter, "40 20 02 2d");
    QCOMPARE(row(), QString("45 mph 20..150 step 5 mph"));
    VwBench::feed(*bench.adapter, "40 20 01 50");
    QCOMPARE(row(), QString("80 km/h 30..240 step 10 km/h"));
}

void TestVwReplies::service_data()
{
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *package, int item, const char *text) {
        QTest::newRow(name) << QByteArray(package) << item << QString(text);
    };
    row("vehicle number", "63 00 57 56 57 31 32", 0, "WVW12");
    row("vehicle number ends at a NUL", "63 00 57 56 00 57", 0, "WV");
    row("vehicle number without what cannot be shown", "63 00 57 0a 1b 80 ff 41", 0, "WA");
    row("vehicle number without characters", "63 00", 0, "--");
    row("days left", "63 10 01 5a 00", 16, "90 days");
    row("most days", "63 10 f9 ff ff", 16, "65535 days");
    row("days unknown", "63 10 00 5a 00", 16, "--");
    row("days in a form without meaning", "63 10 07 5a 00", 16, "--");
    row("days overdue", "63 20 02 0a 01", 32, "overdue by 266 days");
    row("kilometres left", "63 11 01 96 00", 17, "15000 km");
    row("miles left", "63 11 11 96 00", 17, "15000 mi");
    row("miles by another bit", "63 21 41 01 00", 33, "100 mi");
    row("bit 7 is no mile", "63 21 81 01 00", 33, "100 km");
    row("kilometres overdue", "63 21 02 ff ff", 33, "overdue by 6553500 km");
    row("distance unknown", "63 21 10 01 00", 33, "--");
    row("short counter", "63 10 01 5a", 16, "--");
}

void TestVwReplies::service()
{
    QFETCH(QByteArray, package);
    QFETCH(int, item);
    QFETCH(QString, text);
    Page bench(779);
    const QStringList before = bench.rows();
    VwBench::feed(*bench.adapter, package);
    QCOMPARE(bench.valueOf(item), text);
    QStringList expected = before;
    expected[VwBench::rowOf(*bench.page, item)].replace("=--", "=" + text);
    QCOMPARE(bench.rows(), expected);
}

void TestVwReplies::reports_data()
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
    row("start-stop: off, no text", 783, "60 00 00 00 00 00 00 00 fe", {"Start-stop system is deactivated="});
    row("start-stop: texts", 783, "60 02 00 21 05 00 00 00 01",
        {"Trailer mode=", "Start-stop system requires engine to be running="});
    row("start-stop: off for a reason", 783, "60 01 12 00 00 00 00 00 00",
        {"Start-stop system is deactivated=", "Driver door open="});
    row("start-stop: six texts at most", 783, "60 ff 01 01 01 01 01 01 01",
        QStringList(QVector<QString>(6, "Windscreen could become fogged=").toList()));
    row("start-stop: unknown texts", 783, "60 02 22 ff 00 00 00 00 01", {"Start-stop system is activated="});
    row("start-stop: 7 bytes", 783, "60 01 01 00 00 00 00 00", none);
    row("reports: none", 784, "61 00 00 01 02", none);
    row("reports: two", 784, "61 02 00 e8 03 ff ff", {"Report code=1000", "Report code=65535"});
    row("reports: seven at most", 784, "61 00 01 01 00 01 00 01 00 01 00 01 00 01 00 01 00 01 00",
        QStringList(QVector<QString>(7, "Report code=1").toList()));
    row("reports: fewer than claimed", 784, "61 05 00 01 00 02", {"Report code=1"});
    row("reports: one byte", 784, "61 01", none);
    row("consumers: none", 786, "62 00 01 02 03", none);
    row("consumers: first and last", 786, "62 02 01 12 03", {"Air conditioning=", "Drink holder="});
    row("consumers: three at most", 786, "62 09 02 03 04 05",
        {"Auxiliary heater=", "Rear window heating=", "Left seat heating="});
    row("consumers: unknown ones", 786, "62 03 00 13 ff", none);
    row("consumers: 3 bytes", 786, "62 02 01 02", none);
}

void TestVwReplies::reports()
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

void TestVwReplies::individualRowsComeAndGo()
{
    Page bench(785);
    const auto items = [&bench] {
        QStringList result;
        for (int row = 0; row < VwBench::modelOf(*bench.page)->rowCount(); ++row)
            result << QString::number(VwBench::modelOf(*bench.page)->itemDatas(row).getItemId());
        return result.join(' ');
    };
    QCOMPARE(items(), QString("202 203 208"));
    VwBench::feed(*bench.adapter, "40 a0 03 21 12");
    QCOMPARE(items(), QString("202 203 208 209 210 211 213 212"));
    QCOMPARE(bench.rows().mid(2).join(' '), QString("Driving mode=Individual Steering=Sport Engine=ECO "
                                                    "Climate=ECO Front lighting=Sport Reset="));
    VwBench::feed(*bench.adapter, "40 b1 06");
    QCOMPARE(items(), QString("202 203 208 228 232"));
    VwBench::feed(*bench.adapter, "40 a0 06 00 02");
    QCOMPARE(bench.valueOf(228), QString("ECO"));
    VwBench::feed(*bench.adapter, "40 a0 0f");
    QCOMPARE(items(), QString("202 203 208 228 232"));
    VwBench::feed(*bench.adapter, "40 b1 00");
    QCOMPARE(items(), QString("202 203 208"));
}

void TestVwReplies::shortReplies_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("data"); // whole; fed cut to every length
    QTest::newRow("Esc system") << 782 << QByteArray("1001");
    QTest::newRow("tyres") << 771 << QByteArray("20015001");
    QTest::newRow("assistance") << 773 << QByteArray("310f3201");
    QTest::newRow("parking") << 774 << QByteArray("40075386");
    QTest::newRow("light") << 775 << QByteArray("507132051e");
    QTest::newRow("ambient light") << 775 << QByteArray("520a140364");
    QTest::newRow("opening") << 777 << QByteArray("70211f01");
    QTest::newRow("units") << 780 << QByteArray("903221");
    QTest::newRow("profile") << 785 << QByteArray("a0032112");
}

void TestVwReplies::shortReplies()
{
    QFETCH(int, page);
    QFETCH(QByteArray, data);
    const QByteArray whole = QByteArray::fromHex(data);
    const QStringList untouched = Page(page).rows();
    QStringList before = untouched;
    for (int length = 0; length <= whole.size(); ++length) {
        // What is cut away must read as untouched, not as zeros: only rows of the bytes that are there
        // change.
        Page bench(page);
        bench.feed(whole.left(length));
        const QStringList shown = bench.rows();
        if (length < 2)
            QCOMPARE(shown, untouched);
        else
            QVERIFY2(shown != before, qPrintable(QString("byte %1 changes nothing").arg(length - 1)));
        before = shown;
    }
    Page unknown(page);
    unknown.feed(QByteArray::fromHex("ffffffffffff"));
    feed(unknown, 0x99, whole);
    QCOMPARE(unknown.rows(), untouched);
}

void TestVwReplies::pagesIgnoreOthersReplies()
{
    // Every reply to every page: nothing but the page's own rows may change.
    const QList<QByteArray> packages{"40 10 02",       "40 20 01 78 01",    "40 30 03 01", "40 31 0f 32 01",
                                     "40 40 07 53 86", "40 50 71 32 0f 1e", "40 60 1f",    "40 70 21 1f 01",
                                     "40 80 ff 03",    "40 90 32 21",       "40 b0 03",    "63 10 01 5a 00"};
    const QList<int> owners{782, 771, 773, 773, 774, 775, 776, 777, 778, 780, 785, 779};
    for (int page = 771; page <= 786; ++page) {
        Page bench(page);
        const QStringList untouched = bench.rows();
        for (int i = 0; i < packages.size(); ++i) {
            if (owners.at(i) != page)
                VwBench::feed(*bench.adapter, packages.at(i));
        }
        QCOMPARE(bench.rows(), untouched);
    }
}

void TestVwReplies::textTables()
{
    QCOMPARE(Vw::getStartStopInfo(0), QString("Trailer mode"));
    QCOMPARE(Vw::getStartStopInfo(9), QString("Start-stop system is currently not  available"));
    QCOMPARE(Vw::getStartStopInfo(12), QString("Power consumption is hight"));
    QCOMPARE(Vw::getStartStopInfo(20), QString("Wndscreen heating is switched on"));
    QCOMPARE(Vw::getStartStopInfo(28), Vw::getStartStopInfo(13));
    QCOMPARE(Vw::getStartStopInfo(33), QString("Start-stop system requires engine to be running"));
    QCOMPARE(Vw::getConvConsumerInfo(1), QString("Air conditioning"));
    QCOMPARE(Vw::getConvConsumerInfo(13), QString("Steering whell heating"));
    QCOMPARE(Vw::getConvConsumerInfo(18), QString("Drink holder"));
    for (int number : {-1, 34, 255, 1 << 30})
        QCOMPARE(Vw::getStartStopInfo(number), QString());
    for (int number : {-1, 0, 19, 255})
        QCOMPARE(Vw::getConvConsumerInfo(number), QString());
    QCOMPARE(VWFunctionSetting::getAppTitleFromId(783), QString("Vehice Start-stop"));
    for (unsigned int page : {0u, 770u, 772u, 787u})
        QCOMPARE(VWFunctionSetting::getAppTitleFromId(page), QString());
}

void TestVwReplies::laterPageKnowsTheReports()
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

CANBUS_TEST_MAIN(TestVwReplies)
#include "tst_vwreplies.moc"
