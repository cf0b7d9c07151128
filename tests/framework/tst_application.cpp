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
    void keyFiltersAreAskedOnceInOrderUntilOneConsumes();
    void keyFilterRemovedWhileAsking();
    void configuration();

private:
    OrbApplication *app() { return OrbApplication::instance(); }
    OrbHost *host() { return OrbHost::instance(); }

    TraceRecorder m_trace;
};

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
    OrbApplication::simulateKey(0x01100004, true, true, 0); // comes from a filter, perhaps; none is asked
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
