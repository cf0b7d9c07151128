#include "xinhangbench.h"

namespace {

// Codes of the box and the unit's keys, by name.
struct Key
{
    const char *name;
    int code;
    int key;
};
const Key Keys[] = {{"up", 0x01, 0x01000013},
                    {"down", 0x02, 0x01000015},
                    {"left", 0xFE, 0x01000012},
                    {"right", 0xFF, 0x01000014},
                    {"launch5", 0x03, 0x010000A7},
                    {"launch6", 0x04, 0x010000A8},
                    {"enter", 0x05, 0x01000005},
                    {"back", 0x06, 0x01000061},
                    {"previous", 0x08, 0x01000082},
                    {"next", 0x09, 0x01000083},
                    {"softer", 0x0C, 0x01000070},
                    {"louder", 0x0D, 0x01000072},
                    {"mute", 0x0E, 0x01000071},
                    {"call", 0x0F, 0x01100004},
                    {"hangup", 0x10, 0x01100005},
                    {"mode", 0x11, 0x0100117E},
                    {"home", 0x12, 0x01000010},
                    {"voice", 0x13, 0x01100008},
                    {"launch0", 0x17, 0x010000A2},
                    {"video", 0x19, 0x010000F3},
                    {"1", 0x1D, 0x31},
                    {"2", 0x1E, 0x32},
                    {"3", 0x1F, 0x33},
                    {"4", 0x20, 0x34},
                    {"5", 0x21, 0x35}};

Key keyOf(const QByteArray &name)
{
    for (const Key &key : Keys) {
        if (key.name == name)
            return key;
    }
    return {"", 0, 0};
}

QByteArray package(const char *command, int state, const QByteArray &name)
{
    return command + (" 0" + QByteArray::number(state)) + QByteArray(1, char(keyOf(name).code)).toHex();
}

} // namespace

class TestXinHangKeys : public QObject
{
    Q_OBJECT

private slots:
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
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QByteArrayList>("unitKeys"); // those that pass unchanged
    QTest::addColumn<QByteArrayList>("panelKeys");
    QByteArrayList all;
    for (const Key &key : Keys)
        all << key.name;
    const auto without = [all](const QByteArray &names) {
        QByteArrayList rest = all;
        for (const QByteArray &name : names.split(' '))
            rest.removeOne(name);
        return rest;
    };
    const QByteArrayList none;
    QTest::newRow("box silent, factory screen") << 0 << QByteArray("factory") << none << none;
    QTest::newRow("box silent, own screen") << 0 << QByteArray("own") << none << none;
    QTest::newRow("car 1, factory screen") << 1 << QByteArray("factory") << none << none;
    QTest::newRow("car 1, own screen") << 1 << QByteArray("own") << without("hangup mode call softer louder")
                                       << without("louder softer mute 1 2 3 4 launch0");
    QTest::newRow("car 4, factory screen") << 4 << QByteArray("factory") << none << none;
    QTest::newRow("car 4, own screen")
        << 4 << QByteArray("own") << without("call") << without("home softer louder mute");
    QTest::newRow("car 5, factory screen") << 5 << QByteArray("factory") << none << none;
    QTest::newRow("car 5, own screen")
        << 5 << QByteArray("own") << without("softer louder mute") << without("home softer louder mute");
    QTest::newRow("other car, factory screen") << 260 << QByteArray("factory") << none << none;
    QTest::newRow("other car, own screen") << 260 << QByteArray("own") << all << all;
}

void TestXinHangKeys::passing()
{
    QFETCH(int, carType);
    QFETCH(QByteArray, screen);
    QFETCH(QByteArrayList, unitKeys);
    QFETCH(QByteArrayList, panelKeys);
    FakeBox box;
    box.type = quint16(carType);
    QByteArrayList unit;
    QByteArrayList panel;
    for (const Key &key : Keys) {
        XinHangDisplay display(box, nullptr);
        if (screen == "own")
            display.switchDisplay(XinHangDisplay::OwnScreen, false);
        XinHangKeyFilter filter(box, display);
        if (!filter.filterKey(unsigned(key.key), true, false))
            unit << key.name;
        if (!filter.filterPanelKey(unsigned(key.key), true, false))
            panel << key.name;
    }
    QCOMPARE(unit, unitKeys);
    QCOMPARE(panel, panelKeys);
}

void TestXinHangKeys::sequences_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QByteArray>("screen");
    QTest::addColumn<QByteArray>("steps"); // wheel/panel:KEY:STATE, long: the long press time passes
    QTest::addColumn<int>("status");       // status word
    QTest::addColumn<QString>("calls");
    const int noCall = 0;
    const int call = 0x1000000;
    const QByteArray own("own");
    const QByteArray factory("factory");
    const QString toFactory = "send 83 01; GPIOOperater.setValue(30,0)";
    const QString toOwn = "send 83 02; GPIOOperater.setValue(30,1)";
    const QString hangup = "key 1100005 press; key 1100005 release";
    const QString voice = "key 1100008 press; key 1100008 release";
    const QString callKey = "key 1100004 press; key 1100004 release";
    const QString home = "key 1000010 press; key 1000010 release";

    const QByteArray hangupShort("wheel:hangup:1 wheel:hangup:2 wheel:hangup:0");
    QTest::newRow("car 1: hangup, short") << 1 << own << hangupShort << noCall << hangup;
    QTest::newRow("car 1: hangup, short, factory screen") << 1 << factory << hangupShort << noCall << hangup;
    const QByteArray hangupLong("wheel:hangup:1 wheel:hangup:2 long wheel:hangup:2 wheel:hangup:0");
    QTest::newRow("car 1: hangup, long") << 1 << own << hangupLong << noCall << toFactory;
    QTest::newRow("car 1: hangup, long, factory screen") << 1 << factory << hangupLong << noCall << toOwn;
    QTest::newRow("car 1: hangup, long during a call") << 1 << own << hangupLong << call << QString();
    QTest::newRow("car 1: hangup, long, then short")
        << 1 << own << hangupLong + " wheel:hangup:1 wheel:hangup:0" << noCall << toFactory + "; " + hangup;
    QTest::newRow("car 1: hangup, only the release")
        << 1 << own << QByteArray("wheel:hangup:0") << noCall << QString();
    const QByteArray phone("wheel:call:1 wheel:call:2 wheel:call:0");
    QTest::newRow("car 1: phone key") << 1 << own << phone << noCall << voice;
    QTest::newRow("car 1: phone key, first call bit") << 1 << own << phone << call << callKey;
    QTest::newRow("car 1: phone key, second call bit") << 1 << own << phone << 0x2000000 << callKey;
    QTest::newRow("car 1: phone key, other bits") << 1 << own << phone << ~0x3000000 << voice;
    QTest::newRow("car 1: phone key, factory screen") << 1 << factory << phone << noCall << QString();
    QTest::newRow("car 1: panel knob and digits")
        << 1 << factory
        << QByteArray("panel:louder:1 panel:softer:1 panel:mute:2 panel:1:0 panel:2:1 panel:3:1 panel:4:1")
        << noCall
        << "key 1000014 press; key 1000012 press; key 1000005 held; key 1000013 release; key 1000015 press; "
           "key 10000a7 press; key 10000a8 press";
    QTest::newRow("car 1: panel screen key")
        << 1 << own << QByteArray("panel:launch0:1 panel:launch0:2 panel:launch0:0") << noCall << toFactory;
    QTest::newRow("car 4: phone key, short") << 4 << own << phone << noCall << voice;
    QTest::newRow("car 4: phone key, short, factory screen") << 4 << factory << phone << noCall << QString();
    QTest::newRow("car 4: phone key, long")
        << 4 << own << QByteArray("wheel:call:1 long wheel:call:0") << noCall << toFactory;
    const QByteArray homeShort("panel:home:1 panel:home:0");
    const QByteArray homeLong("panel:home:1 long panel:home:2 panel:home:0");
    for (const int carType : {4, 5}) {
        const QByteArray car = "car " + QByteArray::number(carType);
        QTest::newRow(car + ": home, short") << carType << own << homeShort << noCall << home;
        QTest::newRow(car + ": home, short, factory screen")
            << carType << factory << homeShort << noCall << QString();
        QTest::newRow(car + ": home, long") << carType << own << homeLong << noCall << toFactory;
        QTest::newRow(car + ": home, long, factory screen")
            << carType << factory << homeLong << noCall << toOwn;
    }
    QTest::newRow("car 4: a switch of the screen ends the long press")
        << 4 << own << QByteArray("panel:home:1 mode panel:home:0") << noCall << QString();
}

void TestXinHangKeys::sequences()
{
    QFETCH(int, carType);
    QFETCH(QByteArray, screen);
    QFETCH(QByteArray, steps);
    QFETCH(int, status);
    QFETCH(QString, calls);
    XinHangBench &bench = *m_bench;
    bench.drive(carType, screen);
    OrbHost::instance()->setTag(0x10001, quint32(status));
    QStringList done;
    for (const QByteArray &step : steps.split(' ')) {
        const QByteArrayList parts = step.split(':');
        if (parts.first() == "long") {
            QVERIFY(bench.passLongPress());
            done << bench.calls();
        } else if (parts.first() == "mode") {
            bench.adapter->onModeAppChange(2, 0);
        } else {
            const char *const command = parts.first() == "panel" ? "0b" : "03";
            done << bench.exchange(package(command, parts.last().toInt(), parts.at(1)));
        }
    }
    OrbHost::instance()->setTag(0x10001, QVariant());
    QCOMPARE(XinHang::joined(done), calls);
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
