#ifndef SCENES_H
#define SCENES_H

#include "screenbench.h"

#include <QList>

/// The rows of the table of screens, by whose screens they are.
QList<Scene> frameworkScenes();
QList<Scene> climateScenes();
QList<Scene> volkswagenScenes();
QList<Scene> xinhangScenes();
QList<Scene> unitScenes();
/// In the desk's own size.
QList<Scene> deskScenes();

#endif // SCENES_H
