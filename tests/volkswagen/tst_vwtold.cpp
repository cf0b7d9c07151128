#include "adapterfixture.h"
#include "vwbench.h"

#include "volkswagen/vwsettingstable.h"

#include "orbhost.h"
#include "orbiniconfig.h"

#include <QCheckBox>
#include <QLabel>

/// What a settings page shows of a car that has not told it, cannot tell it, or has just been told something;
/// and what an open dialog says when the unit changes its language.
class TestVwTold : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silentCar();
    void carTellsAPart();
    void reportPages_data();
    void reportPages();
    void dialogOfAnUntoldValue();
    void choicesTheCarCannotTell();
    void restoredChoicesAreForgotten_data();
    void restoredChoicesAreForgotten();
    void sentIsAnswered_data();
    void sentIsAnswered();
    void openDialogSpeaksTheLanguage_data();
    void openDialogSpeaksTheLanguage();
    void iconsTellRowsApart();
};

using VwBench::Page;

namespace {

int looksOf(const Page &bench, int item)
{
    const TableViewItemDatas row = VwBench::modelOf(*bench.page)->itemDatas(bench.rowOf(item));
    return row.bindData(TableItemDelegate::LooksRole).toInt();
}

bool isUntold(const Page &bench, int item)
{
    return looksOf(bench, item) & TableItemDelegate::Unknown;
}

QString noteOf(const Page &bench, int item)
{
    const TableViewItemDatas row = VwBench::modelOf(*bench.page)->itemDatas(bench.rowOf(item));
    return row.bindData(TableItemDelegate::NoteRole).toString();
}

/// What the page says below its rows.
QString footOf(const Page &bench)
{
    const QLabel *const foot = bench.page->findChild<QLabel *>("labelFoot");
    return foot->isVisible() ? foot->text() : QString();
}

bool waits(const Page &bench)
{
    return footOf(bench) == "Waiting for the car";
}

void ok(SelectDialog &dialog)
{
    VwBench::click(dialog, "btnOk");
}

/// Title, texts and buttons of a dialog.
QStringList wordsOf(const SelectDialog &dialog)
{
    QStringList words;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        words << (label->isVisible() ? QStringList(label->text()) : QStringList());
    }
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
        words << button->text();
    }
    return words;
}

} // namespace

void TestVwTold::silentCar()
{
    Page bench(Vw::TyresPage);
    for (int item : {32, 33, 35}) {
        QVERIFY(isUntold(bench, item));
    }
    QVERIFY(!isUntold(bench, Vw::TyresSetItem));
    QCOMPARE(bench.rows(), (QStringList{"Speed warning=off",
                                        "Warning speed=", "TPMS SET=", "Direct tyres pressure monitoring="}));
    QTest::qWait(1800);
    QVERIFY(!waits(bench));
    QCOMPARE(bench.sent(), QStringList());
    QTest::qWait(400);
    QVERIFY(waits(bench));
    QCOMPARE(bench.sent(), bench.requests);
    QTest::qWait(60000);
    QCOMPARE(bench.sent(), QStringList());
    // What the driver sets is known from then on, whatever the car says.
    bench.tap(32, nullptr, TableViewItemDatas::ValueColumn);
    QCOMPARE(bench.sent(), VwBench::commands(32, 1));
    QVERIFY(!isUntold(bench, 32) && isUntold(bench, 33));
    bench.feed(QByteArray::fromHex("20007800"));
    QVERIFY(!isUntold(bench, 32) && !isUntold(bench, 33) && !waits(bench));
}

// A car that has no rows of one kind answers the rest.
void TestVwTold::carTellsAPart()
{
    Page bench(Vw::LightPage);
    bench.feed(QByteArray::fromHex("5100000000"));
    QTest::qWait(2200);
    QCOMPARE(bench.sent(), (QStringList{"90 40 50", "90 40 52"}));
    QVERIFY(!waits(bench));
    QVERIFY(isUntold(bench, 83) && !isUntold(bench, 87));
    QCOMPARE(bench.rows().value(3), QString("Instrument/switch lighting="));
}

void TestVwTold::reportPages_data()
{
    QTest::addColumn<unsigned>("page");
    QTest::addColumn<QByteArray>("nothing");
    QTest::newRow("reports") << 784U << QByteArray("61 00 00");
    QTest::newRow("consumers") << 786U << QByteArray("62 00 00 00 00");
}

// "No entries" is something that the car says.
void TestVwTold::reportPages()
{
    QFETCH(unsigned, page);
    QFETCH(QByteArray, nothing);
    Page bench(page);
    QTest::qWait(2200);
    QCOMPARE(bench.rows(), QStringList());
    QVERIFY(waits(bench));
    VwBench::feed(*bench.adapter, nothing);
    QCOMPARE(bench.rows(), QStringList("No entries available="));
    QCoreApplication::processEvents();
    QVERIFY(footOf(bench).isEmpty() && VwBench::listOf(*bench.page)->height() > 100);
    // A report grows old, also for a page that opens later.
    QTest::qWait(135000);
    QCOMPARE(footOf(bench), QString("Last report 2 min ago"));
    bench.reopen(page);
    QCOMPARE(footOf(bench), QString("Last report 2 min ago"));
    VwBench::feed(*bench.adapter, nothing);
    QCOMPARE(footOf(bench), QString());
}

void TestVwTold::dialogOfAnUntoldValue()
{
    Page bench(Vw::TyresPage);
    const QString hint = "The car has not told its value";
    QVERIFY(bench.tap(33, [&](SelectDialog &dialog) {
        QCOMPARE(dialog.getSliderValueText(), QString("30 km/h"));
        QVERIFY(wordsOf(dialog).contains(hint));
    }));
    bench.feed(QByteArray::fromHex("20017800"));
    QVERIFY(bench.tap(33, [&](SelectDialog &dialog) { QVERIFY(!wordsOf(dialog).contains(hint)); }));
}

void TestVwTold::choicesTheCarCannotTell()
{
    Page bench(Vw::ParkingPage);
    bench.feed(QByteArray::fromHex("40075386"));
    QVERIFY(isUntold(bench, Vw::RadarSoundItem) && !isUntold(bench, 58));
    bench.tap(Vw::RadarSoundItem, nullptr, TableViewItemDatas::ValueColumn);

    const QByteArray offRoadIndividual = QByteArray::fromHex("a0060022");
    bench.reopen(Vw::ProfilePage);
    bench.feed(offRoadIndividual);
    QVERIFY(isUntold(bench, Vw::OffRoadClimateItem)); // the car's climate is that of another mode
    QVERIFY(bench.tap(Vw::OffRoadClimateItem, [&](SelectDialog &dialog) {
        VwBench::check(dialog, 1);
        ok(dialog);
    }));
    bench.feed(QByteArray::fromHex("a0060000"));
    QCOMPARE(bench.valueOf(Vw::OffRoadClimateItem), QString("ECO"));

    // After a restart of the unit as well.
    bench.reopen(Vw::ParkingPage);
    QCOMPARE(bench.valueOf(Vw::RadarSoundItem), QString("on"));
    QVERIFY(!isUntold(bench, Vw::RadarSoundItem));
    OrbIniConfig kept("carsetting.ini", "Volkswagen");
    QCOMPARE(kept.value("SetItem171").toString() + kept.value("SetItem228").toString(), QString("11"));
    for (const char *damaged : {"2", "-1", "on", ""}) {
        kept.setValue("SetItem228", damaged);
        bench.reopen(Vw::ProfilePage);
        bench.feed(offRoadIndividual);
        QVERIFY2(isUntold(bench, Vw::OffRoadClimateItem), damaged);
    }
}

void TestVwTold::restoredChoicesAreForgotten_data()
{
    QTest::addColumn<unsigned>("page");
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("left"); // items whose choice stays known
    QTest::newRow("parking") << 781U << 194 << "228";
    QTest::newRow("off-road profile") << 785U << 232 << "171";
    QTest::newRow("everything") << 781U << 199 << "";
    QTest::newRow("light") << 781U << 195 << "171 228";
}

void TestVwTold::restoredChoicesAreForgotten()
{
    QFETCH(unsigned, page);
    QFETCH(int, action);
    Page bench(page);
    OrbIniConfig kept("carsetting.ini", "Volkswagen");
    kept.setValue("SetItem171", 1);
    kept.setValue("SetItem228", 1);
    bench.reopen(page);
    bench.feed(QByteArray::fromHex("a0060022"));
    bench.tap(action, ok);
    QStringList left;
    bench.reopen(Vw::ParkingPage);
    left << (isUntold(bench, 171) ? QString() : "171");
    bench.reopen(Vw::ProfilePage);
    bench.feed(QByteArray::fromHex("a0060022"));
    left << (isUntold(bench, 228) ? QString() : "228");
    QTEST(left.join(' ').trimmed(), "left");
}

void TestVwTold::sentIsAnswered_data()
{
    QTest::addColumn<unsigned>("page");
    QTest::addColumn<int>("item");
    QTest::newRow("at once") << 771U << 34;
    QTest::newRow("after a question") << 779U << 141;
    QTest::newRow("restore") << 781U << 199;
    QTest::newRow("reset of a profile") << 785U << 212;
}

void TestVwTold::sentIsAnswered()
{
    QFETCH(unsigned, page);
    QFETCH(int, item);
    Page bench(page);
    bench.feed(QByteArray::fromHex("a0030022"));
    bench.tap(item, VwBench::cancel);
    QCOMPARE(noteOf(bench, item), QString(item == 34 || item == 212 ? "Sent" : ""));
    bench.tap(item, ok);
    QCOMPARE(noteOf(bench, item), QString("Sent"));
    QCOMPARE(bench.valueOf(item), QString());
    QTest::qWait(2800);
    QCOMPARE(noteOf(bench, item), QString("Sent"));
    QTest::qWait(400);
    QCOMPARE(noteOf(bench, item), QString());
}

void TestVwTold::openDialogSpeaksTheLanguage_data()
{
    QTest::addColumn<unsigned>("page");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("words");
    QTest::newRow("options") << 782U << 16
                             << "ESC-System|Das Fahrzeug hat den Wert noch nicht gemeldet|"
                                "AUS|Aktiviert|ESC Sport|OK|Abbrechen";
    QTest::newRow("number") << 775U << 84
                            << "Coming-Home-Funktion|Das Fahrzeug hat den Wert noch nicht gemeldet|"
                               "-|0 s|+|OK|Abbrechen";
    QTest::newRow("restore") << 781U << 195
                             << "Werkseinstellungen|Wirklich „Licht“ auf Werkseinstellung zurücksetzen?|"
                                "OK|Abbrechen";
    QTest::newRow("reset") << 779U << 138 << "Fahrdaten|Wirklich „Ab Start“ zurücksetzen?|OK|Abbrechen";
}

void TestVwTold::openDialogSpeaksTheLanguage()
{
    QFETCH(unsigned, page);
    QFETCH(int, item);
    QFETCH(QString, words);
    Page bench(page);
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(bench.tap(item, [&](SelectDialog &dialog) {
        OrbHost::instance()->setLanguage("de");
        QCoreApplication::sendPostedEvents();
        QStringList shown = wordsOf(dialog);
        QStringList expected = words.split('|');
        shown.sort();
        expected.sort();
        QCOMPARE(shown, expected);
    }));
    OrbHost::instance()->setLanguage("en");
}

// No two rows of a page look the same from the corner of an eye.
void TestVwTold::iconsTellRowsApart()
{
    for (unsigned int id = Vw::TyresPage; id <= Vw::ConsumersPage; ++id) {
        for (const char *mode : {"a0030022", "a0060022"}) {
            Page bench(id);
            bench.feed(QByteArray::fromHex(mode));
            QStringList icons;
            for (int row = 0; row < bench.rows().size(); ++row) {
                const TableViewItemDatas datas = VwBench::modelOf(*bench.page)->itemDatas(row);
                icons << (datas.isHeading() ? QStringList() : QStringList(datas.icon()));
            }
            QVERIFY2(icons.removeDuplicates() == 0, qPrintable(icons.join(' ')));
        }
    }
}

CANBUS_TEST_MAIN(TestVwTold)
#include "tst_vwtold.moc"
