#include "exactfield.h"

#include "simulatedcar.h"

#include <QKeyEvent>
#include <QTimer>
#include <QToolTip>

namespace {

bool isNumber(const CarProperty &property)
{
    return property.kind == CarProperty::Integer || property.kind == CarProperty::Real ||
           property.kind == CarProperty::Temperature;
}

} // namespace

ExactField::ExactField(const CarProperty &property, SimulatedCar *car, QWidget *parent)
    : QLineEdit(parent), m_property(property), m_car(car)
{
    connect(this, &QLineEdit::editingFinished, this, &ExactField::takeText);
    connect(car, &SimulatedCar::changed, this, [this](const QString &name) {
        if (name == m_property.name) {
            showValue();
        }
    });
    showValue();
}

void ExactField::showValue()
{
    const bool hasUnit = !m_property.unit.isEmpty() && m_car->value(m_property.name).toString() != "LO" &&
                         m_car->value(m_property.name).toString() != "HI";
    const QString text = m_car->text(m_property.name);
    setText(hasUnit ? text + QLatin1Char(' ') + m_property.unit : text);
    setModified(false);
}

// A number may be typed with its unit, and with a comma.
void ExactField::takeText()
{
    if (!isModified()) {
        return;
    }
    QString typed = text().trimmed();
    if (isNumber(m_property)) {
        if (!m_property.unit.isEmpty() && typed.endsWith(m_property.unit)) {
            typed.chop(m_property.unit.size());
        }
        typed = typed.trimmed().toUpper().replace(QLatin1Char(','), QLatin1Char('.'));
    }
    QString error;
    const bool isTaken = m_car->setValue(m_property.name, typed, &error);
    showValue();
    setToolTip(error);
    if (!isTaken && isVisible()) {
        QToolTip::showText(mapToGlobal(QPoint(0, height())), error, this);
    }
}

void ExactField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    QTimer::singleShot(0, this, &QLineEdit::selectAll); // after the click that has brought the focus
}

void ExactField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        showValue();
        clearFocus();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
