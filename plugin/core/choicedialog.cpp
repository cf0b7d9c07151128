#include "choicedialog.h"

// The one place that knows the class: a maker's SDK may name it otherwise.
#include "orbchoicedialog.h"

int ChoiceDialog::choose(const QString &title, const QStringList &texts, int current, QPointer<QDialog> *open)
{
    const QPointer<OrbChoiceDialog> dialog(new OrbChoiceDialog(title, texts, current));
    *open = dialog.data();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    // Whoever asked may be gone, and the dialog with the unit's screen.
    const int chosen = dialog && accepted ? dialog->chosenIndex() : -1;
    delete dialog;
    return chosen;
}
