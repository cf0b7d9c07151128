#include "pseudoterminal.h"
#include "virtualmain.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSocketNotifier>
#include <QStringList>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <functional>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace {

const int Day = 24 * 3600 * 1000; // ms

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

/// The program's own clock: what is due comes in order, at its time, and after everything that needs no time.
class TestVirtualClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void timersFireInOrder();
    void waitsAndSleepsMoveTheClock_data();
    void waitsAndSleepsMoveTheClock();
    void descriptorsComeFirst();
    void heldClockWaitsForOthers();
    void idleComesLast();
};

void TestVirtualClock::initTestCase()
{
    QVERIFY(VirtualClock::isOn());
    QVERIFY(qAbs(QDateTime::currentMSecsSinceEpoch() - qint64(VirtualClock::UsualStart) * 1000) < 1000);
}

void TestVirtualClock::timersFireInOrder()
{
    const QList<int> intervals = {Day, 1, 50, 2, 3600000, 4999, 5000};
    QList<int> fired;
    QElapsedTimer clock;
    const QDateTime begin = QDateTime::currentDateTimeUtc();
    clock.start();
    for (const int interval : intervals) {
        QTimer::singleShot(interval, Qt::PreciseTimer, this, [&fired, &clock, begin, interval] {
            fired << interval;
            QVERIFY(clock.elapsed() >= interval && clock.elapsed() <= interval + 1);
            QCOMPARE(begin.msecsTo(QDateTime::currentDateTimeUtc()), clock.elapsed());
        });
    }
    while (fired.size() < intervals.size()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QList<int> sorted = intervals;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(fired, sorted);
}

void TestVirtualClock::waitsAndSleepsMoveTheClock_data()
{
    QTest::addColumn<std::function<void()>>("wait");
    const auto row = [](const char *name, const std::function<void()> &wait) { QTest::newRow(name) << wait; };
    row("event loop", [] { QTest::qWait(60000); });
    row("sleep of a thread", [] { QThread::sleep(60); });
    row("sleep of the library", [] { std::this_thread::sleep_for(std::chrono::minutes(1)); });
    row("sleep until", [] {
        timespec end;
        ::clock_gettime(CLOCK_REALTIME, &end);
        end.tv_sec += 60;
        ::clock_nanosleep(CLOCK_REALTIME, TIMER_ABSTIME, &end, nullptr);
    });
}

void TestVirtualClock::waitsAndSleepsMoveTheClock()
{
    QFETCH(std::function<void()>, wait);
    QElapsedTimer clock;
    clock.start();
    const std::time_t before = std::time(nullptr);
    wait();
    QVERIFY2(clock.elapsed() >= 60000 && clock.elapsed() <= 60001,
             qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(std::time(nullptr), before + 60);
}

// A byte goes to and fro on a pseudo-terminal between timers that are always due: it never costs time. The
// many jumps before each send see to it that the clock has stopped looking at the descriptors.
void TestVirtualClock::descriptorsComeFirst()
{
    QString error;
    PseudoTerminal terminal;
    QVERIFY2(terminal.open(QString(), &error), qPrintable(error));
    const int unit =
        ::open(QFile::encodeName(terminal.devicePath()).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    QSocketNotifier unitNotifier(unit, QSocketNotifier::Read);
    connect(&unitNotifier, &QSocketNotifier::activated, this, [unit] {
        char byte = 0;
        QCOMPARE(::read(unit, &byte, 1), ssize_t(1));
        QCOMPARE(::write(unit, &byte, 1), ssize_t(1));
    });
    QElapsedTimer sinceSent;
    int answers = 0;
    connect(&terminal, &PseudoTerminal::received, this, [&] {
        ++answers;
        QCOMPARE(sinceSent.nsecsElapsed(), 0);
    });
    QTimer jumps;
    int ticks = 0;
    connect(&jumps, &QTimer::timeout, this, [&] {
        if (++ticks % 20 == 0) {
            sinceSent.start();
            QVERIFY(terminal.write("x"));
        }
    });
    jumps.start(1);
    QTRY_VERIFY_WITH_TIMEOUT(ticks >= 2000, Day);
    jumps.stop();
    QTest::qWait(1);
    QCOMPARE(answers, ticks / 20);
    ::close(unit);
}

void TestVirtualClock::heldClockWaitsForOthers()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    std::thread slowWriter([end = ends[1]] {
        QThread::msleep(30); // really: another thread's wait
        const ssize_t ignored = ::write(end, "x", 1);
        (void)ignored;
    });
    QElapsedTimer clock;
    clock.start();
    bool hasCome = false;
    QSocketNotifier notifier(ends[0], QSocketNotifier::Read);
    connect(&notifier, &QSocketNotifier::activated, this, [&] {
        notifier.setEnabled(false);
        hasCome = true;
    });
    QTimer timer; // would be due long before
    timer.start(5);
    const VirtualClock::Hold hold;
    while (!hasCome) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCOMPARE(clock.nsecsElapsed(), 0);
    slowWriter.join();
    ::close(ends[0]);
    ::close(ends[1]);
}

void TestVirtualClock::idleComesLast()
{
    QStringList order;
    QSocketNotifier idle(VirtualClock::idleDescriptor(), QSocketNotifier::Read);
    connect(&idle, &QSocketNotifier::activated, this, [&] {
        quint64 count = 0;
        QCOMPARE(::read(VirtualClock::idleDescriptor(), &count, sizeof count), ssize_t(sizeof count));
        order << "idle";
    });
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    QSocketNotifier pipe(ends[0], QSocketNotifier::Read);
    connect(&pipe, &QSocketNotifier::activated, this, [&] {
        char byte = 0;
        QCOMPARE(::read(ends[0], &byte, 1), ssize_t(1));
        order << "byte";
    });
    VirtualClock::askIdle();
    QTimer::singleShot(1, Qt::PreciseTimer, this, [&] { order << "later"; });
    QMetaObject::invokeMethod(
        this, [&] { QCOMPARE(::write(ends[1], "x", 1), ssize_t(1)); }, Qt::QueuedConnection);
    while (!order.contains("later")) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCOMPARE(order, QStringList({"byte", "idle", "later"}));
    ::close(ends[0]);
    ::close(ends[1]);
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestVirtualClock)
#include "tst_virtualclock.moc"
