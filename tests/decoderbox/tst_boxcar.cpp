// The simulated car: what its properties take and refuse.

#include "simulatedcar.h"

#include <QSignalSpy>
#include <QtTest>

class TestBoxCar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void initialValuesFit();
    void changeIsToldOnce();
};

void TestBoxCar::values_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    const auto takes = [](const char *row, const char *name, const QVariant &value, const char *text) {
        QTest::newRow(row) << QString(name) << value << QString(text) << QString();
    };
    const auto refuses = [](const char *row, const char *name, const QVariant &value, const char *expected) {
        const QString error = QString("'%1' takes %2, not '%3'").arg(name, expected, value.toString());
        QTest::newRow(row) << QString(name) << value << SimulatedCar().text(name) << error;
    };
    takes("switch by word", "climate.ac", "YES", "on");
    takes("switch by bool", "climate.ac", true, "on");
    takes("switch by number", "climate.power", 0, "off");
    refuses("no switch", "climate.ac", "maybe", "on or off");
    takes("greatest integer", "climate.fan", "7", "7");
    takes("least integer", "steering.angle", "-540", "-540");
    refuses("past the range", "climate.fan", "8", "a whole number from 0 to 7");
    refuses("below the range", "climate.fan", "-1", "a whole number from 0 to 7");
    refuses("fraction of an integer", "climate.fan", "1.5", "a whole number from 0 to 7");
    takes("temperature by number", "climate.left", 32.0, "32");
    takes("coldest", "climate.left", "lo", "LO");
    refuses("not a number", "climate.left", "nan", "a number from 15 to 32, LO or HI");
    refuses("too hot", "climate.left", "32.5", "a number from 15 to 32, LO or HI");
    takes("choice", "climate.circulation", "auto", "auto");
    refuses("no choice", "climate.unit", "K", "one of C, F");
    takes("text with quotes", "box.version", "it's; `x` $(y)", "it's; `x` $(y)");
    takes("empty text", "box.version", "", "");
    refuses("text too long", "box.version", QString(33, 'x'), "a Latin-1 text of at most 32 characters");
    refuses("text in no Latin script", "box.version", QString(QChar(0x4E2D)),
            "a Latin-1 text of at most 32 characters");
    QTest::newRow("unknown property") << "wings" << QVariant(1) << QString() << "unknown property 'wings'";
}

void TestBoxCar::values()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QFETCH(QString, error);
    SimulatedCar car;
    QString said;
    QCOMPARE(car.setValue(name, value, &said), error.isEmpty());
    QCOMPARE(said, error);
    QTEST(car.text(name), "text");
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
