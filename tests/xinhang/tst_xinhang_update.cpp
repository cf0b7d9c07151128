#include "testfiles.h"
#include "xinhangbench.h"

#include "updatedialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <sys/stat.h>

using TestSupport::writeFile;

namespace {

QByteArray hex32(quint32 number)
{
    return QByteArray::number(number, 16).rightJustified(8, '0');
}

QByteArray image(int size)
{
    QByteArray bytes(size, '\0');
    QRandomGenerator random(quint32(size) + 1);
    for (char &byte : bytes) {
        byte = char(random.bounded(256));
    }
    return bytes;
}

/// The call that answers a request for a packet.
QString packetCall(const QByteArray &firmware, quint32 number)
{
    const QByteArray part = firmware.mid(int(number) * 128, 128).leftJustified(128, '\xFF');
    return "send " + (QByteArray::fromHex("860200" + hex32(number)) + part).toHex(' ');
}

const char Fails[] = "UpdateDialog.setUpdateFailed(2)";
const char Offers[] = "UpdateDialog.showUpdateDlg(1)";

} // namespace

/// A bench with a disk, number 3, whose two partitions are folders.
class UpdateBench : public XinHangBench
{
public:
    explicit UpdateBench(int carType = 1)
    {
        QDir(disk.path()).mkpath("a");
        QDir(disk.path()).mkpath("b");
        drive(carType, "own");
    }
    ~UpdateBench() { OrbHost::instance()->setDiskPartitions(3, QStringList()); }

    QString file(const QString &name = "b/can_xinhang.bin") const { return disk.filePath(name); }

    QStringList insert()
    {
        OrbHost::instance()->setDiskPartitions(3, {file("a"), file("b")});
        return change(1);
    }
    QStringList pull()
    {
        OrbHost::instance()->setDiskPartitions(3, QStringList());
        return change(0);
    }
    QStringList change(int status)
    {
        calls();
        Q_EMIT OrbApplication::instance()->diskDeviceStatusChange(3, status);
        return calls();
    }
    /// The box has asked how long \a firmware is.
    void begin(const QByteArray &firmware)
    {
        writeFile(file(), firmware);
        insert();
        accept();
        feed("08 01");
    }
    /// The user accepts in the dialog.
    QStringList accept()
    {
        calls();
        for (QWidget *window : OrbHost::instance()->windows()) {
            if (auto *const dialog = qobject_cast<UpdateDialog *>(window)) {
                dialog->findChild<QAbstractButton *>("btnOk")->click();
            }
        }
        return calls();
    }
    QStringList ask(quint32 number) { return feed("08 02 00 " + hex32(number)); }
    bool answers(quint32 number) { return ask(number).value(0).startsWith("send 86 02 00 "); }

    QTemporaryDir disk;
};

class TestXinHangUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void search_data();
    void search();
    void quirk_xinhang_path_kept();
    void quirk_xinhang_any_disk_fails();
    void wholeUpdate_data();
    void wholeUpdate();
    void anyOrder();
    void refusedFiles_data();
    void refusedFiles();
    void largestFile();
    void failedRequests_data();
    void failedRequests();
    void changedFile_data();
    void changedFile();
    void secondUpdate();
};

void TestXinHangUpdate::search_data()
{
    QTest::addColumn<int>("carType");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *name, int carType, const char *file, int status, bool offers) {
        QTest::newRow(name) << carType << QString(file) << status
                            << (offers ? QStringList(Offers) : QStringList());
    };
    row("car 1", 1, "a/can_xinhang.bin", 1, true);
    row("car 1, second partition", 1, "b/can_xinhang.bin", 1, true);
    row("car 1, file of another car", 1, "a/can_xinhang_1.bin", 1, false);
    row("car 4, file of car 1", 4, "a/can_xinhang.bin", 1, false);
    row("car 65535", 65535, "a/can_xinhang_65535.bin", 1, true);
    row("disk gone", 1, "a/can_xinhang.bin", 0, false);
    row("unknown state", 1, "a/can_xinhang.bin", 2, false);
    row("negative state", 1, "a/can_xinhang.bin", -1, false);
}

void TestXinHangUpdate::search()
{
    QFETCH(int, carType);
    QFETCH(QString, name);
    QFETCH(int, status);
    UpdateBench bench(carType);
    writeFile(bench.file(name), "firmware");
    OrbHost::instance()->setDiskPartitions(3, {bench.file("a"), bench.file("b")});
    QTEST(bench.change(status), "calls");
}

void TestXinHangUpdate::quirk_xinhang_path_kept()
{
    UpdateBench bench;
    writeFile(bench.file(), "firmware");
    QCOMPARE(bench.insert(), QStringList(Offers));
    QVERIFY(QFile::rename(bench.file(), bench.file("a/can_xinhang.bin")));
    QCOMPARE(bench.insert(), QStringList(Offers));
    QCOMPARE(bench.accept(), QStringList(Fails));
}

void TestXinHangUpdate::quirk_xinhang_any_disk_fails()
{
    UpdateBench bench;
    QCOMPARE(bench.pull(), QStringList());
    bench.begin("firmware");
    bench.feed("08 02 00 00 00 00 00 | 08 03");
    Q_EMIT OrbApplication::instance()->diskDeviceStatusChange(9, 0);
    QCOMPARE(bench.calls(), QStringList(Fails));
}

void TestXinHangUpdate::wholeUpdate_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<quint32>("count");
    QTest::newRow("empty") << 0 << 0u;
    QTest::newRow("one byte") << 1 << 1u;
    QTest::newRow("one byte less than a packet") << 127 << 1u;
    QTest::newRow("one packet") << 128 << 1u;
    QTest::newRow("one byte more than a packet") << 129 << 2u;
    QTest::newRow("more packets than a byte counts") << 257 * 128 << 257u;
}

void TestXinHangUpdate::wholeUpdate()
{
    QFETCH(int, size);
    QFETCH(quint32, count);
    UpdateBench bench;
    const QByteArray firmware = image(size);
    writeFile(bench.file(), firmware);
    bench.insert();
    QCOMPARE(bench.accept().join("; "), QString("send 86 00 00"));
    QCOMPARE(bench.feed("08 01").join("; "),
             "send " + QByteArray::fromHex("860100" + hex32(count)).toHex(' '));
    for (quint32 number = 0; number < count; ++number) {
        QCOMPARE(bench.ask(number).value(0), packetCall(firmware, number));
    }
    QCOMPARE(bench.ask(count), QStringList(Fails));
    QCOMPARE(bench.feed("08 03").join("; "), QString("send 86 03 00"));
    QCOMPARE(bench.ask(0), QStringList(Fails));
}

void TestXinHangUpdate::anyOrder()
{
    UpdateBench bench;
    const QByteArray firmware = image(500);
    bench.begin(firmware);
    const QList<QPair<quint32, int>> requests = {{3, 75}, {0, 0}, {0, 0}, {2, 50}, {1, 25}};
    for (const auto &request : requests) {
        const QStringList expected = {packetCall(firmware, request.first),
                                      QString("UpdateDialog.updatePercent(%1)").arg(request.second)};
        QCOMPARE(bench.ask(request.first), expected);
    }
}

void TestXinHangUpdate::refusedFiles_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"gone", "pipe", "folder", "too large"}) {
        QTest::newRow(kind) << kind;
    }
}

void TestXinHangUpdate::refusedFiles()
{
    QFETCH(QString, kind);
    UpdateBench bench;
    writeFile(bench.file(), "firmware");
    bench.insert();
    QFile file(bench.file());
    if (kind == "too large") {
        file.resize(64 * 1024 * 1024 + 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^update file too large:"));
    } else {
        file.remove();
        if (kind == "pipe") {
            QCOMPARE(mkfifo(QFile::encodeName(bench.file()).constData(), 0600), 0);
        } else if (kind == "folder") {
            QVERIFY(QDir().mkdir(bench.file()));
        }
    }
    QCOMPARE(bench.accept(), QStringList(Fails));
    QCOMPARE(bench.feed("08 01"), QStringList(Fails));
    // The right file again: the same dialog starts the update.
    QFile::remove(bench.file());
    QDir().rmdir(bench.file());
    writeFile(bench.file(), "firmware");
    QCOMPARE(bench.accept().join("; "), QString("send 86 00 00"));
}

void TestXinHangUpdate::largestFile()
{
    UpdateBench bench;
    writeFile(bench.file(), "firmware");
    QVERIFY(QFile(bench.file()).resize(64 * 1024 * 1024));
    bench.insert();
    bench.accept();
    QCOMPARE(bench.feed("08 01").join("; "), QString("send 86 01 00 00 08 00 00"));
    QVERIFY(bench.answers(0x7FFFF));
    QCOMPARE(bench.ask(0x80000), QStringList(Fails));
}

void TestXinHangUpdate::failedRequests_data()
{
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QString>("calls");
    const QString fails(Fails);
    QTest::newRow("the count itself") << QByteArray("08 02 00 00 00 00 02") << fails;
    QTest::newRow("far beyond") << QByteArray("08 02 00 ff ff ff ff") << fails;
    QTest::newRow("half a number") << QByteArray("08 02 00 00 01") << fails;
    QTest::newRow("unknown steps") << QByteArray("08 00 | 08 04 | 08 ff") << QString();
}

void TestXinHangUpdate::failedRequests()
{
    QFETCH(QByteArray, packages);
    UpdateBench bench;
    writeFile(bench.file(), image(200));
    bench.insert();
    bench.accept();
    QCOMPARE(bench.ask(0), QStringList(Fails)); // before the count
    bench.feed("08 01");
    QTEST(bench.feed(packages).join("; "), "calls");
    QVERIFY(bench.answers(1));
    QCOMPARE(bench.feed("08 03").join("; "), QString("send 86 03 00"));
    QCOMPARE(bench.ask(0), QStringList(Fails));
}

void TestXinHangUpdate::changedFile_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"shrinks", "vanishes", "disk pulled"}) {
        QTest::newRow(kind) << kind;
    }
}

// The file is harmed in the middle of an update, comes back, and the box asks again.
void TestXinHangUpdate::changedFile()
{
    QFETCH(QString, kind);
    UpdateBench bench;
    const QByteArray firmware = image(1000);
    bench.begin(firmware);
    QVERIFY(bench.answers(0));
    if (kind == "disk pulled") {
        QCOMPARE(bench.pull(), QStringList(Fails));
    }
    QVERIFY(QFile(bench.file()).resize(300));
    if (kind == "vanishes") {
        QVERIFY(QFile::remove(bench.file()));
    }
    QCOMPARE(bench.ask(2), QStringList(Fails)); // never padding in place of firmware
    QCOMPARE(bench.ask(7), QStringList(Fails));
    QFile::remove(bench.file());
    writeFile(bench.file(), firmware);
    if (kind == "disk pulled") {
        QCOMPARE(bench.insert(), QStringList(Offers));
    }
    bench.ask(2); // may fail still, but then the file is opened anew
    for (const quint32 number : {1u, 2u, 3u, 4u, 5u, 6u, 7u}) {
        QVERIFY(bench.answers(number));
    }
    QCOMPARE(bench.feed("08 03").join("; "), QString("send 86 03 00"));
}

void TestXinHangUpdate::secondUpdate()
{
    UpdateBench bench;
    for (const char *name : {"b/can_xinhang.bin", "a/can_xinhang.bin"}) {
        writeFile(bench.file(name), image(200));
        QCOMPARE(bench.insert(), QStringList(Offers));
        bench.accept();
        QCOMPARE(bench.accept().join("; "), QString("send 86 00 00")); // the user starts anew
        QCOMPARE(bench.feed("08 01").join("; "), QString("send 86 01 00 00 00 00 02"));
        bench.feed("08 03");
        QVERIFY(QFile::remove(bench.file(name))); // and the next one is elsewhere
    }
}

CANBUS_TEST_MAIN(TestXinHangUpdate)
#include "tst_xinhang_update.moc"
