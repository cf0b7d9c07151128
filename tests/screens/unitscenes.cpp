#include "deskbench.h"
#include "scenes.h"

#include "orbhost.h"
#include "unitshell.h"

#include <QtTest>

namespace {

const int Toyota = 9;
const int Mazda = 5; // a car without a climate that lies over the page

/// The unit's own page, on a screen as large as the bench's: of a car that says nothing, of one that is parked, of one
/// that reverses with open doors, and after its line was lost.
void drawHome(const Scene::Shot &shot)
{
    DeskBench desk(Mazda, DeskBench::SilentBox, OrbHost::instance()->screen()->size());
    shot(desk.window()->screen());
    desk.box()->holdTongue(0);
    desk.drive({"doors.front_left on", "doors.front_left off"});
    shot(desk.window()->screen());
    desk.drive({"doors.front_left on", "doors.rear_left on", "radar.front.1 6", "radar.front.3 4",
                "radar.rear.2 2", "radar.rear.3 1", "steering.angle -300"});
    desk.window()->shell()->useKey(Qt::Key_VolumeUp, 1);
    desk.window()->shell()->useKey(Qt::Key_VolumeUp, 0);
    shot(desk.window()->screen());
    desk.box()->unplug();
    passTime(2000);
    shot(desk.window()->screen());
}

// A car whose cameras have a page; its box has said so.
void drawCameras(const Scene::Shot &shot)
{
    DeskBench desk(Toyota, DeskBench::TalkingBox, OrbHost::instance()->screen()->size());
    passTime(8000); // the climate goes away
    desk.drive({"camera.view360 on"});
    shot(desk.window()->screen());
}

} // namespace

QList<Scene> unitScenes()
{
    return {{"home",
             "The unit's own page: nothing is known yet; all is shut; doors are open and something is close "
             "behind, "
             "after a key was pressed; the line was lost.",
             drawHome},
            {"cameras", "The page of a car's cameras, while they show the surroundings.", drawCameras}};
}
