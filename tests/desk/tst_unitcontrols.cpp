#include "unitcontrols.h"

#include "unitkeys.h"

#include <QSignalSpy>
#include <QTest>

/// What the unit does with keys, whoever pressed them.
class TestUnitControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void volume();
    void modeKeyGoesRound();
    void tracks();
    void call_data();
    void call();
    void navigationComesOutOnce();

private:
    static void tap(UnitControls *unit, int code)
    {
        unit->key(code, true, false);
        unit->key(code, false, false);
    }
};

void TestUnitControls::volume()
{
    UnitControls unit;
    const int before = unit.volume();
    tap(&unit, Qt::Key_VolumeUp);
    QCOMPARE(unit.volume(), before + 1);
    unit.key(Qt::Key_VolumeMute, true, false);
    unit.key(Qt::Key_VolumeMute, true, true);
    QVERIFY2(unit.isMuted(), "a held mute key does not flutter");
    unit.key(Qt::Key_VolumeDown, true, false);
    QVERIFY2(!unit.isMuted(), "turning the volume ends the silence");
    for (int i = 0; i < 100; ++i) {
        unit.key(Qt::Key_VolumeDown, true, true);
    }
    QCOMPARE(unit.volume(), 0);
    for (int i = 0; i < 100; ++i) {
        unit.key(Qt::Key_VolumeUp, true, true);
    }
    QCOMPARE(unit.volume(), int(UnitControls::Loudest));
}

void TestUnitControls::modeKeyGoesRound()
{
    UnitControls unit;
    QSignalSpy spy(&unit, &UnitControls::modeChanged);
    for (int i = 0; i < UnitControls::modes().size(); ++i) {
        QVERIFY(!UnitControls::modeName(unit.mode()).isEmpty());
        tap(&unit, UnitKeys::ModeSwitch);
        const QList<QVariant> change = spy.takeFirst();
        QCOMPARE(change.at(0).toUInt(), UnitControls::modes().at((i + 1) % UnitControls::modes().size()));
        QCOMPARE(change.at(1).toUInt(), UnitControls::modes().at(i));
    }
    unit.setMode(unit.mode());
    unit.setMode(12345);
    QVERIFY(spy.isEmpty());
}

void TestUnitControls::tracks()
{
    const int pairs[][2] = {{Qt::Key_MediaNext, Qt::Key_MediaPrevious},
                            {Qt::Key_AudioForward, Qt::Key_AudioRewind},
                            {UnitKeys::TrackNext, UnitKeys::TrackPrevious}};
    for (const auto &keys : pairs) {
        UnitControls unit;
        const QString first = unit.title();
        tap(&unit, keys[0]);
        const QString second = unit.title();
        QVERIFY(second != first);
        tap(&unit, keys[1]);
        QCOMPARE(unit.title(), first);
        tap(&unit, keys[1]);
        QVERIFY2(unit.title() != first && unit.title() != second, "before the first track comes the last");
        unit.setMode(4);
        tap(&unit, keys[0]);
        QVERIFY2(unit.title().isEmpty(), "navigation has no tracks");
    }
}

void TestUnitControls::call_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("state");
    QTest::addColumn<QList<bool>>("reports");

    const int call = Qt::Key_Call;
    const int hangup = Qt::Key_Hangup;
    const int voice = Qt::Key_VoiceDial;
    const int none = UnitControls::NoCall;
    const int inCall = UnitControls::InCall;
    const auto row = [](const char *name, const QList<int> &keys, int state, const QList<bool> &reports) {
        QTest::newRow(name) << keys << state << reports;
    };
    row("call again", {call, call}, inCall, {true});
    row("call and hang up", {call, hangup}, none, {true, false});
    row("voice", {voice}, UnitControls::Listening, {});
    row("voice, then hang up", {voice, hangup}, none, {});
    row("voice twice dials", {voice, voice}, inCall, {true});
    row("voice, then call", {voice, call}, inCall, {true});
    row("voice in a call", {call, voice}, inCall, {true});
    row("hang up without a call", {hangup}, none, {});
}

void TestUnitControls::call()
{
    QFETCH(QList<int>, keys);
    UnitControls unit;
    QList<bool> reports;
    connect(&unit, &UnitControls::callChanged, this, [&reports](bool isInCall) { reports << isInCall; });
    for (const int key : keys) {
        tap(&unit, key);
    }
    QTEST(int(unit.call()), "state");
    QTEST(reports, "reports");
}

void TestUnitControls::navigationComesOutOnce()
{
    UnitControls unit;
    QSignalSpy spy(&unit, &UnitControls::navigation);
    unit.key(Qt::Key_Back, true, false);
    unit.key(Qt::Key_Back, true, true);
    unit.key(Qt::Key_Back, false, false);
    QCOMPARE(spy.count(), 1);
    unit.key(0x010000B7, true, false);
    QCOMPARE(spy.count(), 1);
}

QTEST_GUILESS_MAIN(TestUnitControls)
#include "tst_unitcontrols.moc"
