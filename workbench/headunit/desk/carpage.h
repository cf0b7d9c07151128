#ifndef CARPAGE_H
#define CARPAGE_H

#include <QWidget>

class QVBoxLayout;
class SimulatedCar;
struct CarProperty;

/// Every property of the simulated car that its box knows, in groups.
class CarPage : public QWidget
{
    Q_OBJECT

public:
    /// \a names: properties in the order to show them; unknown ones are left out. \a car is not owned and
    /// must outlive the page.
    CarPage(SimulatedCar *car, const QStringList &names, QWidget *parent = nullptr);

private:
    void addGroup(const QString &group, const QVector<const CarProperty *> &properties);
    int addAlike(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from);
    static QString sensorName(int number, int count);
    int addSwitches(QVBoxLayout *rows, const QVector<const CarProperty *> &properties, int from);

    SimulatedCar *m_car;
};

#endif // CARPAGE_H
