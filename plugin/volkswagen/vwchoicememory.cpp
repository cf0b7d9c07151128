#include "vwchoicememory.h"

#include "vwpagestate.h"

namespace Vw {
namespace {

QString keyOf(int item)
{
    return QString::fromLatin1("SetItem%1").arg(item);
}

} // namespace

ChoiceMemory::ChoiceMemory() : m_config(QLatin1String("carsetting.ini"), QLatin1String("Volkswagen")) {}

void ChoiceMemory::recall(PageState &state) const
{
    const QList<int> &items = unreportedItems();
    for (int i = 0; i < items.size(); ++i) {
        bool ok = false;
        const int value = m_config.value(keyOf(items.at(i))).toString().toInt(&ok);
        // A switch and a choice of two texts: no item has more values.
        if (ok && (value == 0 || value == 1)) {
            state.setValue(items.at(i), value);
        }
    }
}

void ChoiceMemory::keep(int item, int value)
{
    if (unreportedItems().contains(item)) {
        m_config.setValue(keyOf(item), value);
    }
}

void ChoiceMemory::forgetAfter(int action, PageState &state)
{
    const QList<int> &items = unreportedItems();
    for (int i = 0; i < items.size(); ++i) {
        const int item = items.at(i);
        if (isUndoneBy(item, action)) {
            state.forgetValue(item);
            if (m_config.contains(keyOf(item))) {
                m_config.setValue(keyOf(item), QString());
            }
        }
    }
}

} // namespace Vw
