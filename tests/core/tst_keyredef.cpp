#include "keyplayer.h"
#include "transcript.h"

#include "keyredefadapter_hud.h"
#include "keyredefadapter_lianbaolai.h"
#include "orbhost.h"

#include <QProcess>

// Both key sets, by the transcript keyredef.txt.
class KeyRedefTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keySets();
    void mediaKeyApps();
};

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

void KeyRedefTest::keySets()
{
    const auto act = [](const QString &order) {
        const QString rest = order.section(' ', 1);
        QStringList lines;
        if (order.startsWith("factory ")) {
            return runFactory(rest.split(' ')).split('|');
        }
        if (order.startsWith("hud ")) {
            KeyRedefAdapter_HUD keys;
            lines = KeyPlayer::play(&keys, rest.toLatin1());
        } else if (order.startsWith("lianbaolai ")) {
            KeyRedefAdapter_LianBaoLai keys;
            lines = KeyPlayer::play(&keys, rest.toLatin1());
            // The held key is the process's: let go of it before the next row.
            KeyPlayer::play(&keys, "0 0 r");
        }
        std::transform(lines.begin(), lines.end(), lines.begin(), TestSupport::readable);
        return lines;
    };
    COMPARE_WITH_TRANSCRIPT("keyredef.txt", act);
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
