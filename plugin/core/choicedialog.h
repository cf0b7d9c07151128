#ifndef CHOICEDIALOG_H
#define CHOICEDIALOG_H

#include <QPointer>
#include <QStringList>

class QDialog;

namespace ChoiceDialog {

/// Asks the user in the framework's choice dialog: \a title, the texts to choose from, and the index of the present
/// one (outside the list: none). Returns the chosen index, -1 when the user cancelled. Runs an event loop of its
/// own, in which packages and keys go on; \a open, which is written before and not touched after, gives the dialog.
int choose(const QString &title, const QStringList &texts, int current, QPointer<QDialog> *open);

} // namespace ChoiceDialog

#endif // CHOICEDIALOG_H
