#include "xinhangbench.h"

#include "orbchoicedialog.h"
#include "orbiniconfig.h"
#include "tablelistview.h"
#include "tableviewmodel.h"
#include "xinhang/xinhangsettingswindow.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimer>
#include <QTranslator>

namespace {

const char Writer[] = "--write-settings";

// What items 3 and 4 do when nothing is stored.
const char NoneOn[] = "; dispatchOrbEvent(401,12,51007,20510,0); dispatchOrbEvent(401,12,51007,20509,0)";

/// Turns every text into its mirror image in angle brackets.
class Mirror : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString("<%1>").arg(text);
    }
};

void setItems(const QStringList &items)
{
    OrbHost::instance()->setFactorySetting("SettingItemTypes", items);
}

/// The settings without a box and its line.
struct SettingsAlone
{
    SettingsAlone() { settings.appendConfiguredItems(); }

    FakeBox box;
    XinHangDisplay display{box, nullptr};
    XinHangSettings settings{box, display};
};

QStringList rowTexts(const QAbstractItemModel *model, int row)
{
    return {model->index(row, 0).data().toString(), model->index(row, 2).data().toString()};
}

} // namespace

class TestXinHangSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void texts();
    void shownItems_data();
    void shownItems();
    void effects_data();
    void effects();
    void storedValues_data();
    void storedValues();
    void window_data();
    void window();
    void languageChange();
    void killedWhileWriting();
};

// Read once per process, so all at once.
void TestXinHangSettings::initTestCase()
{
    OrbHost::instance()->setFactorySetting("CarSetDefValue",
                                           {"131=2", "132=6", "135=1", "128=8", "129=-1", "=3", "130",
                                            "133=1=2", "134=x", "250=1", "", "138 = 2"});
}

void TestXinHangSettings::texts()
{
    const QString seconds = "0S,5S,10S,15S,20S,25S,30S";
    const QString numbers = "1,2,3,4,5,6,7,8";
    const QString mirrors = "Off,Horizontal,Vertical,Horizontal and vertical";
    const QMap<int, QString> known = {
        {1, "Reversing camera: Original car,360,Add camera"},
        {2, "Right camera: Off,On"},
        {3, "Reversing track: Off,On"},
        {4, "Reversing radar: Off,On"},
        {128, "Car type: " + numbers},
        {129, "Display type: " + numbers},
        {130, "Sound type: " + numbers},
        {131, "Reverse camera: None,AfterMarket Camera,OE Camera,AfterMarket 360"},
        {132, "Starting front view: " + seconds},
        {133, "Steering front view: " + seconds},
        {134, "Reversing front view: " + seconds},
        {135, "Dedicated right view: Off,On"},
        {136, "Front view after right view: " + seconds},
        {137, "Rear video format: CVBS,VGA"},
        {138, "Reverse condition: Parking Key,Reverse State,Gear Position"},
        {144, "Front view mirror: " + mirrors},
        {145, "Right view mirror: " + mirrors},
        {146, "Rear view mirror: " + mirrors},
        {147, "Reverse track: Off,On"},
        {148, "Reverse radar: Off,On"}};
    for (int item = -1; item < 300; ++item) {
        QCOMPARE(XinHangSettings::getSetItemText(item) + ": " +
                     XinHangSettings::getSetItemValueTexts(item).join(','),
                 known.value(item, QString("SetItem%1: ").arg(item)));
        const QMap<int, int> defaults = {{131, 2}, {132, 6}, {135, 1}, {138, 2}};
        QCOMPARE(XinHangSettings::getSetItemDefValueIndex(item), defaults.value(item));
    }
}

void TestXinHangSettings::shownItems_data()
{
    QTest::addColumn<QStringList>("configured");
    QTest::addColumn<QList<int>>("items");
    QTest::newRow("none") << QStringList() << QList<int>{1, 2, 3, 4};
    QTest::newRow("in the order given") << QStringList{"148", "128"} << QList<int>{1, 2, 3, 4, 148, 128};
    QTest::newRow("hexadecimal and blanks")
        << QStringList{"0x84", " 133 ", "0X86"} << QList<int>{1, 2, 3, 4, 132, 133, 134};
    QTest::newRow("leading zeros are decimal") << QStringList{"0128"} << QList<int>{1, 2, 3, 4, 128};
    QTest::newRow("twice") << QStringList{"132", "0x84", "3"} << QList<int>{1, 2, 3, 4, 132};
    QTest::newRow("unknown ones are listed") << QStringList{"139", "-5"} << QList<int>{1, 2, 3, 4, 139, -5};
    QTest::newRow("no numbers") << QStringList{"", "x", "12a", "99999999999", "132"}
                                << QList<int>{1, 2, 3, 4, 132};
}

void TestXinHangSettings::shownItems()
{
    QFETCH(QStringList, configured);
    setItems(configured);
    SettingsAlone alone;
    alone.settings.appendConfiguredItems();
    QTEST(alone.settings.items(), "items");
}

void TestXinHangSettings::effects_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char *name, int carType, const QStringList &items, const QVariantMap &stored,
                        const QString &calls) { QTest::newRow(name) << carType << items << stored << calls; };
    const QString basics = QString("send 82 00 00") + NoneOn;
    const auto boxRow = [&](const QByteArray &name, int item, int value, const char *call) {
        row(name, 2, {QString::number(item)}, {{QString("SetItem%1").arg(item), value}}, basics + call);
    };
    row("original camera", 1, {}, {}, basics);
    row("original camera, car 4", 4, {}, {},
        QString("send 82 40 00") + NoneOn +
            "; GPIOOperater.setDirection(34,out); GPIOOperater.setValue(34,0)");
    row("360 camera", 2, {}, {{"SetItem1", 1}}, basics);
    row("added camera", 5, {}, {{"SetItem1", 2}}, QString("send 82 01 00") + NoneOn);
    row("track and radar on", 2, {}, {{"SetItem3", 1}, {"SetItem4", 1}},
        "send 82 00 00; dispatchOrbEvent(401,12,51007,20510,1); dispatchOrbEvent(401,12,51007,20509,1)");
    row("the box's track and radar, in list order", 2, {"148", "147"}, {{"SetItem147", 1}},
        basics + "; dispatchOrbEvent(401,12,51007,20509,0); dispatchOrbEvent(401,12,51007,20510,1)");
    boxRow("reverse camera", 131, 3, "; send 8b 00 03");
    boxRow("starting front view in seconds", 132, 3, "; send 8b 01 0f");
    boxRow("right view on", 135, 1, "; send 8b 02 01");
    boxRow("steering front view in seconds", 133, 6, "; send 8b 03 1e");
    boxRow("car type", 128, 7, "; send 8b 04 07");
    boxRow("display type", 129, 1, "; send 8b 05 01");
    boxRow("sound type", 130, 0, "; send 8b 06 00");
    for (const int item : {134, 136, 137, 138, 139, 144, 145, 146}) {
        boxRow("nothing for the box: " + QByteArray::number(item), item, 1, "");
    }
    row("a known item that is not listed", 2, {}, {{"SetItem132", 3}}, basics);
}

void TestXinHangSettings::effects()
{
    QFETCH(int, carType);
    QFETCH(QStringList, items);
    QFETCH(QVariantMap, stored);
    QFETCH(QString, calls);
    setItems(items);
    XinHangBench bench(stored);
    QCOMPARE(XinHang::joined(bench.exchange("0a 00 0" + QByteArray::number(carType))), calls);
    QCOMPARE(XinHang::joined(bench.exchange("0a 00 0" + QByteArray::number(carType))), calls);
}

void TestXinHangSettings::storedValues_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("index"); // of item 132, whose default is 6
    QTest::newRow("no file") << QByteArray() << 6;
    QTest::newRow("no ini file") << QByteArray("\0\xFF[[[\n==\n\x01", 10) << 6;
    const auto row = [](const char *name, const char *value, int index) {
        QTest::newRow(name) << QByteArray("[CarSetting]\nSetItem132=") + value + '\n' << index;
    };
    row("first", "0", 0);
    row("past the last", "7", 6);
    row("negative", "-1", 6);
    row("past an int", "4294967296", 6);
    row("text", "true", 6);
    row("fraction", "2.0", 6);
}

void TestXinHangSettings::storedValues()
{
    QFETCH(QByteArray, file);
    QFETCH(int, index);
    const QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.path());
    if (!file.isEmpty()) {
        QFile ini(folder.filePath("carsetting.ini"));
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write(file);
    }
    setItems({"132"});
    SettingsAlone alone;
    alone.settings.syncSettingDataToMcu(132);
    QCOMPARE(alone.settings.getSetItemValueIndex(132), index);
    // A choice mends the file.
    alone.settings.choose(132, 7);
    alone.settings.choose(132, 2);
    QCOMPARE(OrbIniConfig("carsetting.ini", "CarSetting").value("SetItem132").toInt(), 2);
    const QByteArray shown = QByteArray(1, char(index * 5)).toHex();
    QCOMPARE(alone.box.sent, QByteArrayList({"8b 01 " + shown, "8b 01 0a"}));
}

void TestXinHangSettings::window_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("choice"); // -1 cancel
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char *name, int at, int choice, const char *value, const char *calls) {
        QTest::newRow(name) << at << choice << QString(value) << QString(calls);
    };
    row("camera", 0, 2, "Add camera", "send 82 01 00");
    row("cancelled", 0, -1, "Original car", "");
    row("same again", 0, 0, "Original car", "send 82 00 00");
    row("track", 2, 1, "On", "dispatchOrbEvent(401,12,51007,20510,1)");
    row("seconds", 4, 3, "15S", "send 8b 01 0f");
    row("unknown item, no dialog", 5, -2, "", "");
}

void TestXinHangSettings::window()
{
    QFETCH(int, row);
    QFETCH(int, choice);
    setItems({"132", "250"});
    XinHangBench bench;
    QWidget *const list = OrbHost::instance()->windows().last();
    QVERIFY(!list->isVisible());
    list->show();
    auto *const view = list->findChild<TableListView *>();
    QVERIFY(QTest::qWaitForWindowExposed(list));
    QCOMPARE(view->model()->rowCount(), 6);

    bool asked = false;
    QTimer answer;
    answer.setInterval(5);
    connect(&answer, &QTimer::timeout, this, [&] {
        auto *const dialog = qobject_cast<OrbChoiceDialog *>(OrbHost::instance()->frontWindow());
        if (!dialog) {
            return;
        }
        asked = true;
        answer.stop();
        if (choice >= 0) {
            dialog->findChildren<QCheckBox *>().at(choice)->click();
        }
        dialog->findChild<QAbstractButton *>(choice >= 0 ? "btnOk" : "btnCancel")->click();
    });
    answer.start();
    bench.calls();
    const QModelIndex cell = view->model()->index(row, 2);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(cell).center());
    QTest::qWait(20);
    QCOMPARE(asked, choice != -2);
    QTEST(rowTexts(view->model(), row).last(), "value");
    QTEST(XinHang::joined(bench.calls().filter(QRegularExpression("^(?!.*setVisible)"))), "calls");
}

void TestXinHangSettings::languageChange()
{
    setItems({"132"});
    XinHangBench bench;
    QWidget *const list = OrbHost::instance()->windows().last();
    list->show();
    const auto *const model = list->findChild<TableListView *>()->model();
    QCOMPARE(rowTexts(model, 0), (QStringList{"Reversing camera", "Original car"}));
    Mirror mirror;
    QCoreApplication::installTranslator(&mirror);
    QTRY_COMPARE(rowTexts(model, 0), (QStringList{"<Reversing camera>", "<Original car>"}));
    QCOMPARE(rowTexts(model, 4), (QStringList{"<Starting front view>", "30S"}));
    QCOMPARE(list->windowTitle(), QString("<Car Setting>"));
    QCoreApplication::removeTranslator(&mirror);
    QTRY_COMPARE(list->windowTitle(), QString("Car Setting"));
}

void TestXinHangSettings::killedWhileWriting()
{
    const QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.path());
    OrbIniConfig("carsetting.ini", "CarSetting").setValue("SetItem1", 2);
    QRandomGenerator random(11);
    for (int run = 0; run < 12; ++run) {
        QProcess writer;
        writer.start(QCoreApplication::applicationFilePath(), {Writer, folder.path()});
        QVERIFY(writer.waitForReadyRead());
        QTest::qSleep(int(random.bounded(1, 20)));
        writer.kill();
        QVERIFY(writer.waitForFinished());
        const int written = writer.readAllStandardOutput().trimmed().split('\n').last().toInt();
        const OrbIniConfig config("carsetting.ini", "CarSetting");
        const int stored = config.value("SetItem132", -1).toInt();
        // The last one that was reported, or the one that was being written.
        QVERIFY2(stored == written || stored == (written + 1) % 7,
                 qPrintable(QString("reported %1, stored %2").arg(written).arg(stored)));
        QCOMPARE(config.value("SetItem1").toInt(), 2);
    }
}

namespace {

int writeSettings(const QString &folder)
{
    OrbHost::instance()->setSettingsDir(folder);
    setItems({"132"});
    SettingsAlone alone;
    for (int value = 0;; value = (value + 1) % 7) {
        alone.settings.choose(132, value);
        printf("%d\n", value);
        fflush(stdout);
    }
}

} // namespace

int main(int argc, char **argv)
{
    OrbApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == Writer) {
        return writeSettings(argv[2]);
    }
    TestXinHangSettings test;
    const int result = QTest::qExec(&test, argc, argv);
    return result != 0 ? result : TestSupport::brokenConnects();
}

#include "tst_xinhang_settings.moc"
