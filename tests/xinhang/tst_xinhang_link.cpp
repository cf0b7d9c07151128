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

private slots:
    void initTestCase();
    void cleanupTestCase();
    void quirk_xinhang_ready_count();
    void packages_data();
    void packages();
    void checksums();
    void portSettings();
    void commands_data();
    void commands();
    void steeringAngles();
    void radarLevels_data();
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

void TestXinHangLink::cleanupTestCase()
{
    m_bench.reset();
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

void TestXinHangLink::packages_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("package");
    QTest::newRow("one data byte") << 0x81 << QByteArray("\x01") << 1 << QByteArray("f002 8101 7d");
    QTest::newRow("fifteen seconds") << 0x8B << QByteArray("\x01\x0f") << 2 << QByteArray("f003 8b010f 64");
    QTest::newRow("no data") << 0x83 << QByteArray() << 0 << QByteArray("f001 83 7c");
    QTest::newRow("no bytes given") << 0x83 << QByteArray() << 2 << QByteArray("f003 830000 7c");
    QTest::newRow("negative length") << 0x83 << QByteArray("\x01") << -1 << QByteArray("f001 83 7c");
    QTest::newRow("longest") << 0x00 << QByteArray(254, '\x01') << 254
                             << "f0ff00" + QByteArray(254, '\x01').toHex() + "01";
    QTest::newRow("too long") << 0x00 << QByteArray(300, '\x01') << 300
                              << "f0ff00" + QByteArray(254, '\x01').toHex() + "01";
}

void TestXinHangLink::packages()
{
    QFETCH(int, command);
    QFETCH(QByteArray, data);
    QFETCH(int, length);
    QFETCH(QByteArray, package);
    const auto *const bytes = reinterpret_cast<const uchar *>(data.constData());
    QCOMPARE(
        CanBus_XinHang::makeMcuProtocol(quint8(command), data.isEmpty() ? nullptr : bytes, length).toHex(),
        QByteArray::fromHex(package).toHex());
}

void TestXinHangLink::checksums()
{
    const QByteArray bytes("\x01\x01\x82");
    QCOMPARE(int(CanBus_XinHang::makeMcuProtocolCheckSum(bytes, 0, 3)), 0x7B);
    QCOMPARE(int(CanBus_XinHang::getPackageCheckSum(bytes, 2, 1)), 0x7D);
    QCOMPARE(int(CanBus_XinHang::getPackageCheckSum(bytes, 2, 2)), 0xFF);
    QCOMPARE(int(CanBus_XinHang::getPackageCheckSum(bytes, 0, 0)), 0xFF);
    QCOMPARE(int(CanBus_XinHang::getPackageCheckSum(bytes, -1, 2)), 0xFF);
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
    const QByteArray lights = "01 00 00 00 00 | 01 00 00 00 01"; // both of the process's detectors at 0
    const QString keyUp = "key 1000013 press; key 1000013 release";
    QTest::newRow("status: first of all, nothing on")
        << QByteArray("01 00 00 00 01") << QByteArray("01 00 00 00 00") << QString();
    QTest::newRow("status: lights on")
        << lights << QByteArray("01 00 00 01 00") << "event(1,1,51007,20484,8)";
    QTest::newRow("status: lights brighter, then off")
        << lights + " | 01 00 00 01 00" << QByteArray("01 00 00 ff 00 | 01 00 00 00 00")
        << "event(1,1,51007,20484,8); event(1,1,51007,20485,8)";
    QTest::newRow("status: doors, upper bits cut")
        << lights << QByteArray("01 00 f5 00 00") << "dispatchOrbEvent(400,12,51007,20507,5)";
    QTest::newRow("status: lights before doors")
        << lights << QByteArray("01 00 02 01 00")
        << "event(1,1,51007,20484,8); dispatchOrbEvent(400,12,51007,20507,2)";
    QTest::newRow("status: the same twice") << lights << QByteArray("01 00 01 00 00 | 01 00 01 00 00")
                                            << "dispatchOrbEvent(400,12,51007,20507,1)";
    QTest::newRow("status: only the unknown byte changes")
        << lights << QByteArray("01 00 00 00 77") << QString();
    // The byte behind the data is the checksum, further ones are 0.
    QTest::newRow("status: two bytes") << lights << QByteArray("01 00 03")
                                       << "event(1,1,51007,20484,8); dispatchOrbEvent(400,12,51007,20507,3)";
    QTest::newRow("radar and steering") << QByteArray() << QByteArray("02 85 00 01 02 03 04 05 06 07")
                                        << "dispatchOrbEvent(400,12,51007,20504,0,bytes=0001020304050606); "
                                           "dispatchOrbEvent(400,12,51007,20508,0,variant=5)";
    QTest::newRow("radar with other maximums, then none")
        << QByteArray("09 01 02 03 04 05 06 07 00")
        << QByteArray("02 05 01 01 01 01 01 01 01 01 | 09 00 00 | 02")
        << "dispatchOrbEvent(400,12,51007,20504,0,bytes=06030202020101ff); "
           "dispatchOrbEvent(400,12,51007,20508,0,variant=-5); "
           "dispatchOrbEvent(400,12,51007,20504,0,bytes=0000000000000000); "
           "dispatchOrbEvent(400,12,51007,20508,0,variant=125)";
    QTest::newRow("touch: press, move, release")
        << QByteArray() << QByteArray("04 01 03 ff 02 57 | 04 02 ff ff 00 00 | 04 00 00 01 01 00")
        << "OrbApplication.simulateMouse(2,1023,599); OrbApplication.simulateMouse(5,65535,0); "
           "OrbApplication.simulateMouse(3,1,256)";
    QTest::newRow("touch: unknown state") << QByteArray() << QByteArray("04 03 00 01 00 01") << QString();
    QTest::newRow("cursor: up") << QByteArray() << QByteArray("87 00") << keyUp;
    QTest::newRow("cursor: down, left, right")
        << QByteArray() << QByteArray("87 01 | 87 02 | 87 03")
        << "key 1000015 press; key 1000015 release; key 1000012 press; key 1000012 release; "
           "key 1000014 press; key 1000014 release";
    QTest::newRow("cursor: unknown") << QByteArray() << QByteArray("87 04") << QString();
    QTest::newRow("application: back") << QByteArray() << QByteArray("0c 00") << "event(401,25,51003,0,0)";
    QTest::newRow("application: first") << QByteArray() << QByteArray("0c 01") << "event(401,25,51001,2,770)";
    QTest::newRow("application: second")
        << QByteArray() << QByteArray("0c 02") << "event(401,25,51001,1,771)";
    QTest::newRow("application: unknown") << QByteArray() << QByteArray("0c 03") << QString();
    QTest::newRow("car type: too short") << QByteArray() << QByteArray("0a 04") << QString();
    QTest::newRow("car type 4") << QByteArray() << QByteArray("0a 00 04")
                                << "send 82 40 00; dispatchOrbEvent(401,12,51007,20510,0); "
                                   "dispatchOrbEvent(401,12,51007,20509,0); "
                                   "GPIOOperater.setDirection(34,out); GPIOOperater.setValue(34,0)";
    QTest::newRow("update without a file")
        << QByteArray() << QByteArray("08 01 | 08 02 00 00 00 00 00 | 08 03") << "send 86 03 00";
    QTest::newRow("unknown commands")
        << QByteArray() << QByteArray("00 | 06 01 | 07 01 | 0d 01 | 81 01 01 | ff 01") << QString();
}

void TestXinHangLink::commands()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, packages);
    QFETCH(QString, calls);
    if (!before.isEmpty())
        m_bench->exchange(before);
    QCOMPARE(XinHang::joined(m_bench->exchange(packages)), calls);
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

void TestXinHangLink::radarLevels_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QByteArray>("levels"); // raw 0, 1, 2 ...
    QTest::newRow("as at start") << 7 << QByteArray("00 01 02 03 04 05 06 06 07");
    QTest::newRow("one step") << 1 << QByteArray("00 06 0c 12");
    QTest::newRow("fine steps") << 255 << QByteArray("00 01 01 01 01 01 01 01 01 01");
    QTest::newRow("no maximum") << 0 << QByteArray("00 ff ff");
}

void TestXinHangLink::radarLevels()
{
    QFETCH(int, maximum);
    QFETCH(QByteArray, levels);
    XinHangBench &bench = *m_bench;
    bench.exchange("09 " + QByteArray(8, char(maximum)).toHex());
    levels = QByteArray::fromHex(levels);
    for (int raw = 0; raw < levels.size(); ++raw)
        QCOMPARE(int(bench.adapter->transRadarLevel(7, quint8(raw))), int(quint8(levels.at(raw))));
    QCOMPARE(int(bench.adapter->transRadarLevel(0, 255)),
             maximum == 0 ? 255 : (255 * 6 + maximum - 1) / maximum % 256);
    QCOMPARE(int(bench.adapter->transRadarLevel(8, 1)), 0);
    QCOMPARE(int(bench.adapter->transRadarLevel(-1, 1)), 0);
}

// Every code of wheel and panel in every state, in a car that filters nothing.
void TestXinHangLink::keys()
{
    const QHash<int, QString> known = {
        {0x01, "1000013"}, {0x02, "1000015"}, {0x03, "10000a7"}, {0x04, "10000a8"}, {0x05, "1000005"},
        {0x06, "1000061"}, {0x07, "1000005"}, {0x08, "1000082"}, {0x09, "1000083"}, {0x0A, "10000c5"},
        {0x0B, "1000102"}, {0x0C, "1000070"}, {0x0D, "1000072"}, {0x0E, "1000071"}, {0x0F, "1100004"},
        {0x10, "1100005"}, {0x11, "100117e"}, {0x12, "1000010"}, {0x13, "1100008"}, {0x14, "1100008"},
        {0x15, "1100008"}, {0x16, "1000010"}, {0x17, "10000a2"}, {0x18, "10000ff"}, {0x19, "10000f3"},
        {0x1A, "1000071"}, {0x1B, "10000fd"}, {0x1D, "31"},      {0x1E, "32"},      {0x1F, "33"},
        {0x20, "34"},      {0x21, "35"},      {0x22, "36"},      {0xFE, "1000012"}, {0xFF, "1000014"}};
    m_bench->drive(2, "own");
    for (const QByteArray command : {"03 0", "0b 0"}) {
        QByteArrayList packages;
        QStringList calls;
        for (int code = 0; code < 256; ++code) {
            for (const char *const state : {"1 ", "2 ", "0 ", "3 "})
                packages << command + state + QByteArray(1, char(code)).toHex();
            if (known.contains(code))
                calls << QString("key %1 press; key %1 held; key %1 release").arg(known.value(code));
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
    QTest::newRow("brightness") << "notify" << 0x5020 << 0x7F << "send 89 7f";
    QTest::newRow("brightness past a byte") << "notify" << 0x5020 << 0x1FF << "send 89 ff";
    QTest::newRow("leaves the box's screen") << "notify" << 0x5024 << 0 << "send 8a 00";
    QTest::newRow("stays on the box's screen") << "notify" << 0x5024 << 1 << QString();
    QTest::newRow("other notification") << "notify" << 0x5021 << 0 << QString();
    QTest::newRow("shows its own application")
        << "show" << 769 << 0 << "send 83 01; GPIOOperater.setValue(30,0)";
    QTest::newRow("shows the first of the box")
        << "show" << 770 << 0 << "send 8a 01; event(401,25,51001,2,770)";
    QTest::newRow("shows the second of the box")
        << "show" << 771 << 0 << "send 8a 02; event(401,25,51001,1,771)";
    QTest::newRow("shows another") << "show" << 768 << 0 << QString();
    QTest::newRow("translates") << "translate" << 0 << 0
                                << "OrbCommons.TranslateAppTitle(769," + AppTitleFromAppId(204) + ')';
}

void TestXinHangLink::unitCalls()
{
    QFETCH(QString, call);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, calls);
    XinHangBench &bench = *m_bench;
    bench.drive(2, "own");
    OrbEvent event(1, 1, OrbEvent::NotifyType);
    event.setParams(unsigned(first), unsigned(second));
    if (call == "notify")
        bench.adapter->orbAppNotify(&event);
    else if (call == "show")
        bench.adapter->showApp(unsigned(first));
    else
        bench.adapter->translateApp();
    QCOMPARE(XinHang::joined(bench.calls()), calls);
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
    if (existed && file.open(QIODevice::WriteOnly))
        file.write(before);
    QCOMPARE(written, QByteArray("xh_5_V1.2 'x'; rm -r\n"));
}

void TestXinHangLink::hostileBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray shortPackages;
    for (int command = 0; command < 256; ++command)
        shortPackages += XinHangWire::frame(QByteArray(1, char(command)).toHex());
    QByteArray noise(20000, '\0');
    QRandomGenerator random(4);
    for (char &byte : noise)
        byte = random.bounded(8) == 0 ? '\xF0' : char(random.bounded(256));
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
