#include "debuglog.h"
#include "transcript.h"
#include "xinhangbench.h"

#include "orbevent.h"
#include "orbeventtypes.h"

#include <QTimer>

/// What the box's packages and the unit's calls come to: decoding, keys and display. It stands in
/// xinhang.txt; transcript.h tells how to read it.
class TestXinHang : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transcript();
    void longPressTime();
    void menuKey();

private:
    QStringList state() const;
    QStringList carryOut(const QString &order);
    QStringList each(const QString &package);
    void callUnit(const QString &what, const QStringList &with);

    std::unique_ptr<XinHangBench> m_bench;
};

/// The calls for \a package with each byte in the place of "??", where there are any.
QStringList TestXinHang::each(const QString &package)
{
    QStringList lines;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte = QByteArray(1, char(value)).toHex();
        const QString calls = m_bench->feed(package.toLatin1().replace("??", byte)).join("; ");
        if (!calls.isEmpty()) {
            lines << byte + ": " + calls;
        }
    }
    return lines;
}

void TestXinHang::callUnit(const QString &what, const QStringList &with)
{
    const auto number = [&with](int i) { return with.value(i).toUInt(nullptr, 16); };
    CanBus_XinHang *const adapter = m_bench->adapter;
    if (what == "tag") {
        OrbHost::instance()->setTag(0x10001, with.isEmpty() ? QVariant() : QVariant(number(0)));
    } else if (what == "time") {
        OrbHost::instance()->holdTickCount(with.value(0).toUInt());
    } else if (what == "state") {
        adapter->orbAppStateChange(number(0), number(1));
    } else if (what == "mode") {
        Q_EMIT OrbApplication::instance()->modeAppChanged(with.value(0).toUInt(), 0);
    } else if (what == "show") {
        adapter->showApp(with.value(0).toUInt());
    } else if (what == "translate") {
        adapter->translateApp();
    } else if (what == "notify") {
        OrbEvent event(1, 1, OrbEventType::Notify);
        event.setParams(number(0), number(1));
        adapter->orbAppNotify(&event);
        adapter->orbAppNotify(nullptr);
    } else {
        qFatal("unknown order: %s", qPrintable(what));
    }
}

QStringList TestXinHang::carryOut(const QString &order)
{
    const QString what = order.section(' ', 0, 0);
    const QStringList with = order.split(' ').mid(1);
    if (what == "items") {
        OrbHost::instance()->setFactorySetting("SettingItemTypes", with);
        return QStringList();
    }
    if (what == "start") {
        QVariantMap settings;
        for (const QString &setting : with) {
            settings.insert(setting.section('=', 0, 0), setting.section('=', 1).toInt());
        }
        m_bench.reset(); // two at a time would share the settings folder
        m_bench.reset(new XinHangBench(settings));
    } else if (what == "car") {
        m_bench->drive(with.at(0).toInt(), with.at(1));
    } else if (what == "feed") {
        return m_bench->feed(with.join(' ').toLatin1());
    } else if (what == "each") {
        return each(with.join(' '));
    } else if (what == "long") {
        return m_bench->passLongPress() ? m_bench->calls() : QStringList("no long press");
    } else if (what == "key") {
        const bool kept = OrbHost::instance()->filterKey(with.at(0).toUInt(nullptr, 16), true, false);
        return QStringList(kept ? "kept" : "passes") + m_bench->calls();
    } else {
        callUnit(what, with);
    }
    return m_bench->calls();
}

/// Which screen is shown, and whether the unit still tells the box that it is ready.
QStringList TestXinHang::state() const
{
    if (!m_bench) {
        return QStringList();
    }
    const bool tells = m_bench->adapter->findChild<QTimer *>("sendReadyTimer")->isActive();
    return {QString("screen %1").arg(m_bench->adapter->getDisplay()),
            tells ? "tells ready" : "no more ready"};
}

void TestXinHang::transcript()
{
    const auto act = [this](const QString &order) {
        if (order.startsWith("==")) {
            m_bench.reset();
            return QStringList();
        }
        const QStringList before = state();
        QStringList lines = carryOut(order);
        const QStringList after = state();
        for (int i = 0; i < after.size(); ++i) {
            lines << (before.value(i) == after.at(i) ? QStringList() : QStringList(after.at(i)));
        }
        return lines;
    };
    const DebugLog quiet;
    COMPARE_WITH_TRANSCRIPT("xinhang.txt", act);
    m_bench.reset();
    OrbHost::instance()->releaseTickCount();
}

void TestXinHang::longPressTime()
{
    m_bench.reset();
    m_bench.reset(new XinHangBench);
    m_bench->drive(1, "own");
    m_bench->feed("03 01 10");
    QTimer *const timer = m_bench->adapter->findChild<QTimer *>("switchDisplayTimer");
    QCOMPARE(timer->interval(), 1500);
    timer->start(1);
    QTRY_COMPARE(int(m_bench->adapter->getDisplay()), 1);
    QVERIFY(!timer->isActive());
}

// No box is known to have this panel key; the filter knows it all the same.
void TestXinHang::menuKey()
{
    FakeBox box;
    box.type = 4;
    XinHangDisplay display(box, nullptr);
    XinHangKeyFilter filter(box, display);
    TraceRecorder trace;
    QVERIFY(filter.filterPanelKey(0x01000055, true, false));
    QCOMPARE(trace.take(), QStringList());
    display.switchDisplay(2, false);
    QVERIFY(filter.filterPanelKey(0x01000055, true, true));
    QCOMPARE(trace.take(), QStringList("OrbApplication.simulateKey(16777313,true,true,0)"));
}

CANBUS_TEST_MAIN(TestXinHang)
#include "tst_xinhang.moc"
