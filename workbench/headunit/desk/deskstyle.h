#ifndef DESKSTYLE_H
#define DESKSTYLE_H

#include <QString>

class QLineEdit;

/// What every window of the desk needs before it is built.
namespace DeskStyle {

/// Makes the desk's pictures and texts available; again does nothing.
void load();

/// The desk's style sheet.
QString sheet();

/// Shows what \a field says while it is empty as a hint, not as something that was typed.
void dimHint(QLineEdit *field);

} // namespace DeskStyle

#endif // DESKSTYLE_H
