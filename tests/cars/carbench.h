#ifndef CARBENCH_H
#define CARBENCH_H

#include "adapterfixture.h"

#include "adapterfactory.h"

#include <memory>

/// One car under the orders of its sheet, sheets/CAR.txt: what every package makes the unit do, and what the
/// unit says. A sheet's orders:
///
///     start                   a new adapter; the line, what it sends in 25 ms and 150 ms more, its timers
///     still                   a new adapter that repeats nothing by itself, for the orders below
///     20 01 01 | 20 01 00     packages over the line, and all that the unit then calls
///     each 20 ?? 01           a package with every byte for "??"; bytes that do nothing are left out
///     each 28 ?? 00: setFan   of that only the calls of one name
///     wait MS                 what the unit sends meanwhile
///     minute                  waits until the minute changes
///     modes                   the unit's application modes 0 to 19, and one that is none
///     write ITEM VALUE, sync TYPE PARAM    a setting is changed, data asked for (hexadecimal)
///     call SLOT               a slot of the adapter
///     tag ID [VALUE], product NAME [VALUE] values of the unit: hexadecimal, "a text", or none
///     current                 the key of the wheel that was reported last
class CarBench
{
public:
    explicit CarBench(CanBusType type) : m_type(type) {}

    QStringList act(const QString &order);

    /// The adapter; a still one when none has been started.
    CanBusAdapter *car();
    template <class Car>
    Car *car()
    {
        return static_cast<Car *>(car());
    }
    AdapterFixture &fixture() { return *m_fixture; }

    /// "sends COMMAND DATA" of each package that the unit has queued since the last call; of a car's clock without
    /// the time, which nobody can foretell.
    QStringList sent();

private:
    QStringList start();
    QStringList each(const QString &order);
    QStringList modes();

    CanBusType m_type;
    std::unique_ptr<AdapterFixture> m_fixture;
    CanBusAdapter *m_car = nullptr;
};

/// First line of a table's function: a table that says nothing of the car that is tested has no rows.
#define SKIP_WITHOUT_ROWS()                                                                                  \
    if (!QTest::currentDataTag()) {                                                                          \
        QSKIP("nothing of this car");                                                                        \
    }

#endif // CARBENCH_H
