#include "carpage.h"

#include "carwords.h"
#include "panelcard.h"
#include "propertyeditors.h"
#include "simulatedcar.h"

#include <QGridLayout>
#include <QLabel>

namespace {

const int Gap = 8;

/// "radar.front" of "radar.front.2"; empty for a name that does not end in a number.
QString family(const CarProperty &property)
{
    const int point = property.name.lastIndexOf(QLatin1Char('.'));
    bool isNumber = false;
    property.name.mid(point + 1).toInt(&isNumber);
    return isNumber && property.kind == CarProperty::Integer ? property.name.left(point) : QString();
}

} // namespace

CarPage::CarPage(SimulatedCar *car, const QStringList &names, QWidget *parent) : QWidget(parent), m_car(car)
{
    setObjectName(QStringLiteral("sidePage"));
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(Gap);
    QStringList groups;
    QHash<QString, QVector<const CarProperty *>> byGroup;
    for (const QString &name : names) {
        if (const CarProperty *property = CarProperty::find(name)) {
            const QString group = property->group();
            if (!groups.contains(group)) {
                groups << group;
            }
            byGroup[group] << property;
        }
    }
    for (const QString &group : groups) {
        addGroup(group, byGroup.value(group));
    }
    page->addStretch();
}

void CarPage::addGroup(const QString &group, const QVector<const CarProperty *> &properties)
{
    PanelCard *card = new PanelCard(CarWords::groupText(group));
    layout()->addWidget(card);
    int i = 0;
    while (i < properties.size()) {
        const CarProperty &property = *properties.at(i);
        if (!family(property).isEmpty()) {
            i = addAlike(card->rows(), properties, i);
        } else if (property.kind == CarProperty::Switch) {
            i = addSwitches(card->rows(), properties, i);
        } else {
            card->rows()->addWidget(PropertyEditors::create(property, m_car));
            ++i;
        }
    }
}

int CarPage::addAlike(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from)
{
    const QString name = family(*properties.at(from));
    QHBoxLayout *row = new QHBoxLayout;
    int i = from;
    for (; i < properties.size() && family(*properties.at(i)) == name; ++i) {
        row->addWidget(PropertyEditors::createUpright(*properties.at(i), m_car));
    }
    rows->addLayout(row);
    return i;
}

int CarPage::addSwitches(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from)
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(Gap);
    int i = from;
    for (; i < properties.size() && properties.at(i)->kind == CarProperty::Switch; ++i) {
        const int place = i - from;
        grid->addWidget(PropertyEditors::create(*properties.at(i), m_car), place / 2, place % 2);
    }
    rows->addLayout(grid);
    return i;
}
