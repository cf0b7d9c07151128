#ifndef CARBENCH_H
#define CARBENCH_H

#include "adapterfixture.h"
#include "carsheet.h"

#include "adapterfactory.h"

#include <QTimer>

#include <memory>

/// The car that the rows of a table share: built at the first row that asks for it, in place of the one
/// before.
class CarBench
{
public:
    CanBusAdapter *use(CanBusType type)
    {
        if (m_car && m_type == type) {
            return m_car;
        }
        reset();
        m_type = type;
        m_fixture.reset(new AdapterFixture);
        m_car = m_fixture->take(AdapterFactory::create(type));
        m_fixture->open();
        m_fixture->settle();
        // What a car repeats by itself must not show up between a row's calls.
        for (QTimer *timer : m_car->findChildren<QTimer *>()) {
            if (isPeriodic(timer)) {
                timer->stop();
            }
        }
        return m_car;
    }
    template <class Car>
    Car *use(CanBusType type)
    {
        return static_cast<Car *>(use(type));
    }

    /// A car's own timer, not one of the framer's.
    static bool isPeriodic(const QTimer *timer)
    {
        return timer->interval() == 200 || timer->interval() == 500 || timer->interval() >= 10000;
    }

    /// Lets go of the car, for a table that needs a fresh one.
    void reset()
    {
        m_car = nullptr;
        m_fixture.reset();
    }

    AdapterFixture &fixture() { return *m_fixture; }

private:
    std::unique_ptr<AdapterFixture> m_fixture;
    CanBusAdapter *m_car = nullptr;
    CanBusType m_type = CanBusTypeNone;
};

/// First line of a table's function: a table that says nothing of the car that is tested has no rows.
#define SKIP_WITHOUT_ROWS()                                                                                  \
    if (!QTest::currentDataTag()) {                                                                          \
        QSKIP("nothing of this car");                                                                        \
    }

#endif // CARBENCH_H
