#include "orbevent.h"
#include "orbhost.h"
#include "orbkeyfilter.h"
#include "orbtestmain.h"
#include "tracerecorder.h"

#include <functional>

namespace {

class KeyFilter : public OrbKeyFilter
{
public:
    KeyFilter(const QString &filterName, QStringList *log) : name(filterName), m_log(log) {}
    bool filterKey(unsigned int key, bool pressed, bool held) override
    {
        *m_log << QString("%1 %2 %3 %4").arg(name).arg(key).arg(pressed).arg(held);
        if (onKey)
            onKey();
        return consumes;
    }

    QString name;
    bool consumes = false;
    std::function<void()> onKey;

private:
    QStringList *m_log;
};

OrbEvent fullEvent(int type)
{
    OrbEvent event(400, 12, type);
    event.setParams(0xFFFFFFFFu, 7);
    event.setByteArrayParams(QByteArray::fromHex("00ff"));
    event.setStringParam("text");
    event.setVariantParam(5);
    return event;
}

const char fullEventText[] = "(400,12,%1,4294967295,7,bytes=00ff,string=text,variant=5)";

} // namespace

class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        connect(app(), &OrbApplication::orbEventReceived, this, [this] { ++m_received; });
    }
    void init()
    {
        m_trace.take();
        m_received = 0;
    }
    void eventTypeRange_data();
    void eventTypeRange();
    void sentEventIsTracedThenSignalled_data();
    void sentEventIsTracedThenSignalled();
    void otherEventsAreNotTraced();
    void dispatchedEventIsTracedThenSignalled();
    void simulatedKeyIsTracedThenSignalled();
    void keyFiltersAreAskedInOrderUntilOneConsumes();
    void keyFilterRemovedWhileAsking();
    void keyFilterAddedTwiceIsAskedOnce();
    void announcedIcons_data();
    void announcedIcons();
    void configuration();

private:
    OrbApplication *app() { return OrbApplication::instance(); }
    OrbHost *host() { return OrbHost::instance(); }

    TraceRecorder m_trace;
    int m_received = 0; ///< signals orbEventReceived
};

void TestApplication::eventTypeRange_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isOrbEvent");
    QTest::newRow("below the range") << 50999 << false;
    QTest::newRow("first of the range") << 51000 << true;
    QTest::newRow("last of the range") << 51015 << true;
    QTest::newRow("above the range") << 51016 << false;
    QTest::newRow("a timer") << int(QEvent::Timer) << false;
}

void TestApplication::eventTypeRange()
{
    QFETCH(int, type);
    const QEvent event(static_cast<QEvent::Type>(type));
    QTEST(OrbEvent::isOrbEvent(&event), "isOrbEvent");
    QVERIFY(!OrbEvent::isOrbEvent(nullptr));
}

void TestApplication::sentEventIsTracedThenSignalled_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("posted");
    QTest::newRow("sent") << int(OrbEvent::ShowAppType) << false;
    QTest::newRow("posted") << int(OrbEvent::ReturnType) << true;
    QTest::newRow("with a type outside the framework's range") << 52000 << false;
}

void TestApplication::sentEventIsTracedThenSignalled()
{
    QFETCH(int, type);
    QFETCH(bool, posted);
    QStringList tracedBefore;
    const auto connection = connect(app(), &OrbApplication::orbEventReceived,
                                    [&](const OrbEvent *) { tracedBefore = m_trace.take(); });
    if (posted) {
        OrbEvent *event = new OrbEvent(400, 12, type);
        event->setParams(1, 2);
        QCoreApplication::postEvent(app(), event);
        QVERIFY(m_trace.take().isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(tracedBefore, QStringList(QString("event(400,12,%1,1,2)").arg(type)));
    } else {
        OrbEvent event = fullEvent(type);
        QVERIFY(QCoreApplication::sendEvent(app(), &event));
        QCOMPARE(tracedBefore, QStringList(QString("event" + QString(fullEventText)).arg(type)));
    }
    disconnect(connection);
    QVERIFY(m_trace.take().isEmpty());
    QCOMPARE(m_received, 1);
}

void TestApplication::otherEventsAreNotTraced()
{
    QEvent sameNumber(static_cast<QEvent::Type>(OrbEvent::NotifyType));
    QCoreApplication::sendEvent(app(), &sameNumber);
    QVERIFY(m_trace.take().isEmpty());
    QCOMPARE(m_received, 0);
}

void TestApplication::dispatchedEventIsTracedThenSignalled()
{
    QStringList tracedBefore;
    const OrbEvent *seen = nullptr;
    const auto connection = connect(app(), &OrbApplication::orbEventDispatched, [&](const OrbEvent *event) {
        tracedBefore = m_trace.take();
        seen = event;
    });
    OrbEvent event = fullEvent(OrbEvent::NotifyType);
    app()->dispatchOrbEvent(&event);
    app()->dispatchOrbEvent(nullptr);
    disconnect(connection);
    QCOMPARE(tracedBefore, QStringList(QString("dispatchOrbEvent" + QString(fullEventText)).arg(51007)));
    QCOMPARE(seen, &event);
    QVERIFY(m_trace.take().isEmpty());
    QCOMPARE(m_received, 0);
}

void TestApplication::simulatedKeyIsTracedThenSignalled()
{
    QStringList log;
    KeyFilter filter("filter", &log);
    app()->addKeyFilter(&filter);
    QStringList tracedBefore;
    const auto connection = connect(app(), &OrbApplication::keySimulated,
                                    [&](int, bool, bool, int) { tracedBefore = m_trace.take(); });
    QSignalSpy keys(app(), &OrbApplication::keySimulated);
    OrbApplication::simulateKey(Qt::Key_VolumeUp, true, false, 1);
    disconnect(connection);
    app()->removeKeyFilter(&filter);
    QCOMPARE(tracedBefore, QStringList("OrbApplication.simulateKey(16777330,true,false,1)"));
    QCOMPARE(keys.count(), 1);
    QCOMPARE(keys.first(), QVariantList({int(Qt::Key_VolumeUp), true, false, 1}));
    QVERIFY2(log.isEmpty(), "a simulated key must not pass the filters again");
}

void TestApplication::keyFiltersAreAskedInOrderUntilOneConsumes()
{
    QStringList log;
    KeyFilter first("first", &log), second("second", &log), third("third", &log);
    second.consumes = true;
    QVERIFY(!host()->filterKey(1, true, false));
    for (KeyFilter *filter : {&first, &second, &third})
        app()->addKeyFilter(filter);
    QVERIFY(host()->filterKey(0x01100004, true, true));
    QCOMPARE(log, QStringList({"first 17825796 1 1", "second 17825796 1 1"}));
    log.clear();
    app()->removeKeyFilter(&second);
    QVERIFY(!host()->filterKey(5, false, false));
    QCOMPARE(log, QStringList({"first 5 0 0", "third 5 0 0"}));
    app()->removeKeyFilter(&first);
    app()->removeKeyFilter(&third);
}

void TestApplication::keyFilterRemovedWhileAsking()
{
    QStringList log;
    KeyFilter late("late", &log);
    auto *doomed = new KeyFilter("doomed", &log);
    KeyFilter first("first", &log);
    first.onKey = [&] {
        app()->removeKeyFilter(&first);
        app()->removeKeyFilter(doomed);
        delete doomed;
        app()->addKeyFilter(&late);
    };
    app()->addKeyFilter(&first);
    app()->addKeyFilter(doomed);
    QVERIFY(!host()->filterKey(1, true, false));
    QCOMPARE(log, QStringList({"first 1 1 0"}));
    QVERIFY(!host()->filterKey(2, true, false));
    QCOMPARE(log.last(), QString("late 2 1 0"));
    app()->removeKeyFilter(&late);
}

void TestApplication::keyFilterAddedTwiceIsAskedOnce()
{
    QStringList log;
    KeyFilter filter("filter", &log);
    app()->addKeyFilter(&filter);
    app()->addKeyFilter(&filter);
    app()->addKeyFilter(nullptr);
    QVERIFY(!host()->filterKey(1, true, false));
    QCOMPARE(log.size(), 1);
    app()->removeKeyFilter(&filter);
    app()->removeKeyFilter(&filter);
    app()->removeKeyFilter(nullptr);
    QVERIFY(!host()->filterKey(1, true, false));
    QCOMPARE(log.size(), 1);
}

void TestApplication::announcedIcons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("icons");
    QTest::newRow("both") << ":/a_n.png,:/a_h.png" << QStringList({":/a_n.png", ":/a_h.png"});
    QTest::newRow("one stands for both") << ":/a_n.png" << QStringList({":/a_n.png", ":/a_n.png"});
    QTest::newRow("more than two") << "a,b,c" << QStringList({"a", "b"});
    QTest::newRow("none takes them away") << "" << QStringList();
}

void TestApplication::announcedIcons()
{
    QFETCH(QString, text);
    OrbEvent event(400, 10, OrbEvent::AppIconType);
    event.setParams(769, 0);
    event.setStringParam("old,old");
    app()->dispatchOrbEvent(&event);
    QSignalSpy changed(host(), &OrbHost::appIconsChanged);
    event.setStringParam(text);
    app()->dispatchOrbEvent(&event);
    QTEST(host()->appIcons(769), "icons");
    QCOMPARE(host()->appIcons(770), QStringList());
    app()->dispatchOrbEvent(&event);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toUInt(), 769u);
}

void TestApplication::configuration()
{
    QCOMPARE(app()->getTag(0x10008, 3), QVariant(3));
    host()->setTag(0x10008, 4);
    QCOMPARE(app()->getTag(0x10008, 3).toUInt(), 4u);
    host()->setTag(0x10008, QVariant());
    QVERIFY(!app()->getTag(0x10008).isValid());

    QCOMPARE(OrbApplication::getOrbProductValue("CANPortName", "/dev/ttyHS0").toString(),
             QString("/dev/ttyHS0"));
    host()->setProductValue("CANPortName", "");
    QCOMPARE(OrbApplication::getOrbProductValue("CANPortName", "/dev/ttyHS0").toString(), QString());

    host()->setFactorySetting("CarSetDefValue", {"1=2", "128=1"});
    QCOMPARE(OrbApplication::getFactorySetting("CarSetDefValue"), QStringList({"1=2", "128=1"}));
    host()->setFactorySetting("CarSetDefValue", {});
    QVERIFY(OrbApplication::getFactorySetting("CarSetDefValue").isEmpty());
    QVERIFY2(m_trace.take().isEmpty(), "reading the configuration is not traced");
}

ORB_TEST_MAIN(TestApplication)
#include "tst_application.moc"
