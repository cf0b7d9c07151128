#include "scenes.h"

#include "airconditiondlg.h"
#include "orbchoicedialog.h"
#include "orbmainwindow.h"
#include "tablelistview.h"
#include "tableviewmodel.h"
#include "updatedialog.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

std::unique_ptr<AirConditionDlg> climate(bool on, int fan, int direction, const char *left, const char *right)
{
    std::unique_ptr<AirConditionDlg> dialog(new AirConditionDlg);
    dialog->setTemperatureRange(16.0, 29.5);
    dialog->setAirConditionEnable(on);
    dialog->setACEnable(on);
    dialog->setAutoModeEnable(fan == 0xFF);
    dialog->setWindDirect(direction);
    dialog->setAirVolume(fan);
    dialog->setCirculationMode(fan);
    dialog->setTemperature(QString::fromUtf8(left), QString::fromUtf8(right));
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> climateDefrost()
{
    std::unique_ptr<AirConditionDlg> dialog = climate(true, 7, 4, "72°F", "");
    dialog->setDefrostingMode();
    return dialog;
}

/// The update dialog at \a percent; below 0 it still asks.
std::unique_ptr<UpdateDialog> update(int percent)
{
    std::unique_ptr<UpdateDialog> dialog(new UpdateDialog);
    dialog->showUpdateDlg(1);
    if (percent >= 0) {
        dialog->updatePercent(percent);
    }
    return dialog;
}

std::unique_ptr<QWidget> updateFailed()
{
    std::unique_ptr<UpdateDialog> dialog = update(42);
    dialog->setUpdateFailed(2);
    return dialog;
}

/// Nobody asks any more: the end when \a everything was given, else a stall.
std::unique_ptr<QWidget> updateAfterSilence(bool everything)
{
    std::unique_ptr<UpdateDialog> dialog = update(42);
    dialog->setProperty("everythingGiven", everything);
    QTimer *const silence = dialog->findChild<QTimer *>("silence");
    silence->stop();
    QMetaObject::invokeMethod(silence, "timeout");
    return dialog;
}

/// Texts as long as drivers get to see, in the language of now.
QString vw(const char *text)
{
    return QCoreApplication::translate("Vw", text);
}

std::unique_ptr<QWidget> choiceOf(const QStringList &texts)
{
    std::unique_ptr<QWidget> dialog(new OrbChoiceDialog(vw("Convenience opening"), texts, 1));
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> longChoice()
{
    return choiceOf({vw("Trailer mode"), vw("Windscreen could become fogged"),
                     vw("Gearbox requires engine to be running"), vw("Starting start-stop system"),
                     vw("Power consumption is high"), vw("Emergency brake function intervention"),
                     vw("ACC intervention")});
}

TableViewItemDatas row(int id, const QString &text, const QVariant &value, const QString &mark = QString())
{
    TableViewItemDatas datas(id, text, ":/orb/climate/fan.png");
    datas.setValue(TableViewItemDatas::ValueColumn, value);
    datas.setMark(mark);
    return datas;
}

std::unique_ptr<QWidget> list()
{
    std::unique_ptr<OrbMainWindow> window(new OrbMainWindow(782));
    window->setWindowTitle(vw("Driver assistance"));
    TableListView *view = new TableListView;
    TableViewModel *model = new TableViewModel(view);
    const QString mark = ":/orb/icons/dropdown.png";
    model->appendItemDatas(row(1, vw("Lane keeping assist system"), true));
    model->appendItemDatas(row(2, vw("Front assist"), false));
    TableViewItemDatas heading(-1, vw("Adaptive cruise control"));
    heading.setHeading(true);
    model->appendItemDatas(heading);
    model->appendItemDatas(row(3, vw("Drive program"), vw("Standard"), mark));
    model->appendItemDatas(row(4, vw("Start-stop system requires engine to be running"), vw("Far")));
    model->appendItemDatas(row(5, vw("Inspection distance"), vw("overdue by") + " 1200 " + vw("km"), mark));
    for (int i = 6; i < 14; ++i) {
        model->appendItemDatas(row(i, vw("Door ambient light"), QString("%1 %").arg(i), mark));
    }
    view->setModel(model);
    window->setCentralWidget(view);
    window->show();
    return window;
}

} // namespace

QList<Scene> frameworkScenes()
{
    return {
        sceneOf("climate-on", "Both sides, four of eight steps of the fan, to body and feet.",
                [] { return climate(true, 4, 3, "21.5°C", "18.0°C"); }),
        sceneOf("climate-auto", "Automatic, coldest on the left, warmest on the right.",
                [] { return climate(true, 0xFF, 0xFF, "LO", "HI"); }),
        sceneOf("climate-off", "Switched off, in a car with one side.",
                [] { return climate(false, 0, 0, "21.5°C", ""); }),
        sceneOf("climate-defrost", "The windscreen is cleared; degrees as an American car tells them.",
                climateDefrost),
        sceneOf("update-question", "New firmware was found on a disk.", [] { return update(-1); }),
        sceneOf("update-running", "The box takes it.", [] { return update(42); }),
        sceneOf("update-stalled", "The box asks for nothing more, and has not got all.",
                [] { return updateAfterSilence(false); }),
        sceneOf("update-failed", "The box says that it failed.", updateFailed),
        sceneOf("update-done", "The box has got all.", [] { return updateAfterSilence(true); }),
        sceneOf("choice-short", "A choice.",
                [] {
                    return choiceOf({vw("OFF"), vw("Driver window"), vw("All window")});
                }),
        sceneOf("choice-long", "A choice of more than the screen is high.", longChoice),
        sceneOf("list", "A list: switches, a heading, values that lead to a choice, a value only shown.",
                list),
    };
}
