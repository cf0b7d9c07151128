// What a box hears after its line was lost, and after it has fallen silent.

#include "adapterfixture.h"

#include "core/adapterfactory.h"
#include "raise/raiseadapter.h"

#include "orbevent.h"
#include "orbeventtypes.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace {

const int Outage = 60000; // ms

typedef void (*Actions)(CanBusAdapter *adapter);

void nothing(CanBusAdapter *) {}

void changeModes(CanBusAdapter *adapter)
{
    for (uint i = 0; i <= 38; ++i) {
        static_cast<RaiseAdapter *>(adapter)->onModeAppChange(2 + i % 17, 0);
    }
}

void setAndAsk(CanBusAdapter *adapter)
{
    RaiseAdapter *const car = static_cast<RaiseAdapter *>(adapter);
    for (int round = 0; round < 3; ++round) {
        car->syncData(0x40, 0x10);
        car->syncData(0x40, 0x20);
        car->writeSettingData(0x31, quint8(round));
        car->writeSettingData(0x32, quint8(round));
    }
    car->writeSettingData(0x31, 7);
}

void dim(CanBusAdapter *adapter)
{
    for (uint level = 1; level <= 3; ++level) {
        OrbEvent event(1, 1, OrbEventType::Notify);
        event.setParams(0x5020, level);
        adapter->orbAppNotify(&event);
    }
}

} // namespace

Q_DECLARE_METATYPE(Actions)

class TestLostLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBack_data();
    void comesBack();
    void repetitions_data();
    void repetitions();
};

void TestLostLine::comesBack_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<Actions>("meanwhile");
    // Up to 190 ms after the first byte; a clock's time is left out, or points.
    QTest::addColumn<QByteArray>("heard");
    const QByteArray ready = "2e8101017c";
    QTest::newRow("ready timer") << 5 << Actions(nothing) << ready;
    QTest::newRow("clock") << 7 << Actions(nothing) << ready.repeated(3) + "2ec60450";
    // A minute is no item: a clock that was kept minute by minute would go through all that was missed.
    QTest::newRow("clock that begins with its minute")
        << 8 << Actions(nothing) << ready.repeated(3) + "2ec803........";
    QTest::newRow("modes") << 9 << Actions(changeModes)
                           << ready.repeated(3) + "2e991501" + QByteArray(40, '0') + "50";
    QTest::newRow("settings and requests")
        << 3 << Actions(setAndAsk)
        << "2e8101007d" + ready + "2e900240101d" + "2e900240200d" + "2ec602320203" + "2ec6023107ff";
    QTest::newRow("ready later") << 4 << Actions(dim) << QByteArray("f002890373");
}

// As at start, without the framework hearing anything twice, and behind that the newest of each kind.
void TestLostLine::comesBack()
{
    QFETCH(int, type);
    QFETCH(Actions, meanwhile);
    QFETCH(QByteArray, heard);
    for (const bool wasThere : {true, false}) {
        QTemporaryDir folder;
        const QString link = folder.filePath("line");
        std::unique_ptr<PtyBox> box(new PtyBox);
        QVERIFY(!wasThere || QFile::link(box->path(), link));
        AdapterFixture fixture;
        CanBusAdapter *const adapter = fixture.take(AdapterFactory::create(CanBusType(type)));
        fixture.openPort(link);
        QTest::qWait(400);
        box.reset();
        QTest::qWait(Outage / 2);
        meanwhile(adapter);
        QTest::qWait(Outage / 2);

        box.reset(new PtyBox);
        QFile::remove(link);
        QVERIFY(QFile::link(box->path(), link));
        fixture.trace.take();
        QVERIFY(box->waitForBytes(1, 2000));
        QTest::qWait(190);
        QByteArray bytes = box->take().toHex();
        const int clock = int(bytes.indexOf("2ec60450"));
        bytes = clock < 0 ? bytes : bytes.left(clock + 8);
        for (int i = 0; i < qMin(bytes.size(), heard.size()); ++i) {
            bytes[i] = heard.at(i) == '.' ? '.' : bytes.at(i);
        }
        // A ready timer that has never stopped goes on at its own time.
        QCOMPARE(wasThere || type != 5 ? bytes : bytes.left(heard.size()), heard);
        for (const QString &line : fixture.trace.take()) {
            QVERIFY2(line.startsWith("ProtocolUtils.writeDatas("), qPrintable(line));
        }
        if (type == 4) {
            QVERIFY(box->waitForBytes(6, 600));
            QCOMPARE(box->take().toHex(), QByteArray("f0038101017c"));
        }
    }
}

void TestLostLine::repetitions_data()
{
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("pause"); // ms
    QTest::addColumn<int>("readies");
    QTest::newRow("four at once") << 4 << 0 << 1;
    QTest::newRow("four within 50 ms") << 4 << 12 << 1;
    QTest::newRow("three") << 3 << 0 << 0;
    QTest::newRow("a box that waits for its answer") << 4 << 30 << 0;
    QTest::newRow("once a second") << 200 << 0 << 1;
}

void TestLostLine::repetitions()
{
    QFETCH(int, copies);
    QFETCH(int, pause);
    QFETCH(int, readies);
    AdapterFixture fixture;
    fixture.take(AdapterFactory::create(CanBusTypeRaiseToyota));
    fixture.open();
    fixture.settle();
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < copies; ++i) {
            QVERIFY(fixture.box.send(RaiseWire::frame("20 01 01")));
            QTest::qWait(pause);
        }
        QVERIFY(fixture.box.send(RaiseWire::frame("20 01 00")));
        QTest::qWait(1200);
        const RaiseWire::Traffic traffic = RaiseWire::parse(fixture.box.take());
        QCOMPARE(traffic.acknowledgements, copies + 1);
        QCOMPARE(int(traffic.packages.count("81 01")), readies);
    }
}

CANBUS_TEST_MAIN(TestLostLine)
#include "tst_lostline.moc"
