#include "linehealth.h"

#include "qextserialport.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>
#include <QTest>

#include <cerrno>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

/// What is said about a line, from what is heard on it.
class TestLineHealth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states();
    void openFailures_data();
    void openFailures();
    void counts();
    void helloNeedsALine();
    void otherProcessIsNamed();
};

namespace {

const PortSettings Settings = {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, 0};
const QByteArray Doors = QByteArray::fromHex("2e2401805a"); // a package with a good checksum
const QByteArray Radar = QByteArray::fromHex("2e1d0400000000de");
const QByteArray Garbage = QByteArray::fromHex("00e6f8867e9e06fe180018");
const QByteArray Answer = QByteArray::fromHex("ff");

/// A line whose port is no file, so that nobody else can have it.
struct OpenLine
{
    OpenLine()
    {
        health.setType(9);
        health.opened("/nowhere/port", Settings, SerialTap::now());
    }
    void hear(const QByteArray &bytes) { health.received(bytes, SerialTap::now()); }
    QString name() { return health.status().name(); }

    LineHealth health;
};

} // namespace

void TestLineHealth::states()
{
    OpenLine line;
    QCOMPARE(line.name(), QString("waiting"));
    line.hear(Garbage);
    QTest::qWait(500);
    QCOMPARE(line.name(), QString("other-rate"));
    line.hear(Doors);
    line.health.sent(Answer, SerialTap::now());
    QCOMPARE(line.name(), QString("talking"));
    line.hear(Garbage);
    QTest::qWait(500);
    QCOMPARE(line.name(), QString("talking")); // a disturbance, so soon after a package
    line.hear(Doors);
    line.hear(Doors); // not acknowledged in between
    QCOMPARE(line.name(), QString("slow"));
    line.health.sent(Answer, SerialTap::now());
    QTest::qWait(LineHealth::Patience);
    QCOMPARE(line.health.status().text(), QString("silent for 5 s"));
    line.health.setBoxManner(LineHealth::Stopped);
    QCOMPARE(line.name(), QString("box-stopped"));
    line.health.setBoxManner(LineHealth::Hushed);
    QCOMPARE(line.name(), QString("box-hushed"));
    line.health.setBoxManner(LineHealth::Speaks);
    line.health.closed(true, SerialTap::now());
    line.health.openFailed("/nowhere/port", ENOENT, SerialTap::now()); // the unit tries again at once
    QCOMPARE(line.name(), QString("lost"));
    line.health.opened("/nowhere/port", Settings, SerialTap::now());
    QCOMPARE(line.name(), QString("waiting"));
    QVERIFY2(line.health.status().isDoubtful(), "what was reported before the loss is not news");
}

void TestLineHealth::openFailures_data()
{
    QTest::addColumn<int>("systemError");
    QTest::addColumn<QString>("text");
    QTest::newRow("unplugged") << ENOENT << "no such device";
    QTest::newRow("not allowed") << EACCES << "no permission: join the group %1";
    QTest::newRow("taken") << EBUSY << "in use by another process";
    QTest::newRow("a file") << ENOTTY << "no serial device";
    QTest::newRow("hung up") << EIO << "line lost: was the adapter pulled out?";
    QTest::newRow("odd") << ENOMEM << "cannot be opened: Cannot allocate memory";
}

void TestLineHealth::openFailures()
{
    QFETCH(int, systemError);
    QTemporaryFile device;
    QVERIFY(device.open() &&
            device.setPermissions(device.permissions() | QFile::ReadGroup | QFile::WriteGroup));
    LineHealth health;
    health.openFailed(device.fileName(), systemError, SerialTap::now());
    QFETCH(QString, text);
    QCOMPARE(health.status().text(), text.replace("%1", QFileInfo(device).group()));
    QCOMPARE(health.status().port, device.fileName());
}

void TestLineHealth::counts()
{
    OpenLine line;
    line.hear(Doors + Radar.left(3)); // cut, and whole with what follows
    QTest::qWait(3);
    line.hear(Radar.mid(3));
    QTest::qWait(8);
    line.health.sent(Answer, SerialTap::now());
    line.hear(QByteArray(Doors).replace(4, 1, "x") + Doors + Doors);
    LineStatus status = line.health.status();
    QCOMPARE(status.packages, 4);
    QCOMPARE(status.packagesPerSecond, 4);
    QCOMPARE(status.badChecksums, 1);
    QCOMPARE(status.skippedBytes, Doors.size());
    QCOMPARE(status.repetitions, 1);
    QVERIFY2(qAbs(status.acknowledgement - 8000) < 1000, qPrintable(QString::number(status.acknowledgement)));
    QTest::qWait(1500);
    status = line.health.status();
    QCOMPARE(status.packagesPerSecond, 0);
    QVERIFY(qAbs(status.packageAge - 1500) < 5);
}

void TestLineHealth::helloNeedsALine()
{
    LineHealth health;
    QVERIFY(!health.sayHello());
    const int farEnd = ::posix_openpt(O_RDWR | O_NOCTTY);
    QVERIFY(farEnd >= 0 && ::grantpt(farEnd) == 0 && ::unlockpt(farEnd) == 0);
    QextSerialPort port(QString::fromLocal8Bit(::ptsname(farEnd)), Settings, QextSerialPort::Polling);
    for (const auto &box : {std::make_pair(9, "2e8101017c"), std::make_pair(4, "f0038101017c")}) {
        health.setType(box.first);
        QVERIFY(port.open(QIODevice::ReadWrite) && health.sayHello());
        char heard[64];
        const ssize_t count = ::read(farEnd, heard, sizeof heard);
        QCOMPARE(QByteArray(heard, int(count)).toHex(), QByteArray(box.second));
        port.close();
        QVERIFY(!health.sayHello());
    }
    ::close(farEnd);
}

// A second reader takes bytes away; the far end of a pseudo-terminal is no reader.
void TestLineHealth::otherProcessIsNamed()
{
    const int farEnd = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    QVERIFY(farEnd >= 0 && ::grantpt(farEnd) == 0 && ::unlockpt(farEnd) == 0);
    const QString device = QString::fromLocal8Bit(::ptsname(farEnd));
    LineHealth health;
    health.opened(device, Settings, SerialTap::now());
    QCOMPARE(QString(health.status().name()), QString("waiting"));
    QProcess reader;
    reader.setStandardInputFile(device);
    reader.start("sleep", {"60"});
    {
        const VirtualClock::Hold hold; // the process is in real time
        QVERIFY(reader.waitForStarted());
    }
    QTest::qWait(1100);
    QCOMPARE(health.status().text(), QString("in use by sleep (%1)").arg(reader.processId()));
    const VirtualClock::Hold hold;
    reader.kill();
    QVERIFY(reader.waitForFinished());
    ::close(farEnd);
}

CANBUS_TEST_MAIN(TestLineHealth)
#include "tst_linehealth.moc"
