#include "scenes.h"
#include "xinhangbench.h"

#include "orbchoicedialog.h"
#include "xinhang/xinhangsettings.h"
#include "xinhang/xinhangsettingswindow.h"

namespace {

/// The settings of a car that has every one there is.
struct Everything
{
    Everything() : display(box, nullptr), settings(box, display)
    {
        QStringList items;
        for (int item = 1; item <= 0xFF; ++item) {
            if (!XinHangSettings::getSetItemValueTexts(item).isEmpty()) {
                items << QString::number(item);
            }
        }
        OrbHost::instance()->setSettingsDir(folder.path());
        OrbHost::instance()->setFactorySetting("SettingItemTypes", items);
        settings.appendConfiguredItems();
        [&] { QVERIFY(settings.items().size() > 10 && settings.items().size() == items.size()); }();
    }

    const QTemporaryDir folder;
    FakeBox box;
    XinHangDisplay display;
    XinHangSettings settings;
};

void drawList(bool isFirst, const Scene::Shot &shot)
{
    Everything car;
    XinHangSettingsWindow list(car.settings);
    for (int item : car.settings.items()) {
        const int values = int(XinHangSettings::getSetItemValueTexts(item).size());
        car.settings.choose(item, isFirst ? 0 : values - 1);
    }
    list.resetListTexts();
    list.show();
    shootList(&list, shot);
}

void drawDialogs(const Scene::Shot &shot)
{
    Everything car;
    for (int item : car.settings.items()) {
        OrbChoiceDialog dialog(XinHangSettings::getSetItemText(item),
                               XinHangSettings::getSetItemValueTexts(item), 0);
        dialog.show();
        shot(&dialog);
    }
}

} // namespace

QList<Scene> xinhangScenes()
{
    return {
        {"xinhang-first", "Every setting that there is, with its first value.",
         [](const Scene::Shot &shot) { drawList(true, shot); }},
        {"xinhang-last", "The same with its last value.",
         [](const Scene::Shot &shot) { drawList(false, shot); }},
        {"xinhang-dialogs", "The choices behind them.", drawDialogs},
    };
}
