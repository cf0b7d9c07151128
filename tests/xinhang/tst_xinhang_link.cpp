#include "xinhangbench.h"

#include "unitlink.h"

#include <qextserialport.h>

#include <QRandomGenerator>
#include <QTimer>

/// The box's line: the handshake, frames, and what is no frame; and the version that goes into a file.
class TestXinHangLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quirk_xinhang_ready_count();
    void packages();
    void portSettings();
    void versionCommand();
    void versionFile();
    void hostileBytes_data();
    void hostileBytes();
};

// First: the count is the process's.
void TestXinHangLink::quirk_xinhang_ready_count()
{
    for (int sendings : {51, 1}) {
        XinHangBench bench({}, XinHangBench::OnLine);
        QTimer *const timer = bench.adapter->findChild<QTimer *>("sendReadyTimer");
        QCOMPARE(timer->interval(), 500);
        QVERIFY(timer->isActive());
        timer->start(1);
        QTRY_VERIFY(!timer->isActive());
        const QByteArray ready = QByteArray::fromHex("f0038101017c");
        QVERIFY(bench.box.waitForBytes(sendings * int(ready.size())));
        QCOMPARE(bench.box.takeUntilQuiet(30), ready.repeated(sendings)); // virtual time
    }
}

void TestXinHangLink::packages()
{
    const auto made = [](quint8 command, const QByteArray &data, int length) {
        const auto *const bytes = reinterpret_cast<const uchar *>(data.constData());
        return CanBus_XinHang::makeMcuProtocol(command, data.isEmpty() ? nullptr : bytes, length).toHex();
    };
    QCOMPARE(made(0x8B, "\x01\x0f", 2), QByteArray("f0038b010f64"));
    QCOMPARE(made(0x83, "", 2), QByteArray("f0038300007c"));
    QCOMPARE(made(0x83, "\x01", -1), QByteArray("f001837c"));
    QCOMPARE(made(0x00, QByteArray(300, '\x01'), 300), "f0ff00" + QByteArray("01").repeated(255));
}

void TestXinHangLink::portSettings()
{
    XinHangBench bench;
    PortSettings settings;
    QVERIFY(bench.adapter->getPortSettings(settings));
    QCOMPARE(int(settings.BaudRate), 115200);
    QCOMPARE(settings.Timeout_Millisec, 500L);
}

// Every byte but NUL; control characters are left out, and nothing gets out of the quotes.
void TestXinHangLink::versionCommand()
{
    QByteArray version;
    QString shown;
    for (int byte = 1; byte < 256; ++byte) {
        version += char(byte);
        const bool control = byte < 0x20 || (byte >= 0x7F && byte <= 0x9F);
        shown += control ? QString() : byte == '\'' ? QString("'\\''") : QString(QChar(byte));
    }
    QCOMPARE(UnitLink::versionCommand(version + '\0' + "x"),
             "echo '" + shown.toUtf8() + "' > /tmp/can_version");
}

void TestXinHangLink::versionFile()
{
    QFile file("/tmp/can_version");
    const bool existed = file.open(QIODevice::ReadOnly);
    const QByteArray before = file.readAll();
    file.close();

    XinHangBench bench;
    bench.drive(5, "own");
    bench.feed("05 " + QByteArray("V1.2 'x'; rm\n -r\0 padding", 24).toHex());
    QTest::qWait(200);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    file.close();
    file.remove();
    if (existed && file.open(QIODevice::WriteOnly)) {
        file.write(before);
    }
    QCOMPARE(written, QByteArray("xh_5_V1.2 'x'; rm -r\n"));
}

void TestXinHangLink::hostileBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray shortPackages;
    for (int command = 0; command < 256; ++command) {
        shortPackages += XinHangWire::frame(QByteArray(1, char(command)).toHex());
    }
    QByteArray noise(20000, '\0');
    QRandomGenerator random(4);
    for (char &byte : noise) {
        byte = random.bounded(8) == 0 ? '\xF0' : char(random.bounded(256));
    }
    // A shell command could be in the noise; the version command is not.
    noise.replace('\x05', '\x04');
    QTest::newRow("length 0") << QByteArray::fromHex("f000ff f000ff f00000");
    QTest::newRow("length 1, every command") << shortPackages.replace(XinHangWire::frame("05"), "");
    QTest::newRow("wrong checksum") << QByteArray::fromHex("f0028700 00");
    QTest::newRow("noise") << noise;
}

void TestXinHangLink::hostileBytes()
{
    QFETCH(QByteArray, bytes);
    XinHangBench bench({}, XinHangBench::OnLine);
    bench.box.send(bytes);
    // A start byte at the end of the noise may claim what follows, but not for long.
    QVERIFY(PtyBox::waitUntil([&] {
        bench.box.send(XinHangWire::frame("0c 02"));
        return bench.calls().contains("event(401,25,51001,1,771)");
    }));
}

CANBUS_TEST_MAIN(TestXinHangLink)
#include "tst_xinhang_link.moc"
