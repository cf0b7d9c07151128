#include "carbench.h"

#include "raise/raiseadapter.h"

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

Q_DECLARE_METATYPE(Codes)
Q_DECLARE_METATYPE(QList<CarSheet::Run>)

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
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("command");
    QTest::addColumn<Codes>("keys");
    QTest::addColumn<Codes>("knobs");
    QTest::addColumn<int>("last");
    for (const CarSheet &sheet : carSheets()) {
        for (const CarSheet::Keys &keys : sheet.keys) {
            QTest::addRow("%s 0x%02x", sheet.name().constData(), keys.command)
                << int(sheet.type) << keys.command << codesOf(keys.keys)
                << (keys.knobs ? codesOf(keys.knobs) : Codes()) << keys.last;
        }
    }
}

void CarTablesTest::keys()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    QFETCH(int, command);
    QFETCH(Codes, keys);
    QFETCH(Codes, knobs);
    QFETCH(int, last);
    RaiseAdapter *const adapter = m_bench.use<RaiseAdapter>(static_cast<CanBusType>(type));
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
    if (type != CanBusTypeRaiseVolkswagen && (command == 0x20 || command == 0x01)) {
        QCOMPARE(adapter->currentKey(), 0x01FFFFFFu);
        m_bench.fixture().exchange(
            QByteArrayList{RaiseWire::frame(quint8(command), QByteArray(1, char(keys.firstKey())) + '\0')});
        QCOMPARE(adapter->currentKey(), unsigned(keys.first()));
    }
}

void CarTablesTest::radarLevels_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("what");
    QTest::addColumn<QByteArray>("sensors");
    QTest::addColumn<Codes>("levels");
    QTest::addColumn<int>("otherwise");
    for (const CarSheet &sheet : carSheets()) {
        for (const CarSheet::Radar &radar : sheet.radar) {
            QTest::addRow("%s 0x%02x", sheet.name().constData(), radar.command)
                << int(sheet.type) << radar.command << radar.event << QByteArray(radar.sensors)
                << radar.levels << radar.otherwise;
        }
    }
}

void CarTablesTest::radarLevels()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    QFETCH(int, command);
    QFETCH(int, what);
    QFETCH(QByteArray, sensors);
    QFETCH(Codes, levels);
    QFETCH(int, otherwise);
    m_bench.use(static_cast<CanBusType>(type));
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

static QString textOf(const QList<CarSheet::Run> &runs, int value)
{
    for (const CarSheet::Run &run : runs) {
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
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QList<CarSheet::Run>>("runs");
    for (const CarSheet &sheet : carSheets()) {
        for (const CarSheet::Temperatures &temperatures : sheet.temperatures) {
            QTest::addRow("%s %s", sheet.name().constData(), temperatures.package.constData())
                << int(sheet.type) << temperatures.package << temperatures.runs;
        }
    }
}

void CarTablesTest::temperatures()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    QFETCH(QByteArray, package);
    QFETCH(QList<CarSheet::Run>, runs);
    m_bench.use(static_cast<CanBusType>(type));
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
