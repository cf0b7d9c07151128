#include "testmain.h"
#include "unitscreen.h"

#include "airconditiondlg.h"
#include "orbchoicedialog.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "tablelistview.h"
#include "tableviewmodel.h"
#include "updatedialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <memory>

/// Draws every screen of the framework in its states, on both screen sizes and in three languages, and checks
/// that each text has the room that it needs. With ORB_SCREENSHOTS=FOLDER the pictures are kept there.
class TestLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { OrbHost::instance()->setLanguage("en"); }
    void textsFit_data();
    void textsFit();
};

namespace {

typedef std::unique_ptr<QWidget> (*Scene)();

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

std::unique_ptr<QWidget> choiceOf(const QStringList &texts)
{
    std::unique_ptr<QWidget> dialog(new OrbChoiceDialog("Convenience opening", texts, 1));
    dialog->show();
    return dialog;
}

QStringList profiles()
{
    QStringList texts;
    for (int i = 1; i <= 12; ++i) {
        texts << QString("Profile %1 of the driver").arg(i);
    }
    return texts;
}

TableViewItemDatas row(int id, const QString &text, const QVariant &value, const QString &mark = QString())
{
    TableViewItemDatas datas(id, text, id == 1 || id == 3 ? ":/orb/climate/fan.png" : "");
    datas.setValue(TableViewItemDatas::ValueColumn, value);
    datas.setMark(mark);
    return datas;
}

std::unique_ptr<QWidget> list()
{
    std::unique_ptr<OrbMainWindow> window(new OrbMainWindow(782));
    window->setWindowTitle("Driver assistance");
    TableListView *view = new TableListView;
    TableViewModel *model = new TableViewModel(view);
    const QString mark = ":/orb/icons/dropdown.png";
    model->appendItemDatas(row(1, "Lane keeping assist system", true));
    model->appendItemDatas(row(2, "Front assist", false));
    TableViewItemDatas heading(-1, "Adaptive cruise control");
    heading.setHeading(true);
    model->appendItemDatas(heading);
    model->appendItemDatas(row(3, "Drive program", "Standard", mark));
    model->appendItemDatas(
        row(4, "Start-stop system requires engine to be running because it is cold", "Far"));
    model->appendItemDatas(row(5, "Inspection distance", "overdue by 1200 kilometres on the clock", mark));
    for (int i = 6; i < 14; ++i) {
        model->appendItemDatas(row(i, QString("Interior lighting %1").arg(i), QString("%1 %").arg(i), mark));
    }
    view->setModel(model);
    window->setCentralWidget(view);
    window->show();
    return window;
}

const struct
{
    const char *name;
    Scene make;
} Scenes[] = {
    {"climate-on", [] { return std::unique_ptr<QWidget>(climate(true, 4, 3, "21.5°C", "18.0°C")); }},
    {"climate-auto", [] { return std::unique_ptr<QWidget>(climate(true, 0xFF, 0xFF, "LO", "HI")); }},
    {"climate-off", [] { return std::unique_ptr<QWidget>(climate(false, 0, 0, "21.5°C", "")); }},
    {"climate-defrost", climateDefrost},
    {"update-question", [] { return std::unique_ptr<QWidget>(update(-1)); }},
    {"update-running", [] { return std::unique_ptr<QWidget>(update(42)); }},
    {"update-failed", updateFailed},
    {"update-done", [] { return std::unique_ptr<QWidget>(update(100)); }},
    {"choice-short",
     [] {
         return choiceOf({"OFF", "Driver window", "All windows"});
     }},
    {"choice-long", [] { return choiceOf(profiles()); }},
    {"list", list},
};

/// The text's size where it is drawn, wrapped to the label's width where it wraps.
QSize textSize(const QLabel *label)
{
    const int flags = label->wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRect room(0, 0, label->contentsRect().width(), 10000);
    return label->fontMetrics().boundingRect(room, flags, label->text()).size();
}

bool fits(const QWidget *widget)
{
    const QRect onParent = widget->parentWidget()->rect();
    if (!onParent.contains(widget->geometry())) {
        return false;
    }
    if (const QLabel *label = qobject_cast<const QLabel *>(widget)) {
        const QSize size = textSize(label);
        return size.width() <= label->contentsRect().width() &&
               size.height() <= label->contentsRect().height();
    }
    const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget);
    return button->width() >= button->sizeHint().width() &&
           button->height() >= button->minimumSizeHint().height();
}

} // namespace

void TestLooks::textsFit_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    const QSize sizes[] = {QSize(1024, 600), QSize(800, 480)};
    for (int scene = 0; scene < int(std::size(Scenes)); ++scene) {
        for (const QSize &size : sizes) {
            for (const char *language : {"en", "de", "zh_CN"}) {
                QTest::addRow("%s-%d-%s", Scenes[scene].name, size.width(), language)
                    << scene << size << QString(language);
            }
        }
    }
}

void TestLooks::textsFit()
{
    QFETCH(int, scene);
    QFETCH(QSize, size);
    QFETCH(QString, language);
    TestScreen screen(size);
    const std::unique_ptr<QWidget> shown = Scenes[scene].make();
    // The language changes while the screen is open.
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(OrbHost::instance()->setLanguage(language));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();

    const QPixmap picture = screen.grab();
    const QString folder = qEnvironmentVariable("ORB_SCREENSHOTS");
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        QVERIFY(picture.save(QDir(folder).filePath(QString("%1.png").arg(QTest::currentDataTag()))));
    }
    QVERIFY(screen.area()->rect().contains(shown->geometry()));
    int checked = 0;
    for (const QWidget *widget : shown->findChildren<QWidget *>()) {
        const bool hasText =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
        if (!hasText || !widget->isVisible()) {
            continue;
        }
        ++checked;
        QVERIFY2(fits(widget), qPrintable(widget->objectName() + ": " + widget->property("text").toString()));
    }
    QVERIFY(checked > 0 || qobject_cast<AirConditionDlg *>(shown.get()));
}

CANBUS_TEST_MAIN(TestLooks)
#include "tst_looks.moc"
