#include "propertyeditors.h"

#include "carwords.h"
#include "exactfield.h"
#include "panelcard.h"
#include "quietslider.h"
#include "simulatedcar.h"
#include "steeringwheel.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

// The most choices that stand side by side; more fold into a list.
const int ChipFont = 14; // pixels, both as in desk.qss
const int ChipPadding = 6;
const int MostButtons = 4;
const int RowWidth = 348; // pixels of a row of the panel
const int Gap = 8;

/// Calls \a show now and whenever \a name changes, as long as \a control lives.
template <typename Show>
void follow(SimulatedCar *car, const QString &name, QWidget *control, Show show)
{
    QObject::connect(car, &SimulatedCar::changed, control, [name, show](const QString &changed) {
        if (changed == name) {
            show();
        }
    });
    show();
}

QLabel *label(const QString &text, const char *objectName)
{
    QLabel *result = new QLabel(text);
    result->setObjectName(QLatin1String(objectName));
    return result;
}

QWidget *exactField(const CarProperty &property, SimulatedCar *car)
{
    ExactField *field = new ExactField(property, car);
    field->setObjectName(QStringLiteral("exactValue"));
    field->setAlignment(Qt::AlignRight);
    return field;
}

int chipWidth(const QString &text)
{
    QFont down(QApplication::font());
    down.setPixelSize(ChipFont);
    down.setBold(true);
    return QFontMetrics(down).horizontalAdvance(text) + 2 * ChipPadding;
}

/// A button that stays down, as wide at least as its text when it is down, which is bold then.
QPushButton *chip(const QString &text)
{
    QPushButton *button = PanelCard::chip(text);
    button->setCheckable(true);
    button->setMinimumWidth(chipWidth(text));
    return button;
}

QWidget *titled(const CarProperty &property, QWidget *value, QWidget *control)
{
    QWidget *result = new QWidget;
    QVBoxLayout *rows = new QVBoxLayout(result);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(4);
    QHBoxLayout *head = new QHBoxLayout;
    head->addWidget(label(CarWords::propertyText(property.name), "controlName"));
    head->addStretch();
    if (value) {
        head->addWidget(value);
    }
    rows->addLayout(head);
    rows->addWidget(control);
    return result;
}

QWidget *createSwitch(const CarProperty &property, SimulatedCar *car)
{
    QPushButton *button = chip(CarWords::propertyText(property.name));
    const QString name = property.name;
    QObject::connect(button, &QPushButton::clicked, car, [car, name](bool on) { car->setValue(name, on); });
    follow(car, name, button, [=] { button->setChecked(car->flag(name)); });
    return button;
}

/// Any property whose values lie on a scale: \a count positions, \a valueAt gives the value of each and
/// \a position the one of the car's present value.
template <typename ValueAt, typename Position>
QWidget *createScale(const CarProperty &property, SimulatedCar *car, int count, ValueAt valueAt,
                     Position position)
{
    QuietSlider *slider = new QuietSlider(Qt::Horizontal);
    slider->setRange(0, count - 1);
    const QString name = property.name;
    QObject::connect(slider, &QSlider::valueChanged, car,
                     [=](int place) { car->setValue(name, valueAt(place)); });
    follow(car, name, slider, [=] {
        slider->blockSignals(true);
        slider->setValue(position());
        slider->blockSignals(false);
    });
    return titled(property, exactField(property, car), slider);
}

QWidget *createNumber(const CarProperty &property, SimulatedCar *car)
{
    const double step = property.step > 0 ? property.step : 1;
    const double least = property.minimum;
    const bool isWhole = property.kind == CarProperty::Integer;
    const QString name = property.name;
    return createScale(
        property, car, qRound((property.maximum - least) / step) + 1,
        [=](int place) {
            return isWhole ? QVariant(qRound(least + place * step)) : QVariant(least + place * step);
        },
        [=] { return qRound((car->value(name).toDouble() - least) / step); });
}

/// The scale of degrees has LO before its beginning and HI behind its end.
QWidget *createTemperature(const CarProperty &property, SimulatedCar *car)
{
    const int degrees = qRound((property.maximum - property.minimum) / property.step) + 1;
    const double least = property.minimum;
    const double step = property.step;
    const QString name = property.name;
    return createScale(
        property, car, degrees + 2,
        [=](int place) {
            return place == 0             ? QVariant(QStringLiteral("LO"))
                   : place == degrees + 1 ? QVariant(QStringLiteral("HI"))
                                          : QVariant(least + (place - 1) * step);
        },
        [=] {
            const ClimateTemperature chosen = car->temperature(name);
            return chosen.kind == ClimateTemperature::Low    ? 0
                   : chosen.kind == ClimateTemperature::High ? degrees + 1
                                                             : qRound((chosen.celsius - least) / step) + 1;
        });
}

/// Whether its choices fit side by side.
bool fitsButtons(const CarProperty &property)
{
    int width = 0;
    for (const QString &choice : property.choices) {
        width += chipWidth(CarWords::text(choice)) + Gap;
    }
    return property.choices.size() <= MostButtons && width - Gap <= RowWidth;
}

QWidget *createButtons(const CarProperty &property, SimulatedCar *car)
{
    QWidget *row = new QWidget;
    QHBoxLayout *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    QButtonGroup *group = new QButtonGroup(row);
    const QString name = property.name;
    for (int i = 0; i < property.choices.size(); ++i) {
        QPushButton *button = chip(CarWords::text(property.choices.at(i)));
        group->addButton(button, i);
        layout->addWidget(button);
        const QString choice = property.choices.at(i);
        QObject::connect(button, &QPushButton::clicked, car, [=] { car->setValue(name, choice); });
    }
    follow(car, name, row, [=] { group->button(car->choice(name))->setChecked(true); });
    return titled(property, nullptr, row);
}

QWidget *createList(const CarProperty &property, SimulatedCar *car)
{
    QComboBox *box = new QuietComboBox;
    for (const QString &choice : property.choices) {
        box->addItem(CarWords::text(choice), choice);
    }
    const QString name = property.name;
    QObject::connect(box, QOverload<int>::of(&QComboBox::activated), car,
                     [=](int index) { car->setValue(name, box->itemData(index)); });
    follow(car, name, box, [=] { box->setCurrentIndex(car->choice(name)); });
    return titled(property, nullptr, box);
}

QWidget *createText(const CarProperty &property, SimulatedCar *car)
{
    return titled(property, nullptr, new ExactField(property, car));
}

QWidget *createWheel(const CarProperty &property, SimulatedCar *car)
{
    SteeringWheel *wheel = new SteeringWheel(int(property.maximum), int(property.step));
    const QString name = property.name;
    QObject::connect(wheel, &SteeringWheel::turned, car, [=](int angle) { car->setValue(name, angle); });
    follow(car, name, wheel, [=] { wheel->setAngle(car->number(name)); });
    return titled(property, exactField(property, car), wheel);
}

} // namespace

QWidget *PropertyEditors::create(const CarProperty &property, SimulatedCar *car)
{
    if (property.name == QLatin1String("steering.angle")) {
        return createWheel(property, car);
    }
    switch (property.kind) {
    case CarProperty::Switch:
        return createSwitch(property, car);
    case CarProperty::Integer:
    case CarProperty::Real:
        return createNumber(property, car);
    case CarProperty::Temperature:
        return createTemperature(property, car);
    case CarProperty::Choice:
        return fitsButtons(property) ? createButtons(property, car) : createList(property, car);
    case CarProperty::Text:
    case CarProperty::NumberList:
        break;
    }
    return createText(property, car);
}

QWidget *PropertyEditors::createUpright(const CarProperty &property, const QString &title, SimulatedCar *car)
{
    QuietSlider *slider = new QuietSlider(Qt::Vertical);
    slider->setRange(int(property.minimum), int(property.maximum));
    const QString name = property.name;
    QObject::connect(slider, &QSlider::valueChanged, car, [=](int level) { car->setValue(name, level); });
    follow(car, name, slider, [=] {
        slider->blockSignals(true);
        slider->setValue(car->number(name));
        slider->blockSignals(false);
    });
    ExactField *field = new ExactField(property, car);
    field->setObjectName(QStringLiteral("exactValue"));
    field->setAlignment(Qt::AlignCenter);
    QLabel *below = label(title, "controlName");
    below->setAlignment(Qt::AlignCenter);
    below->setWordWrap(true);
    QWidget *result = new QWidget;
    QVBoxLayout *layout = new QVBoxLayout(result);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 0, Qt::AlignHCenter);
    layout->addWidget(field);
    layout->addWidget(below, 0, Qt::AlignTop);
    return result;
}
