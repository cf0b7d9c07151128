#include "debuglog.h"
#include "pluginlibrary.h"
#include "ptybox.h"
#include "testmain.h"

#include "orbhost.h"

// A unit that destroys the plug-in and lets go of its library goes on with the adapters' timers and windows, and gets
// the same adapters when it loads the plug-in again. One adapter a process: tst_unload TYPE.

namespace {

int canBusType = 9;

} // namespace

class TestUnload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesOnWithoutThePlugin();
};

void TestUnload::goesOnWithoutThePlugin()
{
    PtyBox box;
    OrbHost::instance()->setProductValue("CANPortName", box.path());
    OrbHost::instance()->setTag(0x10008, canBusType);
    DebugLog log;
    for (int time = 0; time < 2; ++time) {
        PluginLibrary library;
        QString error;
        QVERIFY2(library.load(PLUGIN, &error), qPrintable(error));
        OrbPlugin *const plugin = library.create();
        QVERIFY(plugin);
        // The line is open and what is said at start-up is on its way when the unit has enough of the plug-in.
        QTest::qWait(60);
        library.destroy(plugin);
        library.unload();
        QVERIFY(box.send(QByteArray::fromHex("2e20020101db")));
        QTest::qWait(15000);
    }
    QCOMPARE(log.lines().filter("CanBusAdapter:").size(), 1);
    QVERIFY(!box.take().isEmpty());
}

int main(int argc, char **argv)
{
    canBusType = argc > 1 ? QByteArray(argv[1]).toInt() : canBusType;
    return VirtualClock::start() ? TestSupport::runTest<TestUnload>(1, argv) : 1;
}

#include "tst_unload.moc"
