#include "carbench.h"

#include <QMap>

// Value tables of the cars, each walked from 0 to 255, so that what is not listed is pinned as well.
class CarTablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void radarLevels_data();
    void radarLevels();
    void temperatures_data();
    void temperatures();
    void cleanupTestCase() { m_bench.reset(); }

private:
    CarBench m_bench;
};

typedef QMap<int, int> Codes; // code of the box and key or level of the unit
Q_DECLARE_METATYPE(Codes)

// "1000072=01,81 1000070=02": keys of the unit and the codes of the box that stand for each, in hexadecimal.
static Codes codesOf(const char *text)
{
    Codes codes;
    for (const QByteArray &entry : QByteArray(text).split(' ')) {
        const QByteArrayList sides = entry.split('=');
        for (const QByteArray &code : sides.value(1).split(',')) {
            codes.insert(code.toInt(nullptr, 16), sides.at(0).toInt(nullptr, 16));
        }
    }
    return codes;
}

void CarTablesTest::keys_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<int>("command");
    QTest::addColumn<Codes>("keys");
    QTest::addColumn<Codes>("knobs");
    QTest::addColumn<int>("last");
    const auto row = [](const char *name, const char *car, int command, int last, const char *keys,
                        const char *knobs = nullptr) {
        QTest::newRow(name) << QString(car) << command << codesOf(keys) << (knobs ? codesOf(knobs) : Codes())
                            << last;
    };
    row("Toyota wheel", "CanBus_Raise_Toyota", 0x20, 1,
        "1000072=01,81 1000070=02,82 1000083=03,84,14 1000082=04,83,13 100117e=07,88 1100008=08 1100004=09 "
        "1100005=0a 1000061=15 1000005=16 1000102=85 10000c5=86");
    row("Honda wheel", "CanBus_Raise_Honda", 0x20, 1,
        "1000072=01,20,81 1000070=02,21,82 1000083=03,14,26 1000082=04,13,27 100117e=07,18 1100008=08 "
        "1100004=09 1100005=0a 1000005=16 1000071=17,30,86 10000c5=22,24 1000102=23,25");
    row("GM wheel", "CanBus_Raise_GM", 0x01, 1,
        "1000072=01 1000070=02 1000082=03 1000083=04 100117e=05 1100008=06 1000071=07");
    row("GM panel", "CanBus_Raise_GM", 0x02, 0,
        "10000b7=01 1000082=02,35 1000083=03,34 10000a4=04 10000a5=05 1000061=06 10000a2=07 10000a6=08,40 "
        "1000071=09 1000005=16 1000086=1b 1000013=1c 1000015=1d 1000010=50,53 100117e=51 10000fd=54",
        "1000072=17 1000070=18 1000014=19 1000012=1a");
    row("Jeep wheel", "CanBus_Raise_Jeep", 0x01, 1,
        "1000072=11 1000070=12 100117e=15,1a 1100008=17 1100004=18 1100005=19 1000083=1c 1000082=1d");
    row("Jeep panel", "CanBus_Raise_Jeep", 0x04, 0,
        "100010e=01 1000071=02,03 1000070=05 1000072=06 1000082=07 1000083=08 10000b7=09,0a");
    row("Mazda wheel", "CanBus_XBS_Mazda", 0x01, 0,
        "1000072=01 1000070=02 1000083=03 1000082=04 1000071=08 1100008=09,22 1100004=0a 1100005=0b "
        "10000fd=20 1000010=21 100117e=23 1000013=24 1000015=25 1000012=26 1000014=27 1000005=28 "
        "100010f=29 1000061=2a",
        "1000072=f0 1000070=f1 1000014=f2 1000012=f3");
}

void CarTablesTest::keys()
{
    QFETCH(QString, car);
    QFETCH(int, command);
    QFETCH(Codes, keys);
    QFETCH(Codes, knobs);
    QFETCH(int, last);
    RaiseAdapter *const adapter = m_bench.useByName(car);
    QByteArrayList packages;
    QStringList expected;
    for (int code = 0; code < 256; ++code) {
        packages << RaiseWire::frame(quint8(command), QByteArray(1, char(code)) + '\x01');
        if (keys.contains(code)) {
            expected << TestSupport::key(keys.value(code), true, false, last);
        } else if (knobs.contains(code)) {
            expected << TestSupport::taps(knobs.value(code));
        }
    }
    QCOMPARE(m_bench.fixture().exchange(packages), expected);
    // The current key belongs to the process: an adapter built later has it too.
    if (command == 0x20 || command == 0x01) {
        QCOMPARE(adapter->currentKey(), 0x01FFFFFFu);
        m_bench.fixture().exchange(
            QByteArrayList{RaiseWire::frame(quint8(command), QByteArray(1, char(keys.firstKey())) + '\0')});
        QCOMPARE(adapter->currentKey(), unsigned(keys.first()));
    }
}

void CarTablesTest::radarLevels_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("what");
    QTest::addColumn<QByteArray>("sensors"); // data byte of each level, '-': always 0
    QTest::addColumn<Codes>("levels");
    QTest::addColumn<int>("otherwise");
    const Codes four = {{1, 1}, {2, 2}, {3, 4}, {4, 6}};
    const Codes five = {{1, 1}, {2, 2}, {3, 4}, {4, 5}, {5, 6}};
    const Codes asTheyAre = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
    const auto row = [](const char *name, const char *car, int command, int what, const char *sensors,
                        const Codes &levels, int otherwise) {
        QTest::newRow(name) << QString(car) << command << what << QByteArray(sensors) << levels << otherwise;
    };
    row("Toyota 1D", "CanBus_Raise_Toyota", 0x1D, 0x5019, "0--3", five, 0);
    row("Toyota 1E", "CanBus_Raise_Toyota", 0x1E, 0x501A, "0123", five, 0);
    row("Honda 22", "CanBus_Raise_Honda", 0x22, 0x501A, "0123", four, 0);
    row("Honda 23", "CanBus_Raise_Honda", 0x23, 0x5019, "0123", four, 0);
    row("GM 22", "CanBus_Raise_GM", 0x22, 0x501A, "0123", asTheyAre, 6);
    row("GM 23", "CanBus_Raise_GM", 0x23, 0x5019, "0123", asTheyAre, 6);
    row("Mazda", "CanBus_XBS_Mazda", 0x08, 0x5018, "12234556", four, 0);
}

void CarTablesTest::radarLevels()
{
    QFETCH(QString, car);
    QFETCH(int, command);
    QFETCH(int, what);
    QFETCH(QByteArray, sensors);
    QFETCH(Codes, levels);
    QFETCH(int, otherwise);
    m_bench.useByName(car);
    QByteArrayList packages;
    QStringList expected;
    for (int first = 0; first < 256; ++first) {
        QByteArray data;
        for (int i = 0; i < (sensors.size() > 4 ? 7 : 4); ++i) {
            data.append(char(first + i * 37));
        }
        packages << RaiseWire::frame(quint8(command), data);
        QByteArray radar;
        for (const char sensor : sensors) {
            radar.append(sensor == '-' ? '\0' : char(levels.value(quint8(data.at(sensor - '0')), otherwise)));
        }
        expected
            << QString("dispatchOrbEvent(400,12,51007,%1,0,bytes=%2)").arg(what).arg(QString(radar.toHex()));
    }
    QCOMPARE(m_bench.fixture().exchange(packages), expected);
}

// Values first..last show start, start + step, ... with the unit; a unit without a number is the text itself.
struct Run
{
    int first;
    int last;
    double start;
    double step;
    const char *unit;
};
typedef QList<Run> Runs;
Q_DECLARE_METATYPE(Runs)

static QString textOf(const Runs &runs, int value)
{
    for (const Run &run : runs) {
        if (value < run.first || value > run.last) {
            continue;
        }
        const QString unit = QString::fromUtf8(run.unit);
        if (unit.isEmpty() || !unit.startsWith(QChar(0xB0))) {
            return unit;
        }
        return QString::number(run.start + (value - run.first) * run.step, 'f', unit.endsWith('C') ? 1 : 0) +
               unit;
    }
    return QString();
}

void CarTablesTest::temperatures_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<QByteArray>("package"); // LL and RR: the two temperatures
    QTest::addColumn<Runs>("runs");
    const auto row = [](const char *name, const char *car, const char *package, const Runs &runs) {
        QTest::newRow(name) << QString(car) << QByteArray(package) << runs;
    };
    const Run low = {0, 0, 0, 0, "LO"};
    const Runs fahrenheit = {low, {1, 254, 1, 1, "°F"}, {255, 255, 0, 0, "HI"}};
    row("Toyota Celsius", "CanBus_Raise_Toyota", "28 80 00 LL RR 00",
        {low, {1, 29, 18.0, 0.5, "°C"}, {0x1F, 0x1F, 0, 0, "HI"}, {0x20, 0x23, 16.0, 0.5, "°C"}});
    row("Toyota Fahrenheit", "CanBus_Raise_Toyota", "28 80 00 LL RR 01", fahrenheit);
    row("Honda Celsius", "CanBus_Raise_Honda", "21 80 00 LL RR 01 00 00 00 00",
        {low, {1, 254, 0.5, 0.5, "°C"}, {255, 255, 0, 0, "HI"}});
    row("Honda Fahrenheit", "CanBus_Raise_Honda", "21 80 00 LL RR 00 00 00 00 00", fahrenheit);
    row("GM", "CanBus_Raise_GM", "03 80 01 LL RR 00 00 02",
        {low,
         {1, 28, 17.0, 0.5, "°C"},
         {0x1D, 0x1D, 16.0, 0, "°C"},
         {0x1E, 0x1E, 0, 0, "HI"},
         {0x1F, 0x1F, 16.5, 0, "°C"},
         {0x20, 0x21, 15.0, 0.5, "°C"},
         {0x22, 0x22, 31.0, 0, "°C"},
         {0x23, 0xFF, 0, 0, "--°C"}});
}

void CarTablesTest::temperatures()
{
    QFETCH(QString, car);
    QFETCH(QByteArray, package);
    QFETCH(Runs, runs);
    m_bench.useByName(car);
    QByteArrayList packages;
    QStringList expected;
    for (int left = 0; left < 256; ++left) {
        const int right = 255 - left;
        QByteArray bytes = package;
        bytes.replace("LL", QByteArray(1, char(left)).toHex())
            .replace("RR", QByteArray(1, char(right)).toHex());
        packages << RaiseWire::frame(bytes);
        expected
            << QString("AirConditionDlg.setTemperature(%1,%2)").arg(textOf(runs, left), textOf(runs, right));
    }
    const QStringList trace = m_bench.fixture().exchange(packages).filter("setTemperature");
    QCOMPARE(trace, expected);
}

CANBUS_TEST_MAIN(CarTablesTest)
#include "tst_cartables.moc"
