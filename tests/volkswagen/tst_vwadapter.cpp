#include "adapterfixture.h"

#include "volkswagen/canbus_raise_volkswagen.h"

#include "orbhost.h"

/// The adapter on a pseudo-terminal: what each package makes the unit do, in order, and what the unit sends.
class TestVwAdapter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void startUp();
    void decodes_data();
    void decodes();
    void keys_data();
    void keys();
    void temperatures();
    void handsOnWhatItDoesNotDecode_data();
    void handsOnWhatItDoesNotDecode();
    void sendsCommands();
    void repeatsTheLastReports();
    void opensOnlyItsOwnScreen();

private:
    AdapterFixture *m_unit = nullptr;
    CanBus_Raise_Volkswagen *m_adapter = nullptr;
};

namespace {

enum Key {
    VolumeDown = 0x01000070,
    VolumeMute = 0x01000071,
    VolumeUp = 0x01000072,
    Previous = 0x01000082,
    Next = 0x01000083,
    Rewind = 0x010000C5,
    Bluetooth = 0x010000FF,
    Forward = 0x01000102,
    Mode = 0x0100117E,
    Call = 0x01100004,
    Hangup = 0x01100005,
    VoiceDial = 0x01100008
};

// Trace lines of one key: press, repeat while held, release.
QString down(int code)
{
    return TestSupport::key(code, true, false, 1);
}
QString held(int code)
{
    return TestSupport::key(code, true, true, 1);
}
QString up(int code, int last)
{
    return TestSupport::key(code, false, false, last);
}
QStringList tap(int code)
{
    return QStringList() << down(code) << up(code, 1);
}

QString radar(int what, const char *levels)
{
    return QString("dispatchOrbEvent(400,12,51007,%1,0,bytes=%2)").arg(what).arg(levels);
}

QString status(int bits)
{
    return QString("dispatchOrbEvent(400,12,51007,%1,%2)").arg(0x501B).arg(bits);
}

void addTraceColumns()
{
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QStringList>("calls");
}

void row(const char *name, const char *packages, const QStringList &calls)
{
    QTest::newRow(name) << QByteArray(packages) << calls;
}

} // namespace

void TestVwAdapter::initTestCase()
{
    m_unit = new AdapterFixture;
    m_adapter = m_unit->start<CanBus_Raise_Volkswagen>();
}

void TestVwAdapter::cleanupTestCase()
{
    delete m_unit;
}

void TestVwAdapter::startUp()
{
    AdapterFixture unit;
    CanBus_Raise_Volkswagen *const adapter = unit.construct<CanBus_Raise_Volkswagen>();
    QCOMPARE(unit.trace.take(), QStringList() << "AirConditionDlg.setPTCModeVisible(false)"
                                              << "AirConditionDlg.setTemperatureRange(16,29.5)");
    unit.open();
    QVERIFY(unit.box.waitForBytes(10));
    QCOMPARE(unit.trace.linesOf("OrbCommons"), QStringList() << "OrbCommons.AppendAppTitle(769,Car infos)");
    QCOMPARE(unit.trace.linesOf("dispatchOrbEvent"),
             QStringList() << "dispatchOrbEvent(400,10,51013,769,0,string=:/launcher/carinfo_di_n.png,"
                              ":/launcher/carinfo_di_h.png)");
    QVERIFY(!QPixmap(":/launcher/carinfo_di_n.png").isNull());
    QVERIFY(!QPixmap(":/launcher/carinfo_di_h.png").isNull());
    unit.trace.take();
    adapter->translateApp();
    QCOMPARE(unit.trace.take(), QStringList() << "OrbCommons.TranslateAppTitle(769,Car infos)");
}

void TestVwAdapter::decodes_data()
{
    addTraceColumns();

    const auto climate = [](const QString &calls) { return TestSupport::words("AirConditionDlg.", calls); };
    row("status bits 7..4 as bits 1 0 3 2", "24 40 | 24 80 | 24 10 | 24 20 | 24 0f",
        {status(1), status(2), status(4), status(8), status(0)});
    row("climate: all set", "21 ff e7 01 1e 20 00 00 00",
        climate("setAirConditionEnable(true) setACEnable(true) setWindDirectEx(7) setAirVolume(7) "
                "setCirculationMode(255) setAutoModeEnable(true) setWindDirect(255) setDefrostingMode() "
                "setTemperature(16.0°C,30.5°C) setVisible(true)"));
    row("climate: fan at rest switches it off", "21 80 80 02 03 00 00 00 00",
        climate("setAirConditionEnable(true) setACEnable(false) setWindDirectEx(4) setAirVolume(0) "
                "setAirConditionEnable(false) setCirculationMode(0) setAutoModeEnable(false) "
                "setTemperature(16.5°C,17.0°C) setVisible(true)"));
    row("climate: weak auto, face, recirculation, Fahrenheit", "21 30 41 01 1e 01 00 00 00",
        climate("setAirConditionEnable(false) setACEnable(false) setWindDirectEx(2) setAirVolume(1) "
                "setCirculationMode(1) setAutoModeEnable(true) setWindDirect(255) "
                "setTemperature(60°F,89°F) setVisible(true)"));
    row("climate: feet, the other bits mean nothing", "21 05 3a 00 1f de 00 00 00",
        climate("setAirConditionEnable(false) setACEnable(false) setWindDirectEx(1) setAirVolume(2) "
                "setCirculationMode(0) setAutoModeEnable(false) setTemperature(LO,HI) setVisible(true)"));
    row("front radar rounds up: a tenth outside, 1/27.5 inside",
        "22 00 00 00 00 00 00 | 22 01 01 01 01 00 00 | 22 0a 1b 1c 0b 00 00 | 22 ff ff ff ff 00 00",
        {radar(0x501A, "00000000"), radar(0x501A, "01010101"), radar(0x501A, "01010202"),
         radar(0x501A, "1a0a0a1a")});
    row("rear radar rounds up: a tenth outside, a twentieth inside",
        "23 14 14 15 15 00 00 | 23 64 64 65 65 ff ff | 23 ff ff ff ff 00 00",
        {radar(0x5019, "02010203"), radar(0x5019, "0a05060b"), radar(0x5019, "1a0d0d1a")});
    row("unknown commands do nothing", "30 01 02 | ff | 00 00", {});
}

void TestVwAdapter::decodes()
{
    QFETCH(QByteArray, packages);
    QFETCH(QStringList, calls);
    QCOMPARE(m_unit->exchange(packages.constData()), calls);
}

void TestVwAdapter::keys_data()
{
    addTraceColumns();

    // The first package of a row forgets what the row before left held.
    row("wheel: volume up", "20 09 00 | 20 01 01 | 20 00 00", {down(VolumeUp), up(VolumeUp, 0)});
    row("wheel: volume down, held", "20 09 00 | 20 02 01 | 20 02 02 | 20 00 00",
        {down(VolumeDown), held(VolumeDown), up(VolumeDown, 0)});
    int number = 3;
    for (int code : {Next, Previous, Bluetooth, VolumeMute, Mode, VoiceDial}) {
        const QByteArray package = "20 0" + QByteArray::number(number++) + " 01";
        row(("wheel: " + package).constData(), ("20 09 00 | " + package).constData(), {down(code)});
    }
    row("wheel: state 0 is a release, an unknown one a press", "20 09 00 | 20 03 00 | 20 03 07",
        {up(Next, 1), down(Next)});
    row("wheel: an unknown key forgets the held one", "20 01 01 | 20 09 01 | 20 ff 01 | 20 00 00",
        {down(VolumeUp)});
    row("wheel: a release comes once", "20 01 01 | 20 00 00 | 20 00 00", {down(VolumeUp), up(VolumeUp, 0)});
    row("wheel: no data bytes", "20 09 00 | 20", {});

    row("function: keys that tap", "2f 00 | 2f 01 | 2f 02 | 2f 11 | 2f 12",
        tap(Previous) + tap(Next) + tap(Call) + tap(Hangup));
    row("function: forward goes down and comes up", "2f 00 | 2f 03 | 2f 05 | 2f 05",
        {down(Forward), up(Forward, 0)});
    row("function: rewind goes down and comes up", "2f 00 | 2f 04 | 2f 05", {down(Rewind), up(Rewind, 0)});
    row("function: release without a key", "2f 00 | 2f 05", {});
    row("quirk_vw_release_taps_again", "2f 00 | 2f 01 | 2f 05 | 2f 05",
        tap(Previous) + tap(Previous) + tap(Previous));
    for (const QByteArray code : {"06", "10", "13", "00", "ff"}) {
        row(("function: " + code + " forgets the held key").constData(),
            ("2f 03 | 2f " + code + " | 2f 05").constData(), {down(Forward)});
    }
}

void TestVwAdapter::keys()
{
    decodes();
}

void TestVwAdapter::temperatures()
{
    // Straight into the adapter: 512 packages need no line.
    for (int value = 0; value <= 255; ++value) {
        const QByteArray both(2, char(value));
        m_unit->trace.take();
        m_adapter->onRecvMcuProtocol(RaiseWire::frame(0x21, QByteArray(2, 0) + both + QByteArray(4, 0)));
        m_adapter->onRecvMcuProtocol(
            RaiseWire::frame(0x21, QByteArray(2, 0) + both + QByteArray(1, 1) + QByteArray(3, 0)));

        const int halfDegrees = 31 + value;
        QString celsius = QString("%1.%2°C").arg(halfDegrees / 2).arg(halfDegrees % 2 ? 5 : 0);
        QString fahrenheit = QString("%1°F").arg(59 + value);
        if (value == 0 || value > 30) {
            celsius = fahrenheit = value == 0 ? "LO" : "HI";
        }
        QCOMPARE(m_unit->trace.linesOf("AirConditionDlg.setTemperature"),
                 QStringList() << QString("AirConditionDlg.setTemperature(%1,%1)").arg(celsius)
                               << QString("AirConditionDlg.setTemperature(%1,%1)").arg(fahrenheit));
    }
    m_unit->box.takeUntilQuiet();
}

void TestVwAdapter::handsOnWhatItDoesNotDecode_data()
{
    QTest::addColumn<QByteArray>("package");
    QTest::newRow("climate of 7 bytes") << QByteArray("21 ff ff ff ff ff ff ff");
    QTest::newRow("front radar of 5 bytes") << QByteArray("22 01 02 03 04 05");
    QTest::newRow("rear radar of 5 bytes") << QByteArray("23 01 02 03 04 05");
    QTest::newRow("settings reply") << QByteArray("40 10 02");
    QTest::newRow("without data") << QByteArray("99");
    QTest::newRow("longest") << QByteArray("50") + QByteArray(" 2e").repeated(255);
}

void TestVwAdapter::handsOnWhatItDoesNotDecode()
{
    QFETCH(QByteArray, package);
    QByteArray seen;
    const auto connection = connect(m_adapter, &CanBus_Raise_Volkswagen::recvCanDatas,
                                    [&seen](quint8 command, const quint8 *datas, quint8 count) {
                                        seen = QByteArray(1, char(command)) +
                                               QByteArray(reinterpret_cast<const char *>(datas), count);
                                    });
    const QStringList calls = m_unit->exchange(package.constData());
    disconnect(connection);
    QCOMPARE(calls, QStringList());
    QCOMPARE(seen.toHex(' '), package);
}

void TestVwAdapter::sendsCommands()
{
    m_unit->box.take();
    m_adapter->syncData(0x63, 0x21);
    m_adapter->syncSettingData(0xB1);
    m_adapter->writeSettingData(0x10, 0x02);
    // Keys and other applications send the box nothing.
    m_adapter->onKeyEvent(VolumeUp, true, false);
    m_adapter->onRecvAppProtocol("\x2e\x01\x00\xfe");
    const RaiseWire::Traffic traffic = RaiseWire::parse(m_unit->box.takeUntilQuiet());
    QVERIFY(traffic.faults.isEmpty());
    QCOMPARE(traffic.packages.join('|'), QByteArray("90 63 21|90 40 b1|c6 10 02"));
}

namespace {

struct Listener
{
    QByteArrayList seen;
    void onRecvCanDatas(quint8 command, const quint8 *datas, quint8 count)
    {
        const QByteArray data(reinterpret_cast<const char *>(datas), count);
        seen << QByteArray(1, char(command)).toHex() + ' ' + data.toHex();
    }
};

} // namespace

void TestVwAdapter::repeatsTheLastReports()
{
    m_unit->exchange("60 00 | 65 01 02 03 04 | 68 01 02 | 50 10 | 40 10 02 | 61 | 65 00 00 00 00 | 62 01");
    Listener listener;
    m_adapter->repeatReports(&listener);
    // Trip data and settings are asked for, so they are not kept.
    QCOMPARE(listener.seen.join('|'), QByteArray("60 00|68 0102|61 |65 00000000|62 01"));
}

void TestVwAdapter::opensOnlyItsOwnScreen()
{
    m_unit->trace.take();
    m_adapter->showApp(768);
    m_adapter->showApp(782);
    QCOMPARE(m_unit->trace.take(), QStringList());
    const int before = int(OrbHost::instance()->windows().size());
    m_adapter->showApp(769);
    m_adapter->showApp(769);
    QCOMPARE(m_unit->trace.linesOf("VolkswagenWindow"), QStringList() << "VolkswagenWindow.setVisible(true)"
                                                                      << "VolkswagenWindow.setVisible(true)");
    QCOMPARE(int(OrbHost::instance()->windows().size()), before + 1);
    m_unit->box.takeUntilQuiet(150); // what the window asks for
    delete OrbHost::instance()->windows().last();
}

CANBUS_TEST_MAIN(TestVwAdapter)
#include "tst_vwadapter.moc"
