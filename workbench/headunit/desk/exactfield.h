#ifndef EXACTFIELD_H
#define EXACTFIELD_H

#include <QLineEdit>

class SimulatedCar;
struct CarProperty;

/// The value of a property as a text, to be read and to be typed. What the property does not take is refused:
/// the field shows the car's value again and says why.
class ExactField : public QLineEdit
{
    Q_OBJECT

public:
    /// \a car is not owned and must outlive the field.
    ExactField(const CarProperty &property, SimulatedCar *car, QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showValue();
    void takeText();

    const CarProperty &m_property;
    SimulatedCar *m_car;
};

#endif // EXACTFIELD_H
