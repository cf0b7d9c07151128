#ifndef ORBSKIN_H
#define ORBSKIN_H

class QApplication;

/// Gives \a application the unit's looks: dark palette, font and style sheet. Called once, at start.
void applyOrbSkin(QApplication &application);

#endif // ORBSKIN_H
