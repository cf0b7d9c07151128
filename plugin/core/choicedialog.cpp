#include "choicedialog.h"

// The one place that knows the class: a maker's SDK may name it otherwise.
#include "orbchoicedialog.h"

int ChoiceDialog::choose(const QString &title, const QStringList &texts, int current)
{
    return OrbChoiceDialog::choose(title, texts, current);
}
