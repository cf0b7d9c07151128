// The simulated car: what its properties take and refuse.

#include "simulatedcar.h"

#include <QSignalSpy>
#include <QtTest>

class TestBoxCar : public QObject
{
    Q_OBJECT

private slots:
    void takes_data();
    void takes();
    void refuses_data();
    void refuses();
    void initialValuesFit();
    void changeIsToldOnce();
    void resetGoesBackToInitialValues();
};

void TestBoxCar::takes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("switch by word") << "climate.ac" << QVariant("YES") << "on";
    QTest::newRow("switch by bool") << "climate.ac" << QVariant(true) << "on";
    QTest::newRow("switch by number") << "climate.power" << QVariant(0) << "off";
    QTest::newRow("greatest integer") << "climate.fan" << QVariant("7") << "7";
    QTest::newRow("least integer") << "steering.angle" << QVariant("-540") << "-540";
    QTest::newRow("temperature") << "climate.left" << QVariant("15") << "15";
    QTest::newRow("temperature by number") << "climate.left" << QVariant(32.0) << "32";
    QTest::newRow("coldest") << "climate.left" << QVariant("lo") << "LO";
    QTest::newRow("hottest") << "climate.right" << QVariant("HI") << "HI";
    QTest::newRow("choice") << "climate.circulation" << QVariant("auto") << "auto";
    QTest::newRow("text with quotes") << "box.version" << QVariant("it's; `x` $(y)") << "it's; `x` $(y)";
    QTest::newRow("empty text") << "box.version" << QVariant("") << "";
}

void TestBoxCar::takes()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    SimulatedCar car;
    QString error;
    QVERIFY2(car.setValue(name, value, &error), qPrintable(error));
    QTEST(car.text(name), "text");
}

void TestBoxCar::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown property") << "wings"
                                      << "on"
                                      << "unknown property 'wings'";
    QTest::newRow("switch") << "climate.ac"
                            << "maybe"
                            << "'climate.ac' takes on or off, not 'maybe'";
    QTest::newRow("past the range") << "climate.fan"
                                    << "8"
                                    << "'climate.fan' takes a whole number from 0 to 7, not '8'";
    QTest::newRow("below the range") << "climate.fan"
                                     << "-1"
                                     << "'climate.fan' takes a whole number from 0 to 7, not '-1'";
    QTest::newRow("fraction of an integer") << "climate.fan"
                                            << "1.5"
                                            << "'climate.fan' takes a whole number from 0 to 7, not '1.5'";
    QTest::newRow("not a number") << "climate.left"
                                  << "nan"
                                  << "'climate.left' takes a number from 15 to 32, LO or HI, not 'nan'";
    QTest::newRow("too hot") << "climate.left"
                             << "32.5"
                             << "'climate.left' takes a number from 15 to 32, LO or HI, not '32.5'";
    QTest::newRow("choice") << "climate.unit"
                            << "K"
                            << "'climate.unit' takes one of C, F, not 'K'";
    QTest::newRow("text too long") << "box.version" << QString(33, 'x')
                                   << "'box.version' takes a Latin-1 text of at most 32 characters, not '" +
                                          QString(33, 'x') + "'";
    QTest::newRow("text in no Latin script")
        << "box.version" << QString(QChar(0x4E2D))
        << QString("'box.version' takes a Latin-1 text of at most 32 characters, "
                   "not '%1'")
               .arg(QChar(0x4E2D));
}

void TestBoxCar::refuses()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    SimulatedCar car;
    const QString before = car.text(name);
    QString error;
    QVERIFY(!car.setValue(name, value, &error));
    QTEST(error, "error");
    QCOMPARE(car.text(name), before);
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

void TestBoxCar::resetGoesBackToInitialValues()
{
    SimulatedCar car;
    car.setValue("climate.fan", 7);
    car.setValue("doors.front_left", true);
    car.reset("climate.");
    QCOMPARE(car.number("climate.fan"), 2);
    QVERIFY(car.flag("doors.front_left"));
}

QTEST_GUILESS_MAIN(TestBoxCar)
#include "tst_boxcar.moc"
