#ifndef DESKSTYLE_H
#define DESKSTYLE_H

#include <QString>

class QLineEdit;
class QTableView;

/// What every window of the desk needs before it is built.
namespace DeskStyle {

/// Makes the desk's pictures and texts available; again does nothing.
void load();

/// The desk's style sheet.
QString sheet();

/// Shows what \a field says while it is empty as a hint, not as something that was typed.
void dimHint(QLineEdit *field);

/// Makes \a table one of rows that are chosen as a whole, \a rowHeight pixels high and without a grid.
void makeDense(QTableView *table, int rowHeight);

} // namespace DeskStyle

#endif // DESKSTYLE_H
