#include "adapterfactory.h"
#include "adapterfixture.h"

#include "canbusplugin.h"
#include "decoders/silentadapter.h"
#include "orbevent.h"
#include "orbhost.h"

extern "C" OrbPlugin *create();
extern "C" void destroy(OrbPlugin *plugin);

namespace {

QStringList asked; // what the decoder was asked, in order

// Takes the place of every decoder.
class WitnessAdapter : public SilentAdapter
{
public:
    WitnessAdapter() : SilentAdapter(38400) {}

    void showApp(unsigned int appId) override { asked << QString("showApp %1").arg(appId); }
    void translateApp() override { asked << "translateApp"; }
    void orbAppStateChange(unsigned long state, unsigned long mask) override
    {
        asked << QString("orbAppStateChange %1 %2").arg(state).arg(mask);
    }
    void orbAppNotify(OrbEvent *event) override
    {
        asked << QString("orbAppNotify %1 %2 %3")
                     .arg(event->getParam())
                     .arg(event->getParam2())
                     .arg(event->getSource());
    }
    void onRecvAppProtocol(const QByteArray &bytes) override
    {
        asked << "onRecvAppProtocol " + QString(bytes.toHex());
    }
    void onKeyEvent(unsigned int key, bool press, bool repeat) override
    {
        asked << QString("onKeyEvent %1 %2 %3").arg(key).arg(press).arg(repeat);
    }
};

} // namespace

CANBUS_ADAPTER(CanBusTypeRaiseToyota, WitnessAdapter)

// The plug-in object: what it builds, and which event goes where. The order of the functions matters, since
// adapters stay for the life of the process; each of them also runs alone.
class CanBusPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noAdapter();
    void dispatch_data();
    void dispatch();
    void foreignEvents();
    void entryPoints();
    void keySetTakesTheKeys();
};

static void setTypes(int canBusType, int keyRedefType)
{
    OrbHost *const host = OrbHost::instance();
    host->setProductValue("CANPortName", QString());
    host->setTag(0x10008, canBusType ? QVariant(canBusType) : QVariant());
    host->setTag(0x1000C, keyRedefType ? QVariant(keyRedefType) : QVariant());
    asked.clear();
}

static void sendEvent(QObject *plugin, int type, unsigned int param, unsigned int param2)
{
    OrbEvent event(7, 8, type);
    event.setParams(param, param2);
    event.setByteArrayParams(QByteArray::fromHex("00ff2e"));
    QCoreApplication::sendEvent(plugin, &event);
}

void CanBusPluginTest::noAdapter()
{
    setTypes(999, 0);
    QTest::ignoreMessage(QtDebugMsg, "CanBusPlugin 999 0");
    CanBusPlugin plugin;
    QVERIFY(!plugin.createMainWindow());
    for (int type = 50999; type <= 51016; ++type) {
        sendEvent(&plugin, type, 20486, 1);
    }
    QCOMPARE(asked, QStringList());
}

void CanBusPluginTest::dispatch_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<unsigned int>("param");
    QTest::addColumn<unsigned int>("param2");
    QTest::addColumn<QString>("asked");
    const auto row = [](const char *name, int type, unsigned int param, unsigned int param2,
                        const char *result) {
        QTest::newRow(name) << type << param << param2 << QString(result);
    };
    row("show", 51001, 769, 5, "showApp 769");
    row("application data", 51005, 1, 2, "onRecvAppProtocol 00ff2e");
    row("key released", 51006, 0x2000061, 0, "onKeyEvent 33554529 0 0");
    row("key pressed", 51006, 0x2000061, 1, "onKeyEvent 33554529 1 0");
    row("key repeated", 51006, 0x2000061, 2, "onKeyEvent 33554529 1 1");
    row("key in an unknown phase is pressed", 51006, 0xFFFFFFFF, 3, "onKeyEvent 4294967295 1 0");
    row("language", 51007, 20486, 9, "translateApp");
    row("notification", 51007, 20487, 9, "orbAppNotify 20487 9 7");
    row("state", 51011, 6, 4, "orbAppStateChange 6 4");
}

void CanBusPluginTest::dispatch()
{
    QFETCH(int, type);
    QFETCH(unsigned int, param);
    QFETCH(unsigned int, param2);
    setTypes(9, 0);
    CanBusPlugin plugin;
    sendEvent(&plugin, type, param, param2);
    QTEST(asked.join('|'), "asked");
}

// Other events of the framework and of somebody else, and none at all.
void CanBusPluginTest::foreignEvents()
{
    class Open : public CanBusPlugin
    {
    public:
        using CanBusPlugin::customEvent;
    };
    setTypes(9, 0);
    Open plugin;
    plugin.customEvent(nullptr);
    for (int type = 50998; type <= 51017; ++type) {
        if (type < 51000 || type > 51015) {
            QEvent event(static_cast<QEvent::Type>(type));
            QCoreApplication::sendEvent(&plugin, &event);
        }
        if (!QList<int>({51001, 51005, 51006, 51007, 51011}).contains(type)) {
            sendEvent(&plugin, type, 20486, 1);
        }
    }
    QCOMPARE(asked, QStringList());
}

void CanBusPluginTest::entryPoints()
{
    setTypes(9, 0);
    destroy(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "CanBusPlugin 9 0");
    OrbPlugin *const plugin = create();
    QPointer<CanBusAdapter> adapter = CanBusAdapter::getAdapterInstance(CanBusTypeRaiseToyota);
    QVERIFY(adapter);
    destroy(plugin);
    QVERIFY(adapter);
    OrbPlugin *const second = create();
    sendEvent(second, 51001, 3, 0);
    destroy(second);
    QCOMPARE(asked, QStringList{"showApp 3"});
}

void CanBusPluginTest::keySetTakesTheKeys()
{
    setTypes(9, 2);
    CanBusPlugin plugin;
    TraceRecorder trace;
    QCoreApplication::sendPostedEvents();
    trace.take();
    sendEvent(&plugin, 51006, 0x2F00007, 1);
    sendEvent(&plugin, 51006, 0x2F00003, 0);
    sendEvent(&plugin, 51006, 0x1234, 1);
    const QString calls = trace.take().join(' ').remove("OrbApplication.simulateKey");
    QCOMPARE(calls, QString("(16777313,true,false,0) (16777313,false,false,0) " // back, left
                            "(16777234,true,false,0) (16777234,false,false,0)"));
    QCOMPARE(asked, QStringList());
    sendEvent(&plugin, 51001, 4, 0);
    QCOMPARE(asked, QStringList{"showApp 4"});
}

CANBUS_TEST_MAIN(CanBusPluginTest)
#include "tst_canbusplugin.moc"
