#include "xinhangbench.h"

#include "orbcommons.h"
#include "orbevent.h"
#include <qextserialport.h>

#include <QFile>
#include <QRandomGenerator>
#include <QTimer>

class TestXinHangLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_bench.reset(); }
    void quirk_xinhang_ready_count();
    void packages();
    void portSettings();
    void commands_data();
    void commands();
    void steeringAngles();
    void radarLevels();
    void keys();
    void unitCalls_data();
    void unitCalls();
    void versionFile();
    void hostileBytes_data();
    void hostileBytes();

private:
    QScopedPointer<XinHangBench> m_bench; // of all tests that do not say otherwise
};

void TestXinHangLink::initTestCase()
{
    m_bench.reset(new XinHangBench);
    m_bench->drive(2, "own"); // before the first ready message is sent
}

// First: the count is the process's.
void TestXinHangLink::quirk_xinhang_ready_count()
{
    for (int sendings : {51, 1}) {
        XinHangBench bench;
        QTimer *const timer = bench.adapter->findChild<QTimer *>("sendReadyTimer");
        QCOMPARE(timer->interval(), 500);
        QVERIFY(timer->isActive());
        timer->start(1);
        QTRY_VERIFY(!timer->isActive());
        const QByteArray ready = QByteArray::fromHex("f0038101017c");
        QVERIFY(bench.box.waitForBytes(sendings * int(ready.size())));
        QCOMPARE(bench.box.takeUntilQuiet(30), ready.repeated(sendings));
    }
}

void TestXinHangLink::packages()
{
    const auto made = [](quint8 command, const QByteArray &data, int length) {
        const auto *const bytes = reinterpret_cast<const uchar *>(data.constData());
        return CanBus_XinHang::makeMcuProtocol(command, data.isEmpty() ? nullptr : bytes, length).toHex();
    };
    QCOMPARE(made(0x8B, "\x01\x0f", 2), QByteArray("f0038b010f64"));
    QCOMPARE(made(0x83, "", 2), QByteArray("f0038300007c"));
    QCOMPARE(made(0x83, "\x01", -1), QByteArray("f001837c"));
    QCOMPARE(made(0x00, QByteArray(300, '\x01'), 300), "f0ff00" + QByteArray("01").repeated(255));
}

void TestXinHangLink::portSettings()
{
    PortSettings settings;
    QVERIFY(m_bench->adapter->getPortSettings(settings));
    QCOMPARE(int(settings.BaudRate), 115200);
    QCOMPARE(settings.Timeout_Millisec, 500L);
}

void TestXinHangLink::commands_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QString>("calls");
    const auto status = [](const char *name, const char *before, const char *packages, const char *calls) {
        // Both of the process's detectors are at 0.
        QTest::newRow(name) << "01 00 00 00 00 | 01 00 00 00 01" + QByteArray(before) << QByteArray(packages)
                            << QString(calls);
    };
    status("status: nothing on", "", "01 00 00 00 00", "");
    status("status: lights on", "", "01 00 00 01 00", "event(1,1,51007,20484,8)");
    status("status: lights brighter, then off", " | 01 00 00 01 00", "01 00 00 ff 00 | 01 00 00 00 00",
           "event(1,1,51007,20484,8); event(1,1,51007,20485,8)");
    status("status: doors, upper bits cut", "", "01 00 f5 00 00", "dispatchOrbEvent(400,12,51007,20507,5)");
    status("status: lights before doors", "", "01 00 02 01 00",
           "event(1,1,51007,20484,8); dispatchOrbEvent(400,12,51007,20507,2)");
    status("status: the same twice", "", "01 00 01 00 00 | 01 00 01 00 00",
           "dispatchOrbEvent(400,12,51007,20507,1)");
    status("status: only the unknown byte changes", "", "01 00 00 00 77", "");
    // The byte behind the data is the checksum, further ones are 0.
    status("status: two bytes", "", "01 00 03",
           "event(1,1,51007,20484,8); dispatchOrbEvent(400,12,51007,20507,3)");
    const auto row = [](const char *name, const char *packages, const char *calls) {
        QTest::newRow(name) << QByteArray() << QByteArray(packages) << QString(calls);
    };
    row("radar and steering", "02 85 00 01 02 03 04 05 06 07",
        "dispatchOrbEvent(400,12,51007,20504,0,bytes=0001020304050606); "
        "dispatchOrbEvent(400,12,51007,20508,0,variant=5)");
    row("radar with other maximums, then none",
        "09 01 02 03 04 05 06 07 00 | 02 05 01 01 01 01 01 01 01 01 | 09 00 00 | 02",
        "dispatchOrbEvent(400,12,51007,20504,0,bytes=06030202020101ff); "
        "dispatchOrbEvent(400,12,51007,20508,0,variant=-5); "
        "dispatchOrbEvent(400,12,51007,20504,0,bytes=0000000000000000); "
        "dispatchOrbEvent(400,12,51007,20508,0,variant=125)");
    row("touch: press, move, release, unknown",
        "04 01 03 ff 02 57 | 04 02 ff ff 00 00 | 04 00 00 01 01 00 | 04 03 00 01 00 01",
        "OrbApplication.simulateMouse(2,1023,599); OrbApplication.simulateMouse(5,65535,0); "
        "OrbApplication.simulateMouse(3,1,256)");
    row("cursor: up, down", "87 00 | 87 01",
        "key 1000013 press; key 1000013 release; key 1000015 press; key 1000015 release");
    row("cursor: left, right, unknown", "87 02 | 87 03 | 87 04",
        "key 1000012 press; key 1000012 release; key 1000014 press; key 1000014 release");
    row("application: back, unknown", "0c 00 | 0c 03", "event(401,25,51003,0,0)");
    row("application: first, second", "0c 01 | 0c 02",
        "event(401,25,51001,2,770); event(401,25,51001,1,771)");
    row("car type: too short", "0a 04", "");
    row("update without a file", "08 01 | 08 02 00 00 00 00 00 | 08 03", "send 86 03 00");
    row("unknown commands", "00 | 06 01 | 07 01 | 0d 01 | 81 01 01 | ff 01", "");
}

void TestXinHangLink::commands()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, packages);
    if (!before.isEmpty()) {
        m_bench->exchange(before);
    }
    QTEST(XinHang::joined(m_bench->exchange(packages)), "calls");
}

void TestXinHangLink::steeringAngles()
{
    QByteArrayList packages;
    QStringList angles;
    for (int value = 0; value < 256; ++value) {
        packages << "02 " + QByteArray(1, char(value)).toHex();
        angles << QString("dispatchOrbEvent(400,12,51007,20508,0,variant=%1)")
                      .arg(value & 0x80 ? value & 0x7F : -(value & 0x7F));
    }
    QCOMPARE(m_bench->exchange(packages.join('|')).filter(",20508,"), angles);
}

void TestXinHangLink::radarLevels()
{
    struct Level
    {
        int sensor;
        int raw;
        int level;
    };
    const Level levels[] = {{0, 0, 0}, {0, 1, 6},   {0, 3, 18}, {0, 255, 0xFA}, {1, 1, 1},
                            {1, 9, 1}, {1, 255, 6}, {2, 0, 0},  {2, 1, 255},    {2, 255, 255},
                            {7, 6, 6}, {7, 8, 7},   {8, 1, 0},  {-1, 1, 0}};
    m_bench->exchange("09 01 ff 00 07 07 07 07 07");
    for (const Level &expected : levels) {
        const int level = m_bench->adapter->transRadarLevel(expected.sensor, quint8(expected.raw));
        QVERIFY2(level == expected.level,
                 qPrintable(QString("%1 %2").arg(expected.sensor).arg(expected.raw)));
    }
}

// Every code of wheel and panel in every state, in a car that filters nothing.
void TestXinHangLink::keys()
{
    m_bench->drive(2, "own");
    for (const QByteArray command : {"03 0", "0b 0"}) {
        QByteArrayList packages;
        QStringList calls;
        for (int code = 0; code < 256; ++code) {
            for (const char *const state : {"1 ", "2 ", "0 ", "3 "}) {
                packages << command + state + QByteArray(1, char(code)).toHex();
            }
            if (XinHang::unitKeys().contains(code)) {
                calls << QString("key %1 press; key %1 held; key %1 release")
                             .arg(XinHang::unitKeys().value(code), 0, 16);
            }
        }
        QCOMPARE(XinHang::joined(m_bench->exchange(packages.join('|'))), XinHang::joined(calls));
    }
}

void TestXinHangLink::unitCalls_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char *name, const char *call, int first, int second, const QString &calls) {
        QTest::newRow(name) << QString(call) << first << second << calls;
    };
    row("brightness past a byte", "notify", 0x5020, 0x1FF, "send 89 ff");
    row("leaves the box's screen", "notify", 0x5024, 0, "send 8a 00");
    row("stays on the box's screen", "notify", 0x5024, 1, "");
    row("other notification", "notify", 0x5021, 0, "");
    row("shows its own application", "show", 769, 0, "send 83 01; GPIOOperater.setValue(30,0)");
    row("shows the first of the box", "show", 770, 0, "send 8a 01; event(401,25,51001,2,770)");
    row("shows the second of the box", "show", 771, 0, "send 8a 02; event(401,25,51001,1,771)");
    row("shows another", "show", 768, 0, "");
    row("translates", "translate", 0, 0, "OrbCommons.TranslateAppTitle(769," + AppTitleFromAppId(204) + ')');
}

void TestXinHangLink::unitCalls()
{
    QFETCH(QString, call);
    QFETCH(int, first);
    QFETCH(int, second);
    m_bench->drive(2, "own");
    OrbEvent event(1, 1, OrbEvent::NotifyType);
    event.setParams(unsigned(first), unsigned(second));
    if (call == "notify") {
        m_bench->adapter->orbAppNotify(&event);
    } else if (call == "show") {
        m_bench->adapter->showApp(unsigned(first));
    } else {
        m_bench->adapter->translateApp();
    }
    QTEST(XinHang::joined(m_bench->calls()), "calls");
}

void TestXinHangLink::versionFile()
{
    QFile file("/tmp/can_version");
    const bool existed = file.open(QIODevice::ReadOnly);
    const QByteArray before = file.readAll();
    file.close();

    m_bench->drive(5, "own");
    m_bench->exchange("05 " + QByteArray("V1.2 'x'; rm\n -r\0 padding", 24).toHex());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    file.close();
    file.remove();
    if (existed && file.open(QIODevice::WriteOnly)) {
        file.write(before);
    }
    QCOMPARE(written, QByteArray("xh_5_V1.2 'x'; rm -r\n"));
}

void TestXinHangLink::hostileBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray shortPackages;
    for (int command = 0; command < 256; ++command) {
        shortPackages += XinHangWire::frame(QByteArray(1, char(command)).toHex());
    }
    QByteArray noise(20000, '\0');
    QRandomGenerator random(4);
    for (char &byte : noise) {
        byte = random.bounded(8) == 0 ? '\xF0' : char(random.bounded(256));
    }
    // A shell command could be in the noise; the version command is not.
    noise.replace('\x05', '\x04');
    QTest::newRow("length 0") << QByteArray::fromHex("f000ff f000ff f00000");
    QTest::newRow("length 1, every command") << shortPackages.replace(XinHangWire::frame("05"), "");
    QTest::newRow("wrong checksum") << QByteArray::fromHex("f0028700 00");
    QTest::newRow("noise") << noise;
}

void TestXinHangLink::hostileBytes()
{
    QFETCH(QByteArray, bytes);
    XinHangBench &bench = *m_bench;
    bench.box.send(bytes);
    // A start byte at the end of the noise may claim what follows, but not for long.
    QVERIFY(PtyBox::waitUntil([&] {
        bench.box.send(XinHangWire::frame("0c 02"));
        QTest::qWait(50);
        return bench.calls().contains("event(401,25,51001,1,771)");
    }));
}

CANBUS_TEST_MAIN(TestXinHangLink)
#include "tst_xinhang_link.moc"
