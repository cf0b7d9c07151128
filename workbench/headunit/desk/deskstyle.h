#ifndef DESKSTYLE_H
#define DESKSTYLE_H

#include <QString>

/// What every window of the desk needs before it is built.
namespace DeskStyle {

/// Makes the desk's pictures and texts available; again does nothing.
void load();

/// The desk's style sheet.
QString sheet();

} // namespace DeskStyle

#endif // DESKSTYLE_H
