// What an observer at the serial tap hears of a line, and when it says that things came.

#include "ptybox.h"
#include "testmain.h"

#include <QEventLoop>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QVector>

#include <cerrno>
#include <memory>

#include <qextserialport.h>
#include <serialtap.h>

namespace {

// Writes down what it hears as "15 received abc": the ms of the second.
class Listener : public SerialTapObserver
{
public:
    Listener() { SerialTap::add(this); }

    void opened(const QString &, const PortSettings &settings, qint64) override
    {
        heard << QString("opened %1").arg(settings.BaudRate);
    }
    void openFailed(const QString &, int error, qint64) override { heard << QString("failed %1").arg(error); }
    void received(const QByteArray &bytes, qint64 at) override { note("received", bytes, at); }
    void sent(const QByteArray &bytes, qint64 at) override { note("sent", bytes, at); }
    void closed(bool isLost, qint64) override { heard << (isLost ? "lost" : "closed"); }

    QStringList heard;

private:
    void note(const char *what, const QByteArray &detail, qint64 at)
    {
        heard << QString("%1 %2 %3").arg(at % 1000000 / 1000).arg(what, QString::fromLatin1(detail));
    }
};

const PortSettings Settings = {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, -1};

// QTest::qWait() looks at what is due every 10 ms only.
void pass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

class TestSerialTap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chunks();
    void portThatDoesNotOpen_data();
    void portThatDoesNotOpen();
    void linesThatEnd();
};

// Under the virtual clock a millisecond is one. The port is read late, as by a unit that is busy.
void TestSerialTap::chunks()
{
    Listener listener;
    PtyBox box;
    QextSerialPort port(box.path(), Settings, QextSerialPort::Polling);
    QVERIFY(port.open(QIODevice::ReadWrite));
    qint64 there = 0;
    QVector<qint64> times; // of what box and unit send
    const auto send = [&](const QByteArray &bytes) {
        times << SerialTap::now() % 1000000 / 1000;
        QVERIFY(box.send(bytes));
        there += bytes.size();
        while (port.bytesAvailable() < there) { // the kernel takes real time
        }
    };
    QTimer::singleShot(3, Qt::PreciseTimer, this, [&] { send("ab"); });
    QTimer::singleShot(4, Qt::PreciseTimer, this, [&] { send("c"); });
    QTimer::singleShot(8, Qt::PreciseTimer, this, [&] { send("de"); });
    QTimer::singleShot(11, Qt::PreciseTimer, this, [&] {
        times << SerialTap::now() % 1000000 / 1000;
        port.write("unit"); // before 'de' is read
    });
    QTimer::singleShot(14, Qt::PreciseTimer, this, [&] { send("f"); });
    pass(20);
    QCOMPARE(listener.heard.size(), 1); // nothing was read
    QCOMPARE(port.read(4), QByteArray("abcd"));
    QCOMPARE(port.read(9), QByteArray("ef"));
    there = 0;
    pass(5);
    send("g");
    pass(5);
    QCOMPARE(port.read(9), QByteArray("g"));
    port.close();
    QStringList expected = {"%1 received abc", "%1 received d", "%1 received e",
                            "%1 sent unit",    "%1 received f", "%1 received g"};
    const int timesOf[] = {0, 2, 2, 3, 4, 5};
    for (int i = 0; i < expected.size(); ++i) {
        expected[i] = expected[i].arg(times.at(timesOf[i]));
    }
    QCOMPARE(listener.heard, QStringList{"opened 38400"} + expected + QStringList{"closed"});
}

void TestSerialTap::portThatDoesNotOpen_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("error");
    QTest::newRow("missing") << "/dev/nowhere" << ENOENT;
    QTest::newRow("no terminal") << "/dev/null" << ENOTTY;
}

void TestSerialTap::portThatDoesNotOpen()
{
    QFETCH(QString, path);
    QFETCH(int, error);
    Listener listener;
    QextSerialPort port(path, Settings, QextSerialPort::Polling);
    QVERIFY(!port.open(QIODevice::ReadWrite));
    QCOMPARE(listener.heard, QStringList{QString("failed %1").arg(error)});
}

// The watch must neither spin on a line that has hung up nor hold back what it knows.
void TestSerialTap::linesThatEnd()
{
    std::unique_ptr<PtyBox> box(new PtyBox);
    QextSerialPort port(box->path(), Settings, QextSerialPort::Polling);
    std::unique_ptr<Listener> listener(new Listener);
    QVERIFY(port.open(QIODevice::ReadWrite));
    QVERIFY(box->send("x"));
    pass(2);
    QCOMPARE(port.write("unit"), qint64(4));
    box.reset();
    pass(50);
    port.close();
    QCOMPARE(listener->heard.size(), 3);
    QVERIFY(listener->heard.at(1).endsWith(" sent unit")); // though 'x' came before it and was never read
    QCOMPARE(listener->heard.last(), QString("lost"));

    box.reset(new PtyBox);
    QextSerialPort next(box->path(), Settings, QextSerialPort::Polling);
    QVERIFY(next.open(QIODevice::ReadWrite));
    listener.reset(); // nobody listens any more
    QVERIFY(box->send("x"));
    pass(5);
    QCOMPARE(next.read(1), QByteArray("x"));
}

CANBUS_TEST_MAIN(TestSerialTap)
#include "tst_serialtap.moc"
