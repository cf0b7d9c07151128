#include "adapterfixture.h"

#include "raise/canbus_raise_toyota.h"
#include "unitlink.h"

// The frame of the Raise family: builder, checksum, and the framer's hooks on a live line.
class RaiseFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makeCanBusProtocol();
    void checkSum();
    void line_data();
    void line();
    void versionCommand_data();
    void versionCommand();
    void versionFile();
};

void RaiseFrameTest::makeCanBusProtocol()
{
    // The high byte of the command is dropped.
    for (const int command : {0x20, 0x81, 0xFF, 0x184}) {
        for (const int size : {0, 1, 2, 255}) {
            const QByteArray data(size, '\xFD');
            QCOMPARE(RaiseAdapter::makeCanBusProtocol(static_cast<unsigned short>(command),
                                                      reinterpret_cast<const uchar *>(data.constData()),
                                                      uchar(size)),
                     RaiseWire::frame(quint8(command), data));
        }
        // Without data the bytes are zeros.
        QCOMPARE(RaiseAdapter::makeCanBusProtocol(static_cast<unsigned short>(command), nullptr, 255),
                 RaiseWire::frame(quint8(command), QByteArray(255, '\0')));
    }
}

void RaiseFrameTest::checkSum()
{
    const QByteArray bytes = QByteArray::fromHex("010203f0ff010203040506");
    const struct
    {
        int start, length, sum;
    } ranges[] = {{0, 11, 0xF5}, {1, 3, 0x0A},  {10, 1, 0xF9}, {1, 0, 0xFF},         {1, -1, 0xFF},
                  {1, 11, 0xFF}, {11, 1, 0xFF}, {-1, 2, 0xFF}, {2, 0x7FFFFFFF, 0xFF}};
    for (const auto &range : ranges) {
        QCOMPARE(int(RaiseAdapter::getPackageCheckSum(bytes, range.start, range.length)), range.sum);
    }
}

void RaiseFrameTest::line_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("packages"); // delivered and acknowledged
    const QByteArray good = RaiseWire::frame("20 01 01");
    QByteArray bad = good;
    bad[5] = char(bad.at(5) ^ 1);
    QTest::newRow("longest") << RaiseWire::frame(0x55, QByteArray(255, '.')) << 1;
    QTest::newRow("without data") << RaiseWire::frame("55") << 1;
    QTest::newRow("wrong checksum") << bad << 0;
    QTest::newRow("good behind a wrong checksum") << bad + good << 1;
    QTest::newRow("good behind a length that lies") << QByteArray::fromHex("2e20ff") + good << 1;
}

void RaiseFrameTest::line()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, packages);
    AdapterFixture fixture;
    fixture.start<CanBus_Raise_Toyota>();
    QVERIFY(fixture.box.send(bytes));
    PtyBox::waitUntil([&] { return fixture.box.received().size() >= qMax(1, packages); },
                      packages ? 1500 : 60);
    QCOMPARE(fixture.box.takeUntilQuiet(30), QByteArray(packages, '\xFF'));
    QCOMPARE(int(fixture.trace.linesOf("ProtocolUtils").filter("recvProtocolData").size()), packages);
}

void RaiseFrameTest::versionCommand_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("echoed"); // inside echo '...'
    QTest::newRow("plain") << QByteArray("RZ-TY V1.02 \"x\" $(y) `z` \\n;&|")
                           << QByteArray("RZ-TY V1.02 \"x\" $(y) `z` \\n;&|");
    QTest::newRow("padded with NULs") << QByteArray("V1\0\0\0", 5) << QByteArray("V1");
    QTest::newRow("text behind a NUL") << QByteArray("V1\0';reboot", 11) << QByteArray("V1");
    QTest::newRow("quote") << QByteArray("a'b") << QByteArray("a'\\''b");
    QTest::newRow("quotes that would run") << QByteArray("';touch x;'") << QByteArray("'\\'';touch x;'\\''");
    QTest::newRow("control characters") << QByteArray("a\n\r\t\x1b\x7f\x9f"
                                                      "b")
                                        << QByteArray("ab");
    QTest::newRow("Latin-1") << QByteArray("\xe9\xa0") << QByteArray("\xc3\xa9\xc2\xa0");
}

void RaiseFrameTest::versionCommand()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, echoed);
    QCOMPARE(UnitLink::versionCommand(version), "echo '" + echoed + "' > /tmp/can_version");
}

// The version's whole way, from the line into the file, with a text that must not run.
void RaiseFrameTest::versionFile()
{
    QFile file("/tmp/can_version");
    file.remove();
    AdapterFixture fixture;
    fixture.start<CanBus_Raise_Toyota>();
    fixture.exchange(QByteArrayList{RaiseWire::frame(0x30, "V1'; echo broken; '$(id)")});
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("V1'; echo broken; '$(id)\n"));
    file.remove();
}

CANBUS_TEST_MAIN(RaiseFrameTest)
#include "tst_raiseframe.moc"
