// Values are read out of reports by trial: what a box says about a car is read as that car.

#include "boxcatalog.h"
#include "packagevalues.h"

#include <QStringList>
#include <QTest>
#include <QVariant>

#include <random>

class TestPackageValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAreReadAsTheyWereMeant_data();
    void reportsAreReadAsTheyWereMeant();
    void keysAndCommands_data();
    void keysAndCommands();
    void unknownBits();
};

namespace {

QVariant anyValue(const CarProperty &property, std::mt19937 *random)
{
    switch (property.kind) {
    case CarProperty::Switch:
        return (*random)() % 2 == 0;
    case CarProperty::Choice:
        return property.choices.at(int((*random)() % unsigned(property.choices.size())));
    case CarProperty::Text:
        return QString("V %1").arg((*random)() % 1000);
    case CarProperty::NumberList:
        return QString();
    default:
        break;
    }
    const double step = property.step > 0 ? property.step : 1;
    const int count = int((property.maximum - property.minimum) / step) + 1;
    return property.minimum + int((*random)() % unsigned(count)) * step;
}

QString texts(const LineValueSource::Meaning &meaning)
{
    QStringList texts = {meaning.name};
    for (const LineValueSource::Value &value : meaning.values) {
        texts << value.name + '=' + value.value;
    }
    return texts.join(' ');
}

} // namespace

void TestPackageValues::reportsAreReadAsTheyWereMeant_data()
{
    QTest::addColumn<int>("at"); // in the catalog, whose numbers may have gaps
    for (int i = 0; i < BoxCatalog::rows().size(); ++i) {
        const BoxCatalog::Row &row = BoxCatalog::rows().at(i);
        if (row.makeSpeaker) {
            QTest::newRow(row.car) << i;
        }
    }
}

// The values that were read make the same report again, whatever the car was: nothing that was told is wrong.
void TestPackageValues::reportsAreReadAsTheyWereMeant()
{
    QFETCH(int, at);
    const BoxCatalog::Row &row = BoxCatalog::rows().at(at);
    QString error;
    const auto values = PackageValues::create(row.type, &error);
    SimulatedCar car;
    const std::unique_ptr<BoxSpeaker> speaker(row.makeSpeaker(&car));
    std::mt19937 random(static_cast<unsigned int>(row.type));
    int told = 0;
    for (int run = 0; run < 2; ++run) {
        for (const CarProperty &property : CarProperty::all()) {
            car.setValue(property.name, anyValue(property, &random));
        }
        for (int i = 0; i < speaker->reports().size(); ++i) {
            const BoxPackage package = speaker->reportPackage(i);
            const LineValueSource::Meaning meaning = values->meaning(package, true);
            SimulatedCar read;
            for (const CarProperty &property : CarProperty::all()) {
                read.setValue(property.name, car.value(property.name));
            }
            for (const LineValueSource::Value &value : meaning.values) {
                QVERIFY2(read.setValue(value.name, value.value, &error), qPrintable(error));
            }
            told += int(meaning.values.size());
            if (meaning.name == speaker->reports().at(i).meaning) {
                QCOMPARE(speaker->reports().at(i).data(read).toHex(), package.data.toHex());
            }
        }
    }
    QVERIFY(told > 0 || speaker->reports().isEmpty());
}

void TestPackageValues::keysAndCommands_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isTowardsUnit");
    QTest::addColumn<QByteArray>("package"); // command and data
    QTest::addColumn<QString>("meaning");
    QTest::newRow("key") << 9 << true << QByteArray("200101") << "key volume_up=pressed";
    QTest::newRow("held key") << 9 << true << QByteArray("200102") << "key volume_up=held";
    QTest::newRow("no such key") << 9 << true << QByteArray("20ee01") << "key";
    QTest::newRow("doors")
        << 9 << true << QByteArray("2480")
        << "doors doors.front_left=off doors.front_right=on doors.rear_left=off doors.rear_right=off";
    QTest::newRow("unknown report") << 9 << true << QByteArray("7701") << "";
    QTest::newRow("ready") << 9 << false << QByteArray("8101") << "ready";
    QTest::newRow("mode") << 9 << false << QByteArray("9905") << "mode mode=0x05";
    QTest::newRow("unknown command") << 9 << false << QByteArray("7701") << "";
}

void TestPackageValues::keysAndCommands()
{
    QFETCH(int, type);
    QFETCH(bool, isTowardsUnit);
    QFETCH(QByteArray, package);
    QString error;
    const auto values = PackageValues::create(type, &error);
    const QByteArray bytes = QByteArray::fromHex(package);
    QTEST(texts(values->meaning({quint8(bytes.at(0)), bytes.mid(1)}, isTowardsUnit)), "meaning");
}

// A real box sets bits that the virtual one does not know: what stands in others is told all the same.
void TestPackageValues::unknownBits()
{
    QString error;
    const auto values = PackageValues::create(9, &error);
    QCOMPARE(
        texts(values->meaning({0x24, QByteArray::fromHex("8f")}, true)),
        QString("doors doors.front_left=off doors.front_right=on doors.rear_left=off doors.rear_right=off"));
    // A temperature code between two known ones is no temperature.
    const QString climate = texts(values->meaning({0x28, QByteArray::fromHex("4042ee0700")}, true));
    QVERIFY2(climate.contains("climate.right=21 ") && !climate.contains("climate.left="),
             qPrintable(climate));
    QVERIFY(!PackageValues::create(1, &error));
    QCOMPARE(error, QString("nobody knows what the packages of CAN-bus type 1 mean"));
}

QTEST_GUILESS_MAIN(TestPackageValues)
#include "tst_packagevalues.moc"
