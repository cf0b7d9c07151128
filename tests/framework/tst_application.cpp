#include "orbevent.h"
#include "orbhost.h"
#include "orbkeyfilter.h"
#include "testmain.h"
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
        if (onKey) {
            onKey();
        }
        return consumes;
    }

    QString name;
    bool consumes = false;
    std::function<void()> onKey;

private:
    QStringList *m_log;
};

} // namespace

class TestApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_trace.take(); }
    void eventTypeRange();
    void eventsAreTracedThenSignalled_data();
    void eventsAreTracedThenSignalled();
    void simulatedKeyIsTracedThenSignalled();
    void keyFiltersAreAskedOnceInOrderUntilOneConsumes();
    void keyFilterRemovedWhileAsking();
    void announcedIcons();
    void configuration();

private:
    OrbApplication *app() { return OrbApplication::instance(); }
    OrbHost *host() { return OrbHost::instance(); }

    TraceRecorder m_trace;
};

void TestApplication::eventTypeRange()
{
    for (int type = 50998; type <= 51017; ++type) {
        const QEvent event(static_cast<QEvent::Type>(type));
        QCOMPARE(OrbEvent::isOrbEvent(&event), type >= 51000 && type <= 51015);
    }
    QVERIFY(!OrbEvent::isOrbEvent(nullptr));
}

void TestApplication::eventsAreTracedThenSignalled_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("type");
    QTest::newRow("sent") << "event" << int(OrbEvent::ShowAppType);
    QTest::newRow("sent, outside the framework's range") << "event" << 52000;
    QTest::newRow("dispatched") << "dispatchOrbEvent" << int(OrbEvent::NotifyType);
}

void TestApplication::eventsAreTracedThenSignalled()
{
    QFETCH(QString, call);
    QFETCH(int, type);
    QStringList order;
    const auto note = [&](const OrbEvent *) { order << m_trace.take() << "signal"; };
    const bool dispatched = call == "dispatchOrbEvent";
    const auto connection =
        connect(app(), dispatched ? &OrbApplication::orbEventDispatched : &OrbApplication::orbEventReceived,
                this, note);
    OrbEvent event(400, 12, type);
    event.setParams(0xFFFFFFFFu, 7);
    event.setByteArrayParams(QByteArray::fromHex("00ff"));
    event.setStringParam("text");
    event.setVariantParam(5);
    // The same number without a record is an event of somebody else.
    QEvent other(static_cast<QEvent::Type>(type));
    QCoreApplication::sendEvent(app(), &other);
    if (dispatched) {
        app()->dispatchOrbEvent(&event);
        app()->dispatchOrbEvent(nullptr);
    } else {
        QVERIFY(QCoreApplication::sendEvent(app(), &event));
    }
    disconnect(connection);
    const QString line("%1(400,12,%2,4294967295,7,bytes=00ff,string=text,variant=5)");
    QCOMPARE(order + m_trace.take(), (QStringList{line.arg(call).arg(type), "signal"}));
}

void TestApplication::simulatedKeyIsTracedThenSignalled()
{
    QStringList order;
    KeyFilter filter("filters must not see it again", &order);
    app()->addKeyFilter(&filter);
    const auto connection =
        connect(app(), &OrbApplication::keySimulated, [&](int key, bool press, bool repeat, int last) {
            order << m_trace.take() << QString("%1 %2 %3 %4").arg(key).arg(press).arg(repeat).arg(last);
        });
    OrbApplication::simulateKey(Qt::Key_VolumeUp, true, false, 1);
    disconnect(connection);
    app()->removeKeyFilter(&filter);
    QCOMPARE(order, QStringList({"OrbApplication.simulateKey(16777330,true,false,1)", "16777330 1 0 1"}));
}

void TestApplication::keyFiltersAreAskedOnceInOrderUntilOneConsumes()
{
    QStringList log;
    KeyFilter first("first", &log), second("second", &log), third("third", &log);
    second.consumes = true;
    QVERIFY(!host()->filterKey(1, true, false));
    for (KeyFilter *filter : {&first, &second, &third, &first}) {
        app()->addKeyFilter(filter);
    }
    app()->addKeyFilter(nullptr);
    QVERIFY(host()->filterKey(0x01100004, true, true));
    QCOMPARE(log, QStringList({"first 17825796 1 1", "second 17825796 1 1"}));
    log.clear();
    app()->removeKeyFilter(&second);
    QVERIFY(!host()->filterKey(5, false, false));
    QCOMPARE(log, QStringList({"first 5 0 0", "third 5 0 0"}));
    app()->removeKeyFilter(&first);
    app()->removeKeyFilter(&third);
    QVERIFY(!host()->filterKey(5, false, false));
    QCOMPARE(log.size(), 2);
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

void TestApplication::announcedIcons()
{
    QSignalSpy changed(host(), &OrbHost::appIconsChanged);
    const QList<QPair<QString, QStringList>> announcements = {
        {":/a_n.png,:/a_h.png", {":/a_n.png", ":/a_h.png"}},
        {"one", {"one", "one"}},
        {"a,b,c", {"a", "b"}},
        {"", {}}};
    for (const auto &announcement : announcements) {
        OrbEvent event(400, 10, OrbEvent::AppIconType);
        event.setParams(769, 0);
        event.setStringParam(announcement.first);
        app()->dispatchOrbEvent(&event);
        app()->dispatchOrbEvent(&event);
        QCOMPARE(host()->appIcons(769), announcement.second);
        QCOMPARE(host()->appIcons(770), QStringList());
    }
    QCOMPARE(changed.count(), int(announcements.size()));
    QCOMPARE(changed.first().first().toUInt(), 769u);
}

void TestApplication::configuration()
{
    host()->setTag(0x10008, 4);
    QCOMPARE(app()->getTag(0x10008, 3).toUInt(), 4u);
    host()->setTag(0x10008, QVariant());
    QCOMPARE(app()->getTag(0x10008, 3), QVariant(3));
    QCOMPARE(OrbApplication::getOrbProductValue("CANPortName", "/dev/ttyHS0").toString(),
             QString("/dev/ttyHS0"));
    host()->setProductValue("CANPortName", "");
    QCOMPARE(OrbApplication::getOrbProductValue("CANPortName", "/dev/ttyHS0").toString(), QString());

    host()->setFactorySetting("CarSetDefValue", {"1=2", "128=1"});
    QCOMPARE(OrbApplication::getFactorySetting("CarSetDefValue"), QStringList({"1=2", "128=1"}));
    QVERIFY2(m_trace.take().isEmpty(), "reading the configuration is not traced");
}

CANBUS_TEST_MAIN(TestApplication)
#include "tst_application.moc"
