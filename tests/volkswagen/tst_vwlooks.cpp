#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "volkswagen/figurelabel.h"
#include "volkswagen/volkswagenwindow.h"
#include "volkswagen/vwsettingstable.h"

#include "orbhost.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QTextLayout>

#include <memory>

/// Draws every screen of the Volkswagen on both screen sizes and in three languages, and checks that each
/// text has the room that it needs. With ORB_SCREENSHOTS=FOLDER the pictures are kept there.
class TestVwLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void textsFit_data();
    void textsFit();
    void cleanup();
};

namespace {

const int Driving = 0;
const int OptionDialog = 1;
const int NumberDialog = 2;
const int Question = 3;

const char *const Reports =
    "40 10 02 | 40 20 01 78 01 | 40 30 03 01 | 40 31 0f 32 01 | 40 40 07 53 86 | 40 50 71 32 0f 1e |"
    "40 51 07 1e 32 03 | 40 52 0a 14 03 64 | 40 60 1f | 40 70 21 1f 01 | 40 80 ff 03 | 40 90 32 21 |"
    "40 b0 03 | 40 a0 03 21 12 | 60 06 01 02 09 0d 15 19 01 | 61 02 00 e8 03 ff ff | 62 03 01 06 0d |"
    "63 00 57 56 57 5a 5a 5a 31 4b 5a 38 57 30 30 30 30 30 31 | 63 10 01 5a 00 | 63 11 02 96 00 |"
    "63 20 02 0a 00 | 63 21 11 32 00 | 63 22 01";

const struct Scene
{
    const char *name;
    int what; ///< a settings page, or one of the above
    const char *button;
    const char *packages;
} Scenes[] = {
    {"driving", Driving, "btnRange",
     "50 10 01 08 02 00 00 | 50 61 00 3e 00 00 00 | 50 20 01 10 27 00 00 |"
     "50 30 00 4b 00 00 00 | 50 40 00 a4 01 00 00 | 50 50 5f 00 00 00 00"},
    {"driving-largest", Driving, "btnRight",
     "50 10 01 ff ff 00 00 | 50 61 03 ff ff 00 00 | 50 21 00 ff ff ff ff |"
     "50 31 02 ff ff 00 00 | 50 41 01 ff ff 00 00 | 50 51 ff ff 00 00 00"},
    {"tyre-states", Driving, "btnTPMS", "68 00 00 | 65 00 01 02 00"},
    {"tyre-warning", Driving, "btnTPMS", "65 00 01 02 00 | 68 02 02"},
    {"tyre-both", Driving, "btnTPMS", "68 09 04 | 65 01 00 00 01"},
    {"page-car-setting", 782, "", Reports},
    {"page-tyres", 771, "", Reports},
    {"page-assistance", 773, "", Reports},
    {"page-parking", 774, "", Reports},
    {"page-light", 775, "", Reports},
    {"page-mirrors", 776, "", Reports},
    {"page-opening", 777, "", Reports},
    {"page-display", 778, "", Reports},
    {"page-service", 779, "", Reports},
    {"page-units", 780, "", Reports},
    {"page-factory", 781, "", Reports},
    {"page-start-stop", 783, "", Reports},
    {"page-reports", 784, "", Reports},
    {"page-profile", 785, "", Reports},
    {"page-consumers", 786, "", Reports},
    {"page-nothing-reported", 784, "", "61 00 00"},
    {"dialog-driving-modes", OptionDialog, "", ""},
    {"dialog-slider", NumberDialog, "", ""},
    {"dialog-question", Question, "", ""},
};

std::unique_ptr<QWidget> dialog(int what)
{
    std::unique_ptr<SelectDialog> dialog(new SelectDialog);
    dialog->setWindowTitle(what == Question ? VWFunctionSetting::tr("Factory settings")
                                            : Vw::text("Driving mode"));
    if (what == OptionDialog) {
        QStringList options;
        for (const QString &option : VwMenu::rowsOf(785).last().options()) {
            options << Vw::text(qPrintable(option));
        }
        dialog->setCheckBoxListMode(options, options.last(), true);
    } else if (what == NumberDialog) {
        dialog->setSliderMode(30, 240, 10, 120, " km/h");
    } else {
        const QString page = Vw::text("Parking and manoeuvring");
        dialog->setContentText(VWFunctionSetting::tr("Are you sure restore") + ' ' + page + ' ' +
                               VWFunctionSetting::tr("settings") + " ?");
    }
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> show(const Scene &scene, CanBus_Raise_Volkswagen &adapter)
{
    if (scene.what != Driving && scene.what <= Question) {
        return dialog(scene.what);
    }
    std::unique_ptr<QWidget> window;
    if (scene.what == Driving) {
        window.reset(new VolkswagenWindow(&adapter));
    } else {
        window.reset(new VWFunctionSetting(unsigned(scene.what), &adapter));
    }
    window->show();
    VwBench::click(*window, scene.button);
    VwBench::feed(adapter, scene.packages);
    return window;
}

/// The text's size where it is drawn, wrapped to the label's width where it wraps.
QSize textSize(const QLabel *label)
{
    const int flags = label->wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRect room(0, 0, label->contentsRect().width(), 10000);
    return label->fontMetrics().boundingRect(room, flags, label->text()).size();
}

bool fits(const QWidget *widget)
{
    if (!widget->parentWidget()->rect().contains(widget->geometry())) {
        return false;
    }
    if (const FigureLabel *figure = qobject_cast<const FigureLabel *>(widget)) {
        return figure->contentsRect().width() >= figure->minimumSizeHint().width();
    }
    if (const QLabel *label = qobject_cast<const QLabel *>(widget)) {
        const QSize size = textSize(label);
        return size.width() <= label->contentsRect().width() &&
               size.height() <= label->contentsRect().height();
    }
    const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget);
    return button->size().expandedTo(button->sizeHint()) == button->size() && button->height() >= 60;
}

/// Whether a cell's text fits on the two lines that the list draws; \a taken: pixels of the cell for icon,
/// mark and borders.
bool fitsCell(const QString &text, int width, int taken)
{
    QFont font = qApp->font();
    font.setPixelSize(22);
    QTextLayout layout(text, font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    int lines = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++lines) {
        line.setLineWidth(width - taken);
    }
    layout.endLayout();
    return lines <= 2;
}

QString clippedRow(const VWFunctionSetting &page)
{
    const TableListView *list = VwBench::listOf(page);
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const TableViewItemDatas datas = VwBench::modelOf(page)->itemDatas(row);
        const QString value = datas.isSwitch() ? QString() : datas.value(2).toString();
        if (!fitsCell(datas.text(), list->columnWidth(0), 80) || !fitsCell(value, list->columnWidth(2), 60)) {
            return datas.text() + ": " + value;
        }
        if (!datas.isHeading() && QPixmap(datas.icon()).isNull()) {
            return datas.text() + ": no icon";
        }
        if (!datas.mark().isEmpty() && QPixmap(datas.mark()).isNull()) {
            return datas.text() + ": no mark";
        }
    }
    return QString();
}

} // namespace

void TestVwLooks::initTestCase()
{
    TestSupport::watchConnects();
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
}

void TestVwLooks::cleanup()
{
    OrbHost::instance()->setLanguage("en");
}

void TestVwLooks::textsFit_data()
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

void TestVwLooks::textsFit()
{
    QFETCH(int, scene);
    QFETCH(QSize, size);
    QFETCH(QString, language);
    TestScreen screen(size);
    CanBus_Raise_Volkswagen adapter;
    QVERIFY(OrbHost::instance()->setLanguage(language));
    const std::unique_ptr<QWidget> shown = show(Scenes[scene], adapter);
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
    QVERIFY(checked > 0);
    if (const VWFunctionSetting *page = qobject_cast<const VWFunctionSetting *>(shown.get())) {
        QCOMPARE(clippedRow(*page), QString());
    }
}

CANBUS_TEST_MAIN(TestVwLooks)
#include "tst_vwlooks.moc"
