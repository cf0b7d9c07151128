// The simulated car: what its properties take and refuse.

#include "simulatedcar.h"
#include "transcript.h"

#include <QSet>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <QVariant>

class TestBoxCar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values();
    void initialValuesFit();
    void changeIsToldOnce();
};

void TestBoxCar::values()
{
    const auto act = [](const QString &order) {
        SimulatedCar car;
        QString error;
        const QString name = order.section(' ', 0, 0);
        const bool isTaken = car.setValue(name, order.section(' ', 1), &error);
        return QStringList(isTaken && error.isEmpty() ? "'" + car.text(name) + "'" : error);
    };
    COMPARE_WITH_TRANSCRIPT("car.txt", act);
    // Other types than text.
    SimulatedCar car;
    QVERIFY(car.setValue("climate.ac", true) && car.flag("climate.ac"));
    QVERIFY(car.setValue("climate.power", 0) && !car.flag("climate.power"));
    QVERIFY(car.setValue("climate.left", 32.0));
    QCOMPARE(car.text("climate.left"), QString("32"));
    QVERIFY(car.setValue("box.version", "") && car.text("box.version").isEmpty());
    // A refused value leaves the one before.
    QVERIFY(!car.setValue("climate.left", 32.5));
    QCOMPARE(car.text("climate.left"), QString("32"));
}

void TestBoxCar::initialValuesFit()
{
    QSet<QString> names;
    for (const CarProperty &property : CarProperty::all()) {
        QVariant value;
        QString error;
        QVERIFY2(property.read(property.initial, &value, &error), qPrintable(error));
        QVERIFY2(!names.contains(property.name), qPrintable(property.name));
        names << property.name;
    }
}

void TestBoxCar::changeIsToldOnce()
{
    SimulatedCar car;
    QSignalSpy changes(&car, &SimulatedCar::changed);
    car.setValue("climate.left", "21.5");
    car.setValue("climate.left", 21.5);
    QCOMPARE(int(changes.size()), 1);
    QCOMPARE(changes.first().first().toString(), QString("climate.left"));
}

QTEST_GUILESS_MAIN(TestBoxCar)
#include "tst_boxcar.moc"
