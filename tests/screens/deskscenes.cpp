#include "deskbench.h"
#include "scenes.h"

#include "bitgrid.h"
#include "boxcatalog.h"
#include "boxpage.h"
#include "carpicker.h"
#include "filterbar.h"
#include "inspectorview.h"
#include "linepage.h"
#include "linereplayer.h"
#include "sidepanel.h"
#include "terminalpair.h"
#include "virtualclock.h"

#include <QPushButton>
#include <QtTest>

namespace {

enum Type { Volkswagen = 3, XinHang = 4, Toyota = 9, Gm = 10, Jeep = 15 };
const QSize Laptop(1366, 768);

void drawDesk(const Scene::Shot &shot)
{
    DeskBench desk(Toyota);
    desk.drive({"doors.rear_left on", "radar.rear.2 3", "radar.rear.3 2", "steering.angle -200"});
    passTime(8000); // the climate goes away
    shot(desk.window());
}

/// The first \a count pages of the panel, one beside the other.
Scene panel(const char *name, const char *caption, int type, int count)
{
    return {name, caption, [=](const Scene::Shot &shot) {
                DeskBench desk(type);
                for (int i = 0; i < count; ++i) {
                    shot(desk.page(i));
                }
            }};
}

// A key of the wheel that comes up, and one that does not.
void drawKeyTester(const Scene::Shot &shot)
{
    DeskBench desk(Gm);
    QWidget *const page = desk.page(1);
    desk.box()->keys()->press("volume_up");
    passTime(700);
    desk.box()->keys()->release("volume_up");
    desk.box()->keys()->turn("volume_knob_up", 3);
    passTime(500);
    desk.box()->keys()->press("mute");
    passTime(12000);
    shot(page);
}

// Without a box at the other end: the line's times are those that a log has.
struct QuietLine
{
    QuietLine()
    {
        QString error;
        QVERIFY2(far.open(&error), qPrintable(error));
    }

    TerminalPair far;
};

const char *const Log = LOG_FOLDER "/toyota.orblog";

// Of a car that is well: the virtual box, the line and the unit.
void drawHealthyPages(const Scene::Shot &shot)
{
    {
        DeskBench desk(Toyota, DeskBench::SilentBox);
        desk.box()->holdTongue(0);
        desk.drive({"doors.front_left on"});
        shot(desk.page(2));
    }
    QuietLine line;
    DeskBench desk(Toyota, DeskBench::NoBox, UnitScreen::standardSize(), line.far.devicePath());
    desk.hear(Log, 4000);
    shot(desk.page(1));
    shot(desk.page(2));
}

void drawTrouble(const Scene::Shot &shot)
{
    {
        DeskBench desk(Toyota, DeskBench::SilentBox);
        desk.window()->sidePanel()->boxPage()->play("no/such.scn");
        desk.box()->unplug();
        passTime(6000);
        shot(desk.page(2));
    }
    std::unique_ptr<QuietLine> line(new QuietLine);
    DeskBench desk(Toyota, DeskBench::NoBox, UnitScreen::standardSize(), line->far.devicePath());
    desk.hear(Log, 4000);
    desk.removePort();
    line.reset();
    passTime(6000);
    shot(desk.page(1));
}

// All packages with one chosen, only what changed, and a filter that cannot be read.
void drawInspector(const Scene::Shot &shot)
{
    QuietLine line;
    DeskBench desk(Toyota, DeskBench::NoBox, UnitScreen::standardSize(), line.far.devicePath());
    desk.window()->sidePanel()->linePage()->openInspector();
    InspectorView *const inspector = desk.window()->findChild<InspectorView *>("inspectorWindow");
    inspector->resize(Laptop);
    desk.hear(Log, 6000);
    inspector->choosePackage(23);
    shot(inspector);
    for (const char *words : {"dir=in changed", "cmd=0x28 and"}) {
        inspector->filterBar()->setWords(words);
        passTime(500);
        shot(inspector);
    }
}

// A package that is tried out, and one that cannot be.
void drawBits(const Scene::Shot &shot)
{
    DeskBench desk(Toyota, DeskBench::SilentBox);
    BitGrid *const grid = new BitGrid(HEADUNIT, desk.window());
    QSignalSpy shown(grid, &BitGrid::shown);
    const VirtualClock::Hold hold;
    for (const char *frame : {"2e280580430a070024", "2e220400000000da"}) {
        grid->showPackage(Toyota, QByteArray::fromHex(frame));
        QVERIFY(shown.wait(60000));
        shot(grid);
    }
}

// A log goes to the unit in place of a box, and is paused.
void drawReplay(const Scene::Shot &shot)
{
    ReplayOptions options;
    options.log = LOG_FOLDER "/toyota.orblog";
    LineReplayer replayer(options, BoxCatalog::frameOf(Toyota));
    QString error;
    QVERIFY2(replayer.open(&error), qPrintable(error));
    DeskBench desk(Toyota, DeskBench::NoBox, UnitScreen::standardSize(), replayer.portPath());
    desk.window()->showReplay(&replayer);
    replayer.start();
    passTime(2500);
    shot(desk.page(1));
    replayer.pause();
    shot(desk.page(1));
}

void drawPicker(const Scene::Shot &shot)
{
    CarPicker picker(Toyota, {"/dev/ttyUSB0"});
    picker.show();
    shot(&picker);
}

} // namespace

QList<Scene> deskScenes()
{
    return {
        {"desk", "The desk: the unit, its keys, the panel of the virtual box, and the line in one line.",
         drawDesk},
        panel("panel-toyota", "The panel's pages of car and keys.", Toyota, 2),
        panel("panel-volkswagen", "Car and keys of a Volkswagen.", Volkswagen, 2),
        panel("panel-xinhang", "Of a car with a touch screen.", XinHang, 2),
        panel("panel-gm", "Of a car with knobs.", Gm, 2),
        panel("panel-jeep", "Of a car that has keys alone.", Jeep, 2),
        {"panel-keys", "The key tester: one key came up, one never did.", drawKeyTester},
        {"panel-box-line-unit", "The pages of box, line and unit.", drawHealthyPages},
        {"panel-trouble", "A scenario that is not there, and a line that was pulled out.", drawTrouble},
        {"panel-replay", "A log that is replayed, and paused.", drawReplay},
        {"inspector",
         "The inspector (F8): what passes over the line, and what came of it; only what changed; a filter "
         "that cannot "
         "be read.",
         drawInspector},
        {"bits", "What each bit of a package does, and a package that cannot be tried.", drawBits},
        {"picker", "Which car? Asked where nobody has said it.", drawPicker},
    };
}
