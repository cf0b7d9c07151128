#include "unitcontrols.h"

#include "unitkeys.h"

#include <QSignalSpy>
#include <QTest>

/// What the unit does with keys, whoever pressed them.
class TestUnitControls : public QObject
{
    Q_OBJECT

private slots:
    void volume();
    void modeKeyGoesRound();
    void tracks_data();
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
    QCOMPARE(unit.volume(), int(UnitControls::loudest));
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

void TestUnitControls::tracks_data()
{
    QTest::addColumn<int>("forward");
    QTest::addColumn<int>("backward");

    QTest::newRow("media keys") << int(Qt::Key_MediaNext) << int(Qt::Key_MediaPrevious);
    QTest::newRow("wind keys") << int(Qt::Key_AudioForward) << int(Qt::Key_AudioRewind);
    QTest::newRow("track keys of key sets") << UnitKeys::TrackNext << UnitKeys::TrackPrevious;
}

void TestUnitControls::tracks()
{
    QFETCH(int, forward);
    QFETCH(int, backward);
    UnitControls unit;
    const QString first = unit.title();
    tap(&unit, forward);
    const QString second = unit.title();
    QVERIFY(second != first);
    tap(&unit, backward);
    QCOMPARE(unit.title(), first);
    tap(&unit, backward);
    QVERIFY2(unit.title() != first && unit.title() != second, "before the first track comes the last");
    unit.setMode(4);
    tap(&unit, forward);
    QVERIFY2(unit.title().isEmpty(), "navigation has no tracks");
}

void TestUnitControls::call_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("state");
    QTest::addColumn<QList<bool>>("reports");

    const int call = Qt::Key_Call;
    const int hangup = Qt::Key_Hangup;
    const int voice = Qt::Key_VoiceDial;
    QTest::newRow("call") << QList<int>{call} << int(UnitControls::InCall) << QList<bool>{true};
    QTest::newRow("call again") << QList<int>{call, call} << int(UnitControls::InCall) << QList<bool>{true};
    QTest::newRow("call and hang up")
        << QList<int>{call, hangup} << int(UnitControls::NoCall) << QList<bool>{true, false};
    QTest::newRow("voice") << QList<int>{voice} << int(UnitControls::Listening) << QList<bool>{};
    QTest::newRow("voice, then hang up")
        << QList<int>{voice, hangup} << int(UnitControls::NoCall) << QList<bool>{};
    QTest::newRow("voice twice dials")
        << QList<int>{voice, voice} << int(UnitControls::InCall) << QList<bool>{true};
    QTest::newRow("voice, then call")
        << QList<int>{voice, call} << int(UnitControls::InCall) << QList<bool>{true};
    QTest::newRow("voice in a call") << QList<int>{call, voice} << int(UnitControls::InCall)
                                     << QList<bool>{true};
    QTest::newRow("hang up without a call")
        << QList<int>{hangup} << int(UnitControls::NoCall) << QList<bool>{};
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
