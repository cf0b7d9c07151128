#include "carstate.h"
#include "unitcontrols.h"
#include "unitkey.h"

#include "orbevent.h"
#include "orbeventtypes.h"

#include <QTest>

/// What the desk makes of the plug-in's reports and of keys, whoever pressed them.
class TestDeskState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reports();
    void keys();
};

namespace {

/// "5 01020304 05060000 -12 RTL": open doors, front, rear, steering, radar, track, lights; "?" for what was not
/// reported.
QString described(const CarState &state)
{
    const auto levels = [](bool isKnown, const quint8(&side)[CarState::Sensors]) {
        const QByteArray bytes(reinterpret_cast<const char *>(side), CarState::Sensors);
        return isKnown ? bytes.toHex().toStdString() : "?";
    };
    const auto number = [](const std::optional<int> &value) {
        return value ? std::to_string(*value) : std::string("?");
    };
    return QString::asprintf(
        "%s %s %s %s %s%s%s", number(state.doors).c_str(), levels(state.hasFront, state.front).c_str(),
        levels(state.hasRear, state.rear).c_str(), number(state.steering).c_str(), state.isRadarOn ? "R" : "",
        state.isTrackOn ? "T" : "", state.areLightsOn ? "L" : "");
}

} // namespace

void TestDeskState::reports()
{
    const struct
    {
        uint what;
        QVariant value; // bytes in hexadecimal, param2, or an angle
        const char *expected;
    } rows[] = {{0x501A, "0102", "? ? 01020000 ? RT"},
                {0x5018, "0102", "? 01020000 00000000 ? RT"},
                {0x5018, "0102030405060001", "? 01020304 05060001 ? RT"},
                {0x501A, "", "? 01020304 00000000 ? RT"},
                {0x5019, "0101010105", "? 01010101 00000000 ? RT"},
                {0x5019, "07ff0080", "? 07ff0080 00000000 ? RT"}, // past the scale, and told so
                {0x501C, -391, "? 07ff0080 00000000 -391 RT"},    // the same
                {0x501B, 0xF6u, "6 07ff0080 00000000 -391 RT"},
                {0x5004, 8u, "6 07ff0080 00000000 -391 RTL"},
                {0x501D, 0u, "6 07ff0080 00000000 -391 TL"},
                {0x501E, 0u, "6 07ff0080 00000000 -391 L"},
                {0x5005, 8u, "6 07ff0080 00000000 -391 "}};
    CarState state;
    for (const auto &row : rows) {
        const auto take = [&](int type, uint what) {
            OrbEvent event(400, 12, type);
            event.setParams(what, row.value.userType() == QMetaType::UInt ? row.value.toUInt() : 0);
            event.setByteArrayParams(QByteArray::fromHex(row.value.toByteArray()));
            event.setVariantParam(row.value);
            return state.take(event);
        };
        QVERIFY(!take(OrbEventType::AppState, row.what) && !take(OrbEventType::Notify, 0x5006));
        QVERIFY(take(OrbEventType::Notify, row.what));
        QCOMPARE(described(state), QString(row.expected));
        QVERIFY2(!take(OrbEventType::Notify, row.what), "the same report again is no change");
    }
}

void TestDeskState::keys()
{
    using namespace Qt;
    const struct
    {
        QList<int> codes; // pressed and released, one after the other
        int repeats;      // of the last one
        const char *effect;
        const char *told = ""; // to others
    } rows[] = {{{Key_VolumeUp}, 0, "Volume 13"},
                {{Key_VolumeDown}, 100, "Volume 0"},
                {{Key_VolumeUp}, 100, "Volume 30"},
                {{Key_VolumeMute}, 1, "Muted"}, // a held key does not flutter
                {{Key_VolumeUp, Key_VolumeMute, Key_VolumeMute}, 0, "Volume 13"},
                {{Key_VolumeMute, Key_VolumeDown}, 0, "Volume 11"},
                {{Key_MediaNext}, 3, "Track 2"},
                {{Key_MediaPrevious}, 0, "Track 99"},
                {{Key_AudioForward, UnitKey::TrackNext, Key_AudioRewind}, 0, "Track 2"},
                {{Key_MediaNext, Key_MediaNext, UnitKey::TrackPrevious}, 0, "Track 2"},
                {{Key_MediaTogglePlayPause}, 0, "Pauses"},
                {{Key_MediaTogglePlayPause, Key_MediaNext, Key_MediaTogglePlayPause},
                 0,
                 "Pauses"}, // the next track plays
                {{UnitKey::ModeSwitch}, 1, "USB music", "mode 9 after 6 "},
                {{UnitKey::ModeSwitch, UnitKey::ModeSwitch, UnitKey::ModeSwitch, UnitKey::ModeSwitch},
                 0,
                 "Radio",
                 "mode 9 after 6 mode 3 after 9 mode 4 after 3 mode 6 after 4 "},
                {{Key_Call, Key_Call, Key_VoiceDial}, 0, "In a call", "call "},
                {{Key_Call, Key_Hangup}, 0, "No call", "call end "},
                {{Key_VoiceDial}, 0, "Listening …"},
                {{Key_VoiceDial, Key_VoiceDial}, 0, "No call"},
                {{Key_VoiceDial, Key_Call}, 0, "In a call", "call "},
                {{Key_Back}, 2, "For the window in front", "key 1000061 "},
                {{Key_PowerOff}, 0, "No effect on the desk"}};
    for (const auto &row : rows) {
        UnitControls unit;
        QString told;
        connect(&unit, &UnitControls::modeChanged, this,
                [&](uint now, uint before) { told += QString("mode %1 after %2 ").arg(now).arg(before); });
        connect(&unit, &UnitControls::callChanged, this, [&](bool isOn) { told += isOn ? "call " : "end "; });
        connect(&unit, &UnitControls::navigation, this,
                [&](int code) { told += QString("key %1 ").arg(code, 0, 16); });
        for (int i = 0; i < row.codes.size(); ++i) {
            const int repeats = i + 1 < row.codes.size() ? 0 : row.repeats;
            for (int press = 0; press <= repeats; ++press) {
                unit.key(row.codes.at(i), true, press != 0);
            }
            const UnitControls::LastKey key = unit.lastKey();
            QVERIFY(key.isDown && key.code == row.codes.at(i) && key.number == i + 1 &&
                    key.repeats == repeats);
            unit.key(row.codes.at(i), false, false);
            QVERIFY(!unit.lastKey().isDown);
        }
        QCOMPARE(unit.effect(), QString(row.effect));
        QCOMPARE(told, QString(row.told));
    }
}

QTEST_GUILESS_MAIN(TestDeskState)
#include "tst_deskstate.moc"
