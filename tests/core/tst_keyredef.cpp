#include "keyplayer.h"

#include "keyredefadapter_hud.h"
#include "keyredefadapter_lianbaolai.h"
#include "orbhost.h"

#include <QProcess>

using TestSupport::key;
using TestSupport::taps;

namespace {

const int Enter = 0x01000005;
const int Home = 0x01000010;
const int Left = 0x01000012;
const int Up = 0x01000013;
const int Right = 0x01000014;
const int Down = 0x01000015;
const int Back = 0x01000061;
const int Previous = 0x01000082;
const int Next = 0x01000083;
const int Launch5 = 0x010000A7;
const int Launch6 = 0x010000A8;
const int Call = 0x01100004;
const int Hangup = 0x01100005;
const int VoiceDial = 0x01100008;

} // namespace

// Both key sets as tables of (time, event) and the keys that come out.
class KeyRedefTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lianBaoLai_data();
    void lianBaoLai();
    void hud_data();
    void hud();
    void hudRegistration();
    void mediaKeyApps();
    void factory_data();
    void factory();
};

static void addColumns()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("keys");
}

void KeyRedefTest::lianBaoLai_data()
{
    addColumns();
    const auto row = [](const char *name, const char *script, const QStringList &keys) {
        QTest::newRow(name) << QByteArray(script) << keys;
    };
    row("hold key tapped: press and release at the release", "0 2000061 p", {});
    row("hold key released just below the threshold", "0 2000061 p | 1699 2000061 h | 1700 2000061 r",
        taps(Back));
    row("hold key repeated at the threshold fires once",
        "5 2000061 p | 1704 2000061 h | 1705 2000061 h | 1900 2000061 h | 9001 2000061 r", taps(Down));
    row("hold key long without a repeat is short", "0 2F00005 p | 60000 2F00005 r", taps(Enter));
    row("enter held", "0 2F00005 p | 1700 2F00005 h | 1701 2F00005 r", taps(VoiceDial));
    row("home held, then tapped",
        "0 2F00010 p | 1700 2F00010 h | 1701 2F00010 r | 1702 2F00010 p | 1703 2F00010 r",
        taps(Up) + taps(Home));
    row("pressed twice: the second press counts the time anew",
        "0 2000061 p | 1000 2000061 p | 2000 2000061 h | 2001 2000061 r", taps(Back));
    row("long, then short", "0 2000061 p | 1700 2000061 h | 1701 2000061 r | 1702 2000061 p | 1703 2000061 r",
        taps(Down) + taps(Back));
    row("release that was never pressed",
        "0 2000061 r | 1 2000013 r | 2 2000061 p | 3 2000061 r | 4 2000061 r", taps(Back));
    row("unknown keys", "0 2000062 p | 1 2000062 h | 2 2000062 r | 3 0 p | 4 FFFFFFFF p", {});

    row("previous with a player in front", "front 4 | 0 2000013 p | 1 2000013 h | 2 2000013 r",
        {key(Previous, true, false, 0), key(Previous, true, true, 0), key(Previous, false, false, 0)});
    row("previous with another application in front", "front 5 | 0 2000013 p | 2 2000013 r", taps(Launch5));
    row("previous while a call is present",
        "call 1000000 | front 5 | 0 2000013 p | 1 2000013 h | 9000 2000013 h | 9001 2000013 r",
        {key(Call, true, false, 0), key(Call, true, true, 0), key(Call, true, true, 0),
         key(Call, false, false, 0)});
    row("next with a player in front", "front 0 | 0 2000015 p | 2 2000015 r", taps(Next));
    row("next with another application in front", "front D | 0 2000015 p | 2 2000015 r", taps(Launch6));
    row("next while a call is present", "call 2000000 | 0 2000015 p | 2 2000015 r", taps(Hangup));
    row("a call that ends while the key is held changes nothing",
        "call 1000000 | 0 2000013 p | call 0 | 1 2000013 h | 2 2000013 r",
        {key(Call, true, false, 0), key(Call, true, true, 0), key(Call, false, false, 0)});

    row("quirk_lianbaolai_held_key another key counts as the held one",
        "front 4 | 0 2000013 p | 1 2000061 p | 2 2000015 h | 3 2F00005 r | 4 2000013 r",
        {key(Previous, true, false, 0), key(Previous, true, false, 0), key(Previous, true, true, 0),
         key(Previous, false, false, 0)});
    row("quirk_lianbaolai_held_key unknown repeats reach the long action",
        "0 2000061 p | 1700 1234 h | 1701 2000061 r", taps(Down));
    row("time far from zero", "18446744073709551000 2000061 p | 18446744073709551600 2000061 h | 5 2000061 r",
        taps(Back));
}

void KeyRedefTest::lianBaoLai()
{
    QFETCH(QByteArray, script);
    KeyRedefAdapter_LianBaoLai keys;
    const QStringList lines = KeyPlayer::play(&keys, script);
    // The held key is the process's: let go of it before the next row.
    KeyPlayer::play(&keys, "0 0 r");
    QTEST(lines, "keys");
}

void KeyRedefTest::hud_data()
{
    addColumns();
    const auto row = [](const char *name, const char *script, const QStringList &keys) {
        QTest::newRow(name) << QByteArray(script) << keys;
    };
    row("next repeats", "0 2000002 p | 200 2000002 h | 400 2000002 h | 401 2000002 r", taps(Next, 3));
    row("next while a call is present", "call 1000000 | 0 2000002 p | 1 2000002 r", taps(Hangup));
    row("previous while a call is present", "call 2000000 | 0 2F00001 p | 1 2F00001 r", taps(Call));
    row("other bits of the status word are no call", "call FCFFFFFF | 0 2F00001 p | 1 2F00001 r",
        taps(Previous));

    row("left tapped: press and release at the release", "0 2F00003 p", {});
    row("left held to the last short moment", "7 2F00003 p | 1506 2F00003 h | 1507 2F00003 r", taps(Left));
    row("left held", "7 2F00003 p | 1507 2F00003 h | 1600 2F00003 h | 1601 2F00003 r", taps(Up));
    row("left held without a repeat is short", "0 2F00003 p | 60000 2F00003 r", taps(Left));
    row("enter held", "0 2F00004 p | 1500 2F00004 h | 3000 2F00004 h | 3001 2F00004 r", taps(VoiceDial));
    row("pressed twice: the second press counts the time anew",
        "0 2F00004 p | 1000 2F00004 p | 2499 2F00004 h | 2500 2F00004 r", taps(Enter));
    row("long, then short", "0 2F00003 p | 1500 2F00003 h | 1501 2F00003 r | 1502 2F00003 p | 1503 2F00003 r",
        taps(Up) + taps(Left));
    row("one long action for both keys", "0 2F00003 p | 1500 2F00003 h | 1501 2F00004 h | 1502 2F00004 r",
        taps(Up));
    row("the release of any key ends the long action",
        "0 2F00003 p | 1500 2F00003 h | 1501 2F00007 r | 1502 2F00003 r", taps(Up) + taps(Left));
    row("release that was never pressed", "0 2F00003 r | 1 2F00007 r", taps(Left));

    row("quirk_hud_right_twice with repeats", "0 2F00005 p | 1 2F00005 h | 2 2F00005 r", taps(Right, 3));
    row("right is the same while a call is present", "call 1000000 | 0 2F00005 p | 1 2F00005 r",
        taps(Right, 2));
    row("home repeats, back", "0 2F00006 p | 1 2F00006 h | 2 2F00006 r | 3 2F00007 p | 4 2F00007 r",
        taps(Home, 2) + taps(Back));
    row("unknown keys", "0 2F00002 p | 1 2F00002 r | 2 0 p | 3 1FFFFFF p | 4 0 r", {});
}

void KeyRedefTest::hud()
{
    QFETCH(QByteArray, script);
    KeyRedefAdapter_HUD keys;
    QTEST(KeyPlayer::play(&keys, script), "keys");
}

void KeyRedefTest::mediaKeyApps()
{
    for (unsigned int appId = 0; appId < 1000; ++appId) {
        QCOMPARE(KeyRedefAdapter::isMediaKeyApp(appId), appId != 3 && appId != 5 && appId != 13);
    }
}

// The rest needs a process each, since the adapter that is built first stays.
static int factoryMain(const QStringList &types)
{
    TraceRecorder trace;
    KeyRedefAdapter *first = nullptr;
    QStringList answers;
    for (const QString &type : types) {
        KeyRedefAdapter *const keys =
            KeyRedefAdapter::getAdapterInstance(static_cast<KeyRedefAdapter::KeyRedefType>(type.toUInt()));
        first = first ? first : keys;
        answers << (keys ? keys->metaObject()->className() : "none") +
                       QString(keys && keys != first ? " other" : "") +
                       (keys ? QString(" %1").arg(int(keys->getKeyRedefType())) : QString());
    }
    QCoreApplication::processEvents();
    const QStringList lines = answers + trace.take();
    printf("%s", qPrintable(lines.join('|')));
    return 0;
}

static QString runFactory(const QStringList &types)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList("--factory") + types);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

void KeyRedefTest::factory_data()
{
    QTest::addColumn<QString>("types");
    QTest::addColumn<QString>("answers");
    QTest::newRow("quirk_keyredef_type the type reads as 0") << "1"
                                                             << "KeyRedefAdapter_LianBaoLai 0";
    QTest::newRow("the first one stays") << "1 2 0 7"
                                         << "KeyRedefAdapter_LianBaoLai 0|KeyRedefAdapter_LianBaoLai 0|"
                                            "KeyRedefAdapter_LianBaoLai 0|KeyRedefAdapter_LianBaoLai 0";
    QTest::newRow("unknown types build nothing") << "0 3 4294967295 1"
                                                 << "none|none|none|KeyRedefAdapter_LianBaoLai 0";
}

void KeyRedefTest::factory()
{
    QFETCH(QString, types);
    QTEST(runFactory(types.split(' ')), "answers");
}

// The second key set announces the control values of its keys, by post and not before the event loop runs.
void KeyRedefTest::hudRegistration()
{
    QCOMPARE(runFactory({"2", "1"}),
             QString("KeyRedefAdapter_HUD 0|KeyRedefAdapter_HUD 0|event(400,1,51007,20497,21,variant="
                     "[2f00001:ff02bc,2000002:ff0258,2f00003:ff00c8,2f00004:ff0064,2f00005:ff01f4,"
                     "2f00006:ff012c,2f00007:ff0190])"));
}

int main(int argc, char **argv)
{
    OrbApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--factory") {
        return factoryMain(arguments.mid(2));
    }
    KeyRedefTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyredef.moc"
