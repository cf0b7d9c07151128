#include "adapterfixture.h"

#include "volkswagen/canbus_raise_volkswagen.h"

#include "orbhost.h"

/// The adapter on a pseudo-terminal: its start, what it hands on to the screens and what it sends. What it
/// decodes itself stands in tests/cars/sheets/volkswagen.txt.
class TestVwAdapter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void startUp();
    void handsOnWhatItDoesNotDecode_data();
    void handsOnWhatItDoesNotDecode();
    void sendsCommands();
    void repeatsTheLastReports();
    void opensOnlyItsOwnScreen();

private:
    AdapterFixture *m_unit = nullptr;
    CanBus_Raise_Volkswagen *m_adapter = nullptr;
};

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
    m_adapter->syncSettingData(0xB1);
    // Keys and other applications send the box nothing.
    m_adapter->onKeyEvent(0x01000072, true, false);
    m_adapter->onRecvAppProtocol("\x2e\x01\x00\xfe");
    const RaiseWire::Traffic traffic = RaiseWire::parse(m_unit->box.takeUntilQuiet());
    QVERIFY(traffic.faults.isEmpty());
    QCOMPARE(traffic.packages.join('|'), QByteArray("90 40 b1"));
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
    m_unit->exchange(
        "60 00 00 00 00 00 00 00 01 | 65 01 02 03 04 | 68 01 02 | 50 10 01 01 00 00 00 | 40 10 02 |"
        "61 00 00 | 50 61 00 3e 00 00 00 | 65 00 00 00 00 | 62 00 00 00 00");
    // What is too short tells nothing and replaces nothing.
    m_unit->exchange("60 00 | 65 01 | 68 01 | 61 | 62 01 | 50 61");
    Listener listener;
    m_adapter->repeatReports(&listener);
    // Other trip data and settings are asked for, so they are not kept.
    QCOMPARE(listener.seen.join('|'),
             QByteArray("60 0000000000000001|68 0102|61 0000|50 61003e000000|65 00000000|62 00000000"));
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
