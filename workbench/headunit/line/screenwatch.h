#ifndef SCREENWATCH_H
#define SCREENWATCH_H

#include <QByteArray>

class HeadUnit;

/// What the plug-in's windows show, also on pages that are not in front: for those packages that a plug-in
/// explains by no call of the framework.
namespace ScreenWatch {

/// Opens the window of every application that the plug-in has announced.
void openWindows(HeadUnit *unit);

/// A digest of all texts, states, styles, pictures and list rows in the plug-in's windows.
QByteArray fingerprint();

} // namespace ScreenWatch

#endif // SCREENWATCH_H
