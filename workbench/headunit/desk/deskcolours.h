#ifndef DESKCOLOURS_H
#define DESKCOLOURS_H

#include <QColor>

/// The colours of everything that the desk paints by itself; desk.qss has the same ones for widgets.
namespace DeskColours {

const QColor Ground(0x0E, 0x11, 0x16);
const QColor Panel(0x17, 0x1C, 0x24);
const QColor Edge(0x2A, 0x32, 0x3D);
const QColor Text(0xF2, 0xF5, 0xF8);
const QColor Dim(0x8A, 0x94, 0xA3);
const QColor Accent(0x2E, 0xA8, 0xFF);
const QColor Warning(0xFF, 0xB0, 0x20);
const QColor Error(0xFF, 0x5A, 0x52);
const QColor Good(0x3B, 0xC4, 0x6B);

} // namespace DeskColours

#endif // DESKCOLOURS_H
