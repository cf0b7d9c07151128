#ifndef CARBENCH_H
#define CARBENCH_H

#include "adapterfixture.h"

#include "raise/raiseadapter.h"

#include <QTimer>

#include <memory>

/// The car that the rows of a table share: built at the first row that asks for it, in place of the one
/// before.
class CarBench
{
public:
    template <class Car>
    Car *use()
    {
        Car *const same = dynamic_cast<Car *>(m_car);
        if (same) {
            return same;
        }
        m_fixture.reset();
        m_fixture.reset(new AdapterFixture);
        Car *const car = m_fixture->construct<Car>();
        m_car = car;
        m_fixture->open();
        m_fixture->settle();
        // What a car repeats by itself must not show up between a row's calls.
        for (QTimer *timer : car->template findChildren<QTimer *>()) {
            if (timer->interval() == 200 || timer->interval() >= 10000) {
                timer->stop();
            }
        }
        return car;
    }

    /// The car by its class name: "CanBus_Raise_Toyota".
    RaiseAdapter *useByName(const QString &name);

    /// Lets go of the car, for a table that needs a fresh one.
    void reset()
    {
        m_car = nullptr;
        m_fixture.reset();
    }

    AdapterFixture &fixture() { return *m_fixture; }

private:
    std::unique_ptr<AdapterFixture> m_fixture;
    RaiseAdapter *m_car = nullptr;
};

#endif // CARBENCH_H
