#include "golden.h"
#include "xinhangbench.h"

#include "orbchoicedialog.h"
#include "orbiniconfig.h"
#include "tablelistview.h"
#include "tableviewmodel.h"
#include "xinhang/xinhangsettingswindow.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTimer>
#include <QTranslator>

namespace {

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
    void itemsAndChoices();
    void shownItems_data();
    void shownItems();
    void storedValues_data();
    void storedValues();
    void window_data();
    void window();
    void windowGoesWhileItAsks();
    void languageChange();
    void languageChangeWhileItAsks();
};

// Read once per process, so all at once.
void TestXinHangSettings::initTestCase()
{
    OrbHost::instance()->setFactorySetting("CarSetDefValue",
                                           {"131=2", "132=6", "135=1", "128=8", "129=-1", "=3", "130",
                                            "133=1=2", "134=x", "250=1", "", "138 = 2"});
}

// Every item with its values and what each choice sends: to the box of a car 2, and where that differs, of
// others.
void TestXinHangSettings::itemsAndChoices()
{
    const QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.path());
    TraceRecorder trace;
    const auto effect = [&](int item, int index, quint16 carType) {
        setItems({QString::number(item)});
        SettingsAlone alone;
        alone.box.type = carType;
        trace.take();
        alone.settings.choose(item, index);
        QStringList calls = trace.take();
        for (const QByteArray &package : alone.box.sent) {
            calls << "send " + package;
        }
        return calls.join("; ");
    };
    QStringList lines;
    for (int item = -1; item < 300; ++item) {
        const QStringList texts = XinHangSettings::getSetItemValueTexts(item);
        const QString name = XinHangSettings::getSetItemText(item);
        const int preset = XinHangSettings::getSetItemDefValueIndex(item);
        if (texts.isEmpty() && preset == 0 && name == QString("SetItem%1").arg(item)) {
            continue; // what an unknown item has
        }
        lines << QString("%1 %2, at first %3").arg(item).arg(name).arg(preset);
        for (int index = -1; index <= texts.size(); ++index) {
            const QString usual = effect(item, index, 2);
            QStringList parts{QString("  %1 %2").arg(index).arg(texts.value(index, "(no value)")), usual};
            for (quint16 carType : {1, 4, 5}) {
                const QString other = effect(item, index, carType);
                parts << (other == usual ? QString() : QString("car %1: ").arg(carType) + other);
            }
            parts.removeAll(QString());
            lines << parts.join("; ");
        }
    }
    COMPARE_WITH_GOLDEN("xinhangsettings.txt", lines);
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
    setItems({});
    SettingsAlone unlisted;
    unlisted.settings.syncSettingDataToMcu(132);
    QCOMPARE(unlisted.box.sent, QByteArrayList());
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
    QCOMPARE(view->model()->rowCount(), 6);

    bool asked = false;
    QTimer::singleShot(0, list, [&] {
        auto *const dialog = qobject_cast<OrbChoiceDialog *>(OrbHost::instance()->frontWindow());
        if (dialog) {
            asked = true;
            if (choice >= 0) {
                dialog->findChildren<QCheckBox *>().at(choice)->click();
            }
            dialog->findChild<QAbstractButton *>(choice >= 0 ? "btnOk" : "btnCancel")->click();
        }
    });
    bench.calls();
    const QModelIndex cell = view->model()->index(row, 2);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(cell).center());
    QCOMPARE(asked, choice != -2);
    QTEST(rowTexts(view->model(), row).last(), "value");
    const QString mark = static_cast<TableViewModel *>(view->model())->itemDatas(row).mark();
    QCOMPARE(mark, QString(choice == -2 ? "" : ":/dazhong/set/xiala.png"));
    QTEST(bench.calls().filter(QRegularExpression("^(?!.*setVisible)")).join("; "), "calls");
}

// The unit may take its screen and the window away while the driver is asked.
void TestXinHangSettings::windowGoesWhileItAsks()
{
    setItems({});
    XinHangBench bench;
    QWidget *const list = OrbHost::instance()->windows().last();
    list->show();
    bool asked = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget *const dialog = OrbHost::instance()->frontWindow();
        asked = dialog != list;
        delete list;
        dialog->findChildren<QCheckBox *>().at(2)->click();
        dialog->findChild<QAbstractButton *>("btnOk")->click();
    });
    auto *const view = list->findChild<TableListView *>();
    bench.calls();
    Q_EMIT view->clicked(view->model()->index(0, 2));
    QVERIFY(asked);
    QCOMPARE(bench.calls().filter("send"), QStringList());
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

void TestXinHangSettings::languageChangeWhileItAsks()
{
    setItems({});
    XinHangBench bench;
    QWidget *const list = OrbHost::instance()->windows().last();
    list->show();
    Mirror mirror;
    QStringList words;
    QTimer::singleShot(0, list, [&] {
        QWidget *const dialog = OrbHost::instance()->frontWindow();
        for (bool other : {true, false}) {
            other ? QCoreApplication::installTranslator(&mirror)
                  : QCoreApplication::removeTranslator(&mirror);
            QCoreApplication::sendPostedEvents();
            words << dialog->findChild<QLabel *>("txtTitle")->text();
            for (const QCheckBox *box : dialog->findChildren<QCheckBox *>()) {
                words << box->text();
            }
        }
        dialog->findChildren<QCheckBox *>().at(2)->click();
        dialog->findChild<QAbstractButton *>("btnOk")->click();
    });
    auto *const view = list->findChild<TableListView *>();
    Q_EMIT view->clicked(view->model()->index(0, 2));
    QCOMPARE(words, (QStringList{"<Reversing camera>", "<Original car>", "<360>", "<Add camera>",
                                 "Reversing camera", "Original car", "360", "Add camera"}));
    QCOMPARE(rowTexts(view->model(), 0).last(), QString("Add camera"));
}

CANBUS_TEST_MAIN(TestXinHangSettings)
#include "tst_xinhang_settings.moc"
