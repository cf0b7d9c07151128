#include "carpage.h"

#include "carwords.h"
#include "panelcard.h"
#include "panelsearch.h"
#include "propertyeditors.h"
#include "simulatedcar.h"

#include <QGridLayout>
#include <QLabel>

namespace {

const int Gap = 8;
const int WidestOfTwo = 170; // pixels that each of two buttons side by side has

/// "radar.front" of "radar.front.2"; empty for a name that does not end in a number.
QString family(const CarProperty &property)
{
    const int point = property.name.lastIndexOf(QLatin1Char('.'));
    bool isNumber = false;
    property.name.mid(point + 1).toInt(&isNumber);
    return isNumber && property.kind == CarProperty::Integer ? property.name.left(point) : QString();
}

QString searchName(const CarProperty &property)
{
    return CarWords::groupText(property.group()) + QLatin1Char(' ') + CarWords::propertyText(property.name) +
           QLatin1Char(' ') + property.name;
}

QWidget *named(QWidget *control, const CarProperty &property)
{
    PanelSearch::name(control, searchName(property));
    return control;
}

} // namespace

// The sensors of one end of the car, from left to right.
QString CarPage::sensorName(int number, int count)
{
    static const char *const names[] = {QT_TR_NOOP("Left"), QT_TR_NOOP("Mid left"), QT_TR_NOOP("Mid right"),
                                        QT_TR_NOOP("Right")};
    return count == 4 ? tr(names[number]) : QString::number(number + 1);
}

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
            card->rows()->addWidget(named(PropertyEditors::create(property, m_car), property));
            ++i;
        }
    }
}

int CarPage::addAlike(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from)
{
    const QString name = family(*properties.at(from));
    QHBoxLayout *row = new QHBoxLayout;
    int end = from;
    while (end < properties.size() && family(*properties.at(end)) == name) {
        ++end;
    }
    for (int i = from; i < end; ++i) {
        const CarProperty &property = *properties.at(i);
        const QString title = sensorName(i - from, end - from);
        row->addWidget(named(PropertyEditors::createUpright(property, title, m_car), property), 1);
    }
    rows->addLayout(row);
    return end;
}

int CarPage::addSwitches(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from)
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(Gap);
    int i = from;
    int place = 0;
    for (; i < properties.size() && properties.at(i)->kind == CarProperty::Switch; ++i) {
        const CarProperty &property = *properties.at(i);
        QWidget *const button = named(PropertyEditors::create(property, m_car), property);
        const int cells = button->minimumWidth() > WidestOfTwo ? 2 : 1;
        place += cells == 2 ? place % 2 : 0;
        grid->addWidget(button, place / 2, place % 2, 1, cells);
        place += cells;
    }
    rows->addLayout(grid);
    return i;
}
