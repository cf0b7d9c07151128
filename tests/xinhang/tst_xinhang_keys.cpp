#include "xinhangbench.h"

namespace {

const QMap<QByteArray, int> Codes = {
    {"up", 0x01},      {"down", 0x02},   {"left", 0xFE},  {"right", 0xFF},    {"launch5", 0x03},
    {"launch6", 0x04}, {"enter", 0x05},  {"back", 0x06},  {"previous", 0x08}, {"next", 0x09},
    {"softer", 0x0C},  {"louder", 0x0D}, {"mute", 0x0E},  {"call", 0x0F},     {"hangup", 0x10},
    {"mode", 0x11},    {"home", 0x12},   {"voice", 0x13}, {"launch0", 0x17},  {"video", 0x19},
    {"1", 0x1D},       {"2", 0x1E},      {"3", 0x1F},     {"4", 0x20},        {"5", 0x21}};

QByteArray package(const char *command, int state, const QByteArray &name)
{
    return command + (" 0" + QByteArray::number(state)) + QByteArray(1, char(Codes.value(name))).toHex();
}

} // namespace

class TestXinHangKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench.reset(new XinHangBench); }
    void cleanupTestCase() { m_bench.reset(); }
    void passing_data();
    void passing();
    void sequences_data();
    void sequences();
    void quirk_xinhang_arrow_bounce();
    void menuKey();
    void unitKeys();

private:
    QScopedPointer<XinHangBench> m_bench;
};

void TestXinHangKeys::passing_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QByteArray>("unitKeys"); // those that the filter keeps back, "*" all
    QTest::addColumn<QByteArray>("panelKeys");
    const auto row = [](const char *name, int carType, const char *unitKeys, const char *panelKeys) {
        QTest::newRow(name) << carType << QByteArray(unitKeys) << QByteArray(panelKeys);
    };
    row("box silent", 0, "*", "*");
    row("car 1", 1, "call hangup louder mode softer", "1 2 3 4 launch0 louder mute softer");
    row("car 4", 4, "call", "home louder mute softer");
    row("car 5", 5, "louder mute softer", "home louder mute softer");
    row("other car", 260, "", "");
}

// While the factory screen is shown no key passes.
void TestXinHangKeys::passing()
{
    QFETCH(int, carType);
    FakeBox box;
    box.type = quint16(carType);
    QByteArrayList unit;
    QByteArrayList panel;
    for (const QByteArray &name : Codes.keys()) {
        const unsigned int key = unsigned(XinHang::unitKeys().value(Codes.value(name)));
        XinHangDisplay display(box, nullptr);
        XinHangKeyFilter filter(box, display);
        QVERIFY2(filter.filterKey(key, true, false), name.constData());
        QVERIFY2(filter.filterPanelKey(key, true, false), name.constData());
        display.switchDisplay(XinHangDisplay::OwnScreen, false);
        if (filter.filterKey(key, true, false)) {
            unit << name;
        }
        if (filter.filterPanelKey(key, true, false)) {
            panel << name;
        }
    }
    const auto summary = [](const QByteArrayList &keys) {
        return keys.size() == Codes.size() ? QByteArray("*") : keys.join(' ');
    };
    QTEST(summary(unit), "unitKeys");
    QTEST(summary(panel), "panelKeys");
}

void TestXinHangKeys::sequences_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QByteArray>("steps"); // wheel/panel:KEY:STATE, long: the long press time passes
    QTest::addColumn<QString>("calls");
    const auto row = [](const QByteArray &name, int carType, const char *screen, const QByteArray &steps,
                        const QString &calls) {
        QTest::newRow(name.constData()) << carType << QByteArray(screen) << steps << calls;
    };
    const QString toFactory = "send 83 01; GPIOOperater.setValue(30,0)";
    const QString toOwn = "send 83 02; GPIOOperater.setValue(30,1)";
    const QString hangup = "key 1100005 press; key 1100005 release";
    const QString voice = "key 1100008 press; key 1100008 release";
    const QString callKey = "key 1100004 press; key 1100004 release";
    const QString home = "key 1000010 press; key 1000010 release";

    const QByteArray hangupShort("wheel:hangup:1 wheel:hangup:2 wheel:hangup:0");
    const QByteArray hangupLong("wheel:hangup:1 wheel:hangup:2 long wheel:hangup:2 wheel:hangup:0");
    row("car 1: hangup, short", 1, "own", hangupShort, hangup);
    row("car 1: hangup, short, factory screen", 1, "factory", hangupShort, hangup);
    row("car 1: hangup, long", 1, "own", hangupLong, toFactory);
    row("car 1: hangup, long, factory screen", 1, "factory", hangupLong, toOwn);
    row("car 1: hangup, long during a call", 1, "own", "call " + hangupLong, "");
    row("car 1: hangup, long, then short", 1, "own", hangupLong + " wheel:hangup:1 wheel:hangup:0",
        toFactory + "; " + hangup);
    row("car 1: hangup, only the release", 1, "own", "wheel:hangup:0", "");
    const QByteArray phone("wheel:call:1 wheel:call:2 wheel:call:0");
    row("car 1: phone key", 1, "own", phone, voice);
    row("car 1: phone key during a call", 1, "own", "call " + phone, callKey);
    row("car 1: phone key, factory screen", 1, "factory", phone, "");
    row("car 1: panel knob and digits", 1, "factory",
        "panel:louder:1 panel:softer:1 panel:mute:2 panel:1:0 panel:2:1 panel:3:1 panel:4:1",
        "key 1000014 press; key 1000012 press; key 1000005 held; key 1000013 release; key 1000015 press; "
        "key 10000a7 press; key 10000a8 press");
    row("car 1: panel screen key", 1, "own", "panel:launch0:1 panel:launch0:2 panel:launch0:0", toFactory);
    row("car 4: phone key, short", 4, "own", phone, voice);
    row("car 4: phone key, short, factory screen", 4, "factory", phone, "");
    row("car 4: phone key, long", 4, "own", "wheel:call:1 long wheel:call:0", toFactory);
    const QByteArray homeLong("panel:home:1 long panel:home:2 panel:home:0");
    for (const int type : {4, 5}) {
        const QByteArray car = "car " + QByteArray::number(type);
        row(car + ": home, short", type, "own", "panel:home:1 panel:home:0", home);
        row(car + ": home, short, factory screen", type, "factory", "panel:home:1 panel:home:0", "");
        row(car + ": home, long", type, "own", homeLong, toFactory);
        row(car + ": home, long, factory screen", type, "factory", homeLong, toOwn);
    }
    row("car 4: a switch of the screen ends the long press", 4, "own", "panel:home:1 mode panel:home:0", "");
}

void TestXinHangKeys::sequences()
{
    QFETCH(int, carType);
    QFETCH(QByteArray, screen);
    QFETCH(QByteArray, steps);
    XinHangBench &bench = *m_bench;
    bench.drive(carType, screen);
    QStringList done;
    for (const QByteArray &step : steps.split(' ')) {
        const QByteArrayList parts = step.split(':');
        if (parts.first() == "long") {
            QVERIFY(bench.passLongPress());
            done << bench.calls();
        } else if (parts.first() == "call") {
            OrbHost::instance()->setTag(0x10001, 0x1000000u);
        } else if (parts.first() == "mode") {
            bench.adapter->onModeAppChange(2, 0);
        } else {
            const char *const command = parts.first() == "panel" ? "0b" : "03";
            done << bench.exchange(package(command, parts.last().toInt(), parts.at(1)));
        }
    }
    OrbHost::instance()->setTag(0x10001, QVariant());
    QTEST(XinHang::joined(done), "calls");
}

void TestXinHangKeys::quirk_xinhang_arrow_bounce()
{
    m_bench->drive(4, "own");
    struct Step
    {
        quint64 time;
        const char *key;
        int state;
        bool passes;
    };
    const Step steps[] = {{0, "left", 1, true},    {99, "left", 0, false},  {99, "right", 1, false},
                          {100, "right", 1, true}, {150, "up", 1, true},    {199, "right", 0, false},
                          {200, "right", 2, true}, {299, "left", 1, false}, {300, "left", 0, true}};
    for (const Step &step : steps) {
        OrbHost::instance()->holdTickCount(step.time);
        const QStringList calls = m_bench->exchange(package("0b", step.state, step.key));
        QVERIFY2(calls.size() == int(step.passes), qPrintable(QString::number(step.time)));
    }
    OrbHost::instance()->releaseTickCount();
}

// No box is known to have this panel key; the filter knows it all the same.
void TestXinHangKeys::menuKey()
{
    FakeBox box;
    box.type = 4;
    XinHangDisplay display(box, nullptr);
    XinHangKeyFilter filter(box, display);
    TraceRecorder trace;
    QVERIFY(filter.filterPanelKey(0x01000055, true, false));
    QCOMPARE(trace.take(), QStringList());
    display.switchDisplay(2, false);
    QVERIFY(filter.filterPanelKey(0x01000055, true, true));
    QCOMPARE(trace.take(), QStringList(TestSupport::key(0x01000061, true, true, 0)));
}

// The framework asks the adapter about the unit's own keys as long as the adapter lives.
void TestXinHangKeys::unitKeys()
{
    OrbHost *const host = OrbHost::instance();
    m_bench->drive(4, "factory");
    QVERIFY(host->filterKey(Qt::Key_Up, true, false));
    m_bench->drive(4, "own");
    QVERIFY(!host->filterKey(Qt::Key_Up, true, false));
    QVERIFY(host->filterKey(Qt::Key_Call, true, false));
    QVERIFY(m_bench->passLongPress());
    m_bench.reset();
    QVERIFY(!host->filterKey(Qt::Key_Call, true, false));
}

CANBUS_TEST_MAIN(TestXinHangKeys)
#include "tst_xinhang_keys.moc"
