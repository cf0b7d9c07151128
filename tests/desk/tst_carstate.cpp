#include "carstate.h"

#include "orbevent.h"

#include <QTest>

/// What the car view makes of the events that plug-ins dispatch.
class TestCarState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void radar_data();
    void radar();
    void steering_data();
    void steering();
    void doorsLightsAndSwitches();
    void ignoresWhatIsNoCarData();
};

namespace {

OrbEvent carData(uint what, uint value = 0)
{
    OrbEvent event(400, 12, OrbEvent::NotifyType);
    event.setParams(what, value);
    return event;
}

QByteArray levels(const CarState &state)
{
    QByteArray result;
    for (const auto *side : {&state.front, &state.rear}) {
        for (const quint8 level : *side) {
            result += char(level);
        }
    }
    return result.toHex();
}

} // namespace

void TestCarState::radar_data()
{
    QTest::addColumn<uint>("what");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("expected"); // front, then rear; before: 06060606 06060606

    QTest::newRow("all eight") << 0x5018u << QByteArray("0102030405060001") << QByteArray("0102030405060001");
    QTest::newRow("too few") << 0x5018u << QByteArray("0102") << QByteArray("0102000000000000");
    QTest::newRow("none behind") << 0x501Au << QByteArray() << QByteArray("0606060600000000");
    QTest::newRow("past the scale") << 0x5019u << QByteArray("07ff0080") << QByteArray("0606000606060606");
    QTest::newRow("more than four") << 0x5019u << QByteArray("0101010105") << QByteArray("0101010106060606");
}

void TestCarState::radar()
{
    QFETCH(uint, what);
    QFETCH(QByteArray, bytes);
    CarState state;
    std::fill(state.front, state.front + CarState::Sensors, quint8(6));
    std::fill(state.rear, state.rear + CarState::Sensors, quint8(6));
    OrbEvent event = carData(what);
    event.setByteArrayParams(QByteArray::fromHex(bytes));
    QVERIFY(state.take(event));
    QTEST(levels(state), "expected");
    QVERIFY2(!state.take(event), "the same report again is no change");
}

void TestCarState::steering_data()
{
    QTest::addColumn<int>("reported");
    QTest::addColumn<int>("expected");

    QTest::newRow("left lock") << -40 << -40;
    QTest::newRow("past the right lock") << 77 << 40;
    // A twelve-bit sensor whose right half arrives as the far end of the left one: 3716 of 4096 is 380 to the
    // right.
    QTest::newRow("right lock without a sign") << -391 << 40;
    QTest::newRow("a little to the right without a sign") << -421 << 10;
}

void TestCarState::steering()
{
    QFETCH(int, reported);
    CarState state;
    state.steering = 1;
    OrbEvent event = carData(0x501C);
    event.setVariantParam(reported);
    QVERIFY(state.take(event));
    QTEST(state.steering, "expected");
}

void TestCarState::doorsLightsAndSwitches()
{
    CarState state;
    QVERIFY(state.take(carData(0x501B, 0xF6)));
    QVERIFY(!state.isDoorOpen(CarState::FrontLeft) && state.isDoorOpen(CarState::FrontRight));
    QVERIFY(state.isDoorOpen(CarState::RearLeft) && !state.isDoorOpen(CarState::RearRight));
    QVERIFY2(!state.take(carData(0x501B, 0x06)), "bits above the four doors say nothing");

    QVERIFY(state.take(carData(0x5004, 8)) && state.areLightsOn);
    QVERIFY(state.take(carData(0x5005, 8)) && !state.areLightsOn);
    QVERIFY(state.take(carData(0x501D, 0)) && !state.isRadarOn && state.isTrackOn);
    QVERIFY(state.take(carData(0x501E, 0)) && !state.isTrackOn);
    QVERIFY(state.take(carData(0x501D, 1)) && state.isRadarOn);
}

void TestCarState::ignoresWhatIsNoCarData()
{
    CarState state;
    QVERIFY(!state.take(carData(0x5006)));
    OrbEvent otherType(400, 12, OrbEvent::AppStateType);
    otherType.setParams(0x501B, 1);
    QVERIFY(!state.take(otherType));
    QVERIFY(state == CarState());
}

QTEST_APPLESS_MAIN(TestCarState)
#include "tst_carstate.moc"
