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

void CarTablesTest::keys_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<int>("command");
    QTest::addColumn<Codes>("keys");
    QTest::addColumn<Codes>("knobs");
    QTest::addColumn<int>("last");
    const auto row = [](const char *name, const char *car, int command, const Codes &keys, const Codes &knobs,
                        int last) {
        QTest::newRow(name) << QString(car) << command << keys << knobs << last;
    };
    row("Toyota wheel", "CanBus_Raise_Toyota", 0x20,
        {{1, 0x01000072},
         {0x81, 0x01000072},
         {2, 0x01000070},
         {0x82, 0x01000070},
         {3, 0x01000083},
         {0x84, 0x01000083},
         {4, 0x01000082},
         {0x83, 0x01000082},
         {7, 0x0100117E},
         {0x88, 0x0100117E},
         {8, 0x01100008},
         {9, 0x01100004},
         {10, 0x01100005},
         {19, 0x01000082},
         {20, 0x01000083},
         {21, 0x01000061},
         {22, 0x01000005},
         {0x85, 0x01000102},
         {0x86, 0x010000C5}},
        {}, 1);
    row("Honda wheel", "CanBus_Raise_Honda", 0x20,
        {{1, 0x01000072},    {32, 0x01000072}, {0x81, 0x01000072}, {2, 0x01000070},  {33, 0x01000070},
         {0x82, 0x01000070}, {3, 0x01000083},  {20, 0x01000083},   {38, 0x01000083}, {4, 0x01000082},
         {19, 0x01000082},   {39, 0x01000082}, {7, 0x0100117E},    {24, 0x0100117E}, {8, 0x01100008},
         {9, 0x01100004},    {10, 0x01100005}, {22, 0x01000005},   {23, 0x01000071}, {48, 0x01000071},
         {0x86, 0x01000071}, {34, 0x010000C5}, {36, 0x010000C5},   {35, 0x01000102}, {37, 0x01000102}},
        {}, 1);
    row("GM wheel", "CanBus_Raise_GM", 0x01,
        {{1, 0x01000072},
         {2, 0x01000070},
         {3, 0x01000082},
         {4, 0x01000083},
         {5, 0x0100117E},
         {6, 0x01100008},
         {7, 0x01000071}},
        {}, 1);
    row("GM panel", "CanBus_Raise_GM", 0x02,
        {{1, 0x010000B7},  {2, 0x01000082},  {53, 0x01000082}, {3, 0x01000083},  {52, 0x01000083},
         {4, 0x010000A4},  {5, 0x010000A5},  {6, 0x01000061},  {7, 0x010000A2},  {8, 0x010000A6},
         {64, 0x010000A6}, {9, 0x01000071},  {22, 0x01000005}, {27, 0x01000086}, {28, 0x01000013},
         {29, 0x01000015}, {80, 0x01000010}, {83, 0x01000010}, {81, 0x0100117E}, {84, 0x010000FD}},
        {{23, 0x01000072}, {24, 0x01000070}, {25, 0x01000014}, {26, 0x01000012}}, 0);
    row("Jeep wheel", "CanBus_Raise_Jeep", 0x01,
        {{17, 0x01000072},
         {18, 0x01000070},
         {21, 0x0100117E},
         {26, 0x0100117E},
         {23, 0x01100008},
         {24, 0x01100004},
         {25, 0x01100005},
         {28, 0x01000083},
         {29, 0x01000082}},
        {}, 1);
    row("Jeep panel", "CanBus_Raise_Jeep", 0x04,
        {{1, 0x0100010E},
         {2, 0x01000071},
         {3, 0x01000071},
         {5, 0x01000070},
         {6, 0x01000072},
         {7, 0x01000082},
         {8, 0x01000083},
         {9, 0x010000B7},
         {10, 0x010000B7}},
        {}, 0);
    row("Mazda wheel", "CanBus_XBS_Mazda", 0x01,
        {{0x01, 0x01000072},
         {0x02, 0x01000070},
         {0x03, 0x01000083},
         {0x04, 0x01000082},
         {0x08, 0x01000071},
         {0x09, 0x01100008},
         {0x0A, 0x01100004},
         {0x0B, 0x01100005},
         {0x20, 0x010000FD},
         {0x21, 0x01000010},
         {0x22, 0x01100008},
         {0x23, 0x0100117E},
         {0x24, 0x01000013},
         {0x25, 0x01000015},
         {0x26, 0x01000012},
         {0x27, 0x01000014},
         {0x28, 0x01000005},
         {0x29, 0x0100010F},
         {0x2A, 0x01000061}},
        {{0xF0, 0x01000072}, {0xF1, 0x01000070}, {0xF2, 0x01000014}, {0xF3, 0x01000012}}, 0);
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
        if (keys.contains(code))
            expected << TestSupport::key(keys.value(code), true, false, last);
        else if (knobs.contains(code))
            expected << TestSupport::taps(knobs.value(code));
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
        for (int i = 0; i < (sensors.size() > 4 ? 7 : 4); ++i)
            data.append(char(first + i * 37));
        packages << RaiseWire::frame(quint8(command), data);
        QByteArray radar;
        for (const char sensor : sensors)
            radar.append(sensor == '-' ? '\0' : char(levels.value(quint8(data.at(sensor - '0')), otherwise)));
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
        if (value < run.first || value > run.last)
            continue;
        const QString unit = QString::fromUtf8(run.unit);
        if (unit.isEmpty() || !unit.startsWith(QChar(0xB0)))
            return unit;
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
    QTest::newRow("Toyota Celsius") << "CanBus_Raise_Toyota" << QByteArray("28 80 00 LL RR 00")
                                    << Runs{{0, 0, 0, 0, "LO"},
                                            {1, 29, 18.0, 0.5, "°C"},
                                            {0x1F, 0x1F, 0, 0, "HI"},
                                            {0x20, 0x23, 16.0, 0.5, "°C"}};
    QTest::newRow("Toyota Fahrenheit")
        << "CanBus_Raise_Toyota" << QByteArray("28 80 00 LL RR 01")
        << Runs{{0, 0, 0, 0, "LO"}, {1, 254, 1, 1, "°F"}, {255, 255, 0, 0, "HI"}};
    QTest::newRow("Honda Celsius") << "CanBus_Raise_Honda" << QByteArray("21 80 00 LL RR 01 00 00 00 00")
                                   << Runs{{0, 0, 0, 0, "LO"},
                                           {1, 254, 0.5, 0.5, "°C"},
                                           {255, 255, 0, 0, "HI"}};
    QTest::newRow("Honda Fahrenheit")
        << "CanBus_Raise_Honda" << QByteArray("21 80 00 LL RR 00 00 00 00 00")
        << Runs{{0, 0, 0, 0, "LO"}, {1, 254, 1, 1, "°F"}, {255, 255, 0, 0, "HI"}};
    QTest::newRow("GM") << "CanBus_Raise_GM" << QByteArray("03 80 01 LL RR 00 00 02")
                        << Runs{{0, 0, 0, 0, "LO"},          {1, 28, 17.0, 0.5, "°C"},
                                {0x1D, 0x1D, 16.0, 0, "°C"}, {0x1E, 0x1E, 0, 0, "HI"},
                                {0x1F, 0x1F, 16.5, 0, "°C"}, {0x20, 0x21, 15.0, 0.5, "°C"},
                                {0x22, 0x22, 31.0, 0, "°C"}, {0x23, 0xFF, 0, 0, "--°C"}};
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
