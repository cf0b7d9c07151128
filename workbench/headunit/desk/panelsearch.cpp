#include "panelsearch.h"

#include "panelcard.h"

#include <QVariant>

#include <algorithm>

namespace {

const char *const NameProperty = "panelSearchName";

bool isFound(const QWidget *control, const QStringList &words)
{
    const QString name = control->property(NameProperty).toString();
    return std::all_of(words.begin(), words.end(),
                       [&name](const QString &word) { return name.contains(word, Qt::CaseInsensitive); });
}

} // namespace

void PanelSearch::name(QWidget *control, const QString &text)
{
    control->setProperty(NameProperty, text);
}

bool PanelSearch::isSearchable(const QWidget *page)
{
    const QList<QWidget *> controls = page->findChildren<QWidget *>();
    return std::any_of(controls.begin(), controls.end(),
                       [](const QWidget *control) { return control->property(NameProperty).isValid(); });
}

void PanelSearch::find(QWidget *page, const QString &words)
{
    const QStringList wanted = words.simplified().split(QLatin1Char(' '));
    for (PanelCard *card : page->findChildren<PanelCard *>()) {
        bool isAnyFound = false;
        for (QWidget *control : card->findChildren<QWidget *>()) {
            if (control->property(NameProperty).isValid()) {
                control->setVisible(isFound(control, wanted));
                isAnyFound = isAnyFound || !control->isHidden();
            }
        }
        card->setVisible(isAnyFound || words.trimmed().isEmpty());
    }
}
