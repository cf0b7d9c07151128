#include "looks.h"
#include "testmain.h"
#include "xinhangbench.h"

#include "orbchoicedialog.h"
#include "tablelistview.h"
#include "xinhang/xinhangsettings.h"
#include "xinhang/xinhangsettingswindow.h"

/// Draws the XinHang's list with every setting, and the dialog of each.
class TestXinHangLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsFit_data() { Looks::addRows(QStringList{"xinhang first", "xinhang last"}); }
    void textsFit();
};

// Once with the first value of each setting, once with the last.
void TestXinHangLooks::textsFit()
{
    QFETCH(int, scene);
    QStringList items;
    for (int item = 1; item <= 0xFF; ++item) {
        if (!XinHangSettings::getSetItemValueTexts(item).isEmpty()) {
            items << QString::number(item);
        }
    }
    const QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.path());
    OrbHost::instance()->setFactorySetting("SettingItemTypes", items);
    const Looks::Unit unit;
    FakeBox box;
    XinHangDisplay display(box, nullptr);
    XinHangSettings settings(box, display);
    settings.appendConfiguredItems();
    QVERIFY(settings.items().size() > 10 && settings.items().size() == items.size());
    XinHangSettingsWindow list(settings);
    for (int item : settings.items()) {
        const QStringList values = XinHangSettings::getSetItemValueTexts(item);
        if (!values.isEmpty()) {
            settings.choose(item, scene == 0 ? 0 : int(values.size()) - 1);
            OrbChoiceDialog dialog(XinHangSettings::getSetItemText(item), values, 0);
            dialog.show();
            QCOMPARE(unit.faults(&dialog, QString("-%1").arg(item)).join("\n"), QString());
        }
    }
    list.resetListTexts();
    list.show();
    QCOMPARE(unit.faults(&list).join("\n"), QString());
}

CANBUS_TEST_MAIN(TestXinHangLooks)
#include "tst_xinhanglooks.moc"
