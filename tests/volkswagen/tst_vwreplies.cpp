#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "volkswagen/vwtexts.h"

#include <QMap>
#include <QSet>

/// What the settings pages show for each reply: every bit of every layout, the service data, the reports, and
/// replies that are too short or say what no page knows.
class TestVwReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_data();
    void fields();
    void warningSpeedUnit();
    void service_data();
    void service();
    void reports_data();
    void reports();
    void individualRowsComeAndGo();
    void shortReplies();
    void pagesIgnoreOthersReplies();
    void textTables();
    void laterPageKnowsTheReports();
};

namespace {

using VwBench::Page;
using VwMenu::Row;

/// The menu's rows that replies tell of, with those that only the individual driving mode has.
QList<Row> reportedRows()
{
    QList<Row> found;
    for (const Row &row : VwMenu::rows()) {
        if (row.width > 0) {
            found << row;
        }
    }
    const VwMenu::Kind kind = VwMenu::Options;
    const char *const modes = "Normal|Sport|ECO|Individual|Snow|Off-road|Off-road individual";
    found << Row{785, kind, 208, "Driving mode of the key", modes, "", 0xB1, 1, 0, 3}
          << Row{785, kind, 209, "Steering", "Normal|Sport", "", 0xA0, 2, 0, 4}
          << Row{785, kind, 210, "Engine", "Normal|Sport|ECO", "", 0xA0, 2, 4, 4}
          << Row{785, kind, 211, "Climate", "Normal|ECO", "0|2", 0xA0, 3, 0, 4}
          << Row{785, kind, 213, "Front lighting", "Normal|Sport|ECO", "", 0xA0, 3, 4, 4};
    return found;
}

/// What \a row shows after the reply \a data; \a before where the reply says nothing that it knows.
QString textAfter(const Row &row, const QByteArray &data, const QString &before)
{
    const int value = quint8(data.at(row.byte)) >> row.shift & ((1 << row.width) - 1);
    if (row.kind == VwMenu::Switch) {
        return value ? "on" : "off";
    }
    if (row.kind == VwMenu::Number) {
        const bool mph = row.item == 33 && data.at(1) & 2;
        return QString("%1 %2").arg(value).arg(mph ? QString("mph") : row.options().at(3)).trimmed();
    }
    const QString text = row.textOf(value);
    return text.isEmpty() ? before : text;
}

} // namespace

void TestVwReplies::fields_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("subType");
    QTest::addColumn<int>("byte");
    QSet<int> seen;
    for (const Row &row : reportedRows()) {
        const int place = row.subType << 8 | row.byte;
        if (!seen.contains(place)) {
            QTest::addRow("reply %x, byte %d", row.subType, row.byte) << row.page << row.subType << row.byte;
        }
        seen << place;
    }
}

// Every value of a byte shows in the rows that it belongs to, and in no other.
void TestVwReplies::fields()
{
    QFETCH(int, page);
    QFETCH(int, subType);
    QFETCH(int, byte);
    Page bench(page);
    QByteArray data(5, '\0');
    data[0] = char(subType);
    if (page == 785) {
        data[1] = 3; // the rows of an individual mode need that mode
    }
    bench.feed(data);
    const QList<Row> rows = reportedRows();
    QMap<int, QString> expected;
    for (const Row &row : rows) {
        if (row.page == page) {
            expected[row.item] = bench.rowOf(row.item) < 0 ? QString() : bench.valueOf(row.item);
        }
    }
    for (int value = 0; value <= 255; ++value) {
        data[byte] = char(value);
        bench.feed(data);
        for (const Row &row : rows) {
            if (row.subType == subType) {
                expected[row.item] = textAfter(row, data, expected[row.item]);
            }
        }
        for (const int item : expected.keys()) {
            const bool isThere = bench.rowOf(item) >= 0;
            QVERIFY(isThere || (page == 785 && (subType != 0xA0 || data.at(1) != 3)));
            if (isThere) {
                QCOMPARE(bench.valueOf(item), expected[item]);
            }
        }
    }
}

void TestVwReplies::warningSpeedUnit()
{
    Page bench(771);
    const auto row = [&bench] {
        const TableViewItemDatas datas = VwBench::modelOf(*bench.page)->itemDatas(bench.rowOf(33));
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

void TestVwReplies::service()
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
        for (int row = 0; row < VwBench::modelOf(*bench.page)->rowCount(); ++row) {
            result << QString::number(VwBench::modelOf(*bench.page)->itemDatas(row).getItemId());
        }
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

// What is cut away reads as untouched, not as zeros.
void TestVwReplies::shortReplies()
{
    for (const Row &row : VwMenu::rows()) {
        if (row.width == 0) {
            continue;
        }
        Page bench(row.page);
        const QString untouched = bench.valueOf(row.item);
        const QByteArray whole = row.reply(row.code(1));
        for (int length = 0; length <= row.byte; ++length) {
            bench.feed(whole.left(length));
            QVERIFY2(bench.valueOf(row.item) == untouched, row.label);
        }
        bench.feed(whole.left(row.byte + 1));
        QVERIFY2(bench.valueOf(row.item) != untouched, row.label);
    }
}

// Nothing but the page's own replies may change its rows.
void TestVwReplies::pagesIgnoreOthersReplies()
{
    for (int page = 771; page <= 786; ++page) {
        Page bench(page);
        const QStringList untouched = bench.rows();
        for (const Row &row : VwMenu::rows()) {
            if (row.width > 0 && row.page != page) {
                bench.feed(row.reply(1));
            }
        }
        VwBench::feed(*bench.adapter, "40 ff ff ff ff ff ff | 99 10 01 01 01 01");
        if (page != 779) {
            VwBench::feed(*bench.adapter, "63 10 01 5a 00 | 63 22 01");
        }
        QCOMPARE(bench.rows(), untouched);
    }
}

void TestVwReplies::textTables()
{
    QCOMPARE(Vw::getStartStopInfo(9), QString("Start-stop system is currently not  available"));
    QCOMPARE(Vw::getStartStopInfo(12), QString("Power consumption is hight"));
    QCOMPARE(Vw::getStartStopInfo(20), QString("Wndscreen heating is switched on"));
    QCOMPARE(Vw::getStartStopInfo(28), Vw::getStartStopInfo(13));
    QCOMPARE(Vw::getConvConsumerInfo(13), QString("Steering whell heating"));
    for (int number : {-1, 34, 255, 1 << 30}) {
        QCOMPARE(Vw::getStartStopInfo(number), QString());
    }
    for (int number : {-1, 0, 19, 255}) {
        QCOMPARE(Vw::getConvConsumerInfo(number), QString());
    }
    QCOMPARE(VWFunctionSetting::getAppTitleFromId(783), QString("Vehice Start-stop"));
    for (unsigned int page : {0u, 770u, 772u, 787u}) {
        QCOMPARE(VWFunctionSetting::getAppTitleFromId(page), QString());
    }
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
