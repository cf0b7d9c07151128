#include "xinhangbench.h"

namespace {

const char ToOwn[] = "send 83 02; GPIOOperater.setValue(30,1)";
const char ToFactory[] = "send 83 01; GPIOOperater.setValue(30,0)";

} // namespace

class TestXinHangDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callEndsBeforeAnyBegan();
    void construction();
    void triggers_data();
    void triggers();
    void modes();
    void longPressTime();
    void cleanupTestCase() { m_bench.reset(); }

private:
    XinHangBench &sharedBench(const QVariantMap &settings = QVariantMap());

    QScopedPointer<XinHangBench> m_bench;
    QVariantMap m_settings; // that the bench was built with
};

// First: the screen before the call is the process's, and at first the one that is shown.
void TestXinHangDisplay::callEndsBeforeAnyBegan()
{
    XinHangBench bench;
    bench.drive(2, "own");
    bench.adapter->orbAppStateChange(0, 0x1000000);
    QCOMPARE(bench.calls(), QStringList());
    bench.drive(2, "factory");
    bench.adapter->orbAppStateChange(0, 0x1000000);
    QCOMPARE(XinHang::joined(bench.calls()), QString(ToOwn));
}

void TestXinHangDisplay::construction()
{
    TraceRecorder trace;
    const CanBus_XinHang adapter;
    const QStringList expected = {"GPIOOperater.setDirection(30,out)", "GPIOOperater.setValue(30,0)"};
    QCOMPARE(trace.linesOf("GPIOOperater"), expected);
}

void TestXinHangDisplay::triggers_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QByteArray>("steps"); // package | state:STATE:MASK | long | show
    QTest::addColumn<QString>("calls");
    QTest::addColumn<int>("display");
    const auto row = [](const char *name, int carType, const QVariantMap &settings, const QByteArray &steps,
                        const QString &calls, int display) {
        QTest::newRow(name) << carType << settings << steps << calls << display;
    };
    const QVariantMap camera360{{"SetItem1", 1}};
    const QVariantMap right{{"SetItem2", 1}};
    const QString camera = "send 83 01";
    const QString back = "send 83 02";
    row("status: factory screen", 1, {}, "01 10 00 00 00", "", 1);
    row("status: own screen", 1, {}, "01 ef 00 00 00", "", 2);
    row("360, reversing", 1, camera360, "01 20 00 00 00", camera, 1);
    row("360, right indicator", 1, camera360, "01 40 00 00 00", camera, 1);
    row("360, reversing, but the car has its screen", 1, camera360, "01 30 00 00 00", "", 1);
    row("360, reversing twice", 1, camera360, "01 20 00 00 00 | 01 20 00 00 01", camera, 2);
    row("360, reversing goes over into right", 1, camera360, "01 20 00 00 00 | 01 50 00 00 00", camera, 1);
    row("quirk_xinhang_camera_return", 1, camera360, "01 20 00 00 00 | 01 00 00 00 00 | 01 00 00 00 01",
        camera + "; " + back, 2);
    row("360, manual switching waits for the end", 1, camera360,
        "01 20 00 00 00 | show | long | state:1000000:1000000 | 01 10 00 00 00 | show",
        camera + "; " + back + "; " + ToFactory, 1);
    row("right camera, indicator", 1, right, "01 40 00 00 00", camera, 1);
    row("right camera, reversing", 1, right, "01 20 00 00 00", "", 2);
    row("added camera", 1, {{"SetItem1", 2}}, "01 60 00 00 00", "", 2);
    row("car 4 has no camera bits", 4, camera360, "01 60 00 00 00", "", 2);

    const QByteArray own("01 00 00 00 00 | ");
    const QByteArray factory("01 10 00 00 00 | ");
    row("long press, bit 2", 2, {}, own + "tag:4 | long", "", 2);
    row("long press, other bits", 2, {}, own + "tag:fcfffffb | long", ToFactory, 1);
    row("call on the factory screen", 2, {}, factory + "state:1000000:1000000 | state:0:1000000",
        QString(ToOwn) + "; " + ToFactory, 1);
    row("call on the own screen", 2, {}, own + "state:2000000:2000000 | state:0:2000000", "", 2);
    row("quirk_xinhang_call_twice", 2, {},
        factory + "state:1000000:1000000 | state:2000000:2000000 | state:0:2000000", ToOwn, 2);
    row("state: both bits in one mask", 2, {}, factory + "state:3000000:3000000", "", 1);
    row("state: the bit of another mask", 2, {}, factory + "state:1000000:2000000", ToOwn, 2);
    row("shown already", 2, {}, factory + "show", "", 1);
}

void TestXinHangDisplay::triggers()
{
    QFETCH(int, carType);
    QFETCH(QVariantMap, settings);
    QFETCH(QByteArray, steps);
    XinHangBench &bench = sharedBench(settings);
    bench.drive(carType, "own");
    QStringList done;
    for (const QByteArray &step : steps.split('|')) {
        const QByteArrayList parts = step.trimmed().split(':');
        if (parts.first() == "tag") {
            OrbHost::instance()->setTag(0x10001, parts.at(1).toUInt(nullptr, 16));
        } else if (parts.first() == "state") {
            bench.adapter->orbAppStateChange(parts.at(1).toULong(nullptr, 16),
                                             parts.at(2).toULong(nullptr, 16));
        } else if (parts.first() == "long") {
            bench.adapter->onSwitchDisplayTimer();
        } else if (parts.first() == "show") {
            bench.adapter->showApp(769);
        } else {
            done << bench.exchange(step);
        }
        done << bench.calls();
    }
    OrbHost::instance()->setTag(0x10001, QVariant());
    QTEST(XinHang::joined(done), "calls");
    QTEST(int(bench.adapter->getDisplay()), "display");
}

/// The bench of the test before, unless that had other settings.
XinHangBench &TestXinHangDisplay::sharedBench(const QVariantMap &settings)
{
    if (!m_bench || settings != m_settings) {
        m_bench.reset(); // two at a time would share the settings file
        m_bench.reset(new XinHangBench(settings));
        m_settings = settings;
    }
    return *m_bench;
}

void TestXinHangDisplay::modes()
{
    XinHangBench &bench = sharedBench();
    QList<uint> switching;
    for (uint mode = 0; mode < 20; ++mode) {
        bench.drive(2, "factory");
        Q_EMIT OrbApplication::instance()->modeAppChanged(mode, 0);
        if (XinHang::joined(bench.calls()) == ToOwn) {
            switching << mode;
        }
    }
    const QList<uint> expected = {2, 4, 5, 7, 13};
    QCOMPARE(switching, expected);
}

// The one test that waits for the time itself.
void TestXinHangDisplay::longPressTime()
{
    XinHangBench &bench = sharedBench();
    bench.drive(1, "own");
    bench.exchange("03 01 10");
    QTest::qWait(1300);
    QCOMPARE(bench.calls(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(int(bench.adapter->getDisplay()), 1, 600);
    QCOMPARE(XinHang::joined(bench.exchange("03 00 10")), QString());
}

CANBUS_TEST_MAIN(TestXinHangDisplay)
#include "tst_xinhang_display.moc"
