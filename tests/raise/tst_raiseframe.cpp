#include "adapterfixture.h"

#include "raise/canbus_raise_toyota.h"
#include "testfiles.h"
#include "unitlink.h"

#include <QDir>
#include <QRegularExpression>

#include <dlfcn.h>

namespace {

QByteArrayList shellCommands;

}

// Stands before the C library's own: what the unit has run is written down, and run.
extern "C" int system(const char *command)
{
    shellCommands << command;
    typedef int (*System)(const char *);
    return reinterpret_cast<System>(dlsym(RTLD_NEXT, "system"))(command);
}

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
    void versionFileInTheWay();
    void versionFile_data();
    void versionFile();
    void versionFlood();
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

void RaiseFrameTest::versionFile_data()
{
    QTest::addColumn<QByteArray>("before"); // a shell command that prepares the place
    QTest::newRow("nothing there") << QByteArray();
    QTest::newRow("an older version") << QByteArray("echo old > /tmp/can_version");
    QTest::newRow("a pipe, on which a shell would wait for ever") << QByteArray("mkfifo /tmp/can_version");
    QTest::newRow("a link") << QByteArray("ln -s can_version_target /tmp/can_version");
}

// The version's whole way, from the line into the file, with a text that must not run.
void RaiseFrameTest::versionFile()
{
    QFETCH(QByteArray, before);
    QFile file("/tmp/can_version");
    file.remove();
    if (!before.isEmpty()) {
        QCOMPARE(system(before.constData()), 0);
    }
    AdapterFixture fixture;
    fixture.start<CanBus_Raise_Toyota>();
    fixture.exchange(QByteArrayList{RaiseWire::frame(0x30, "V1'; echo broken; '$(id)")});
    QTRY_COMPARE(TestSupport::contentOf(file.fileName()), QByteArray("V1'; echo broken; '$(id)\n"));
    QVERIFY(!QFile::exists("/tmp/can_version_target"));
    file.remove();
}

// A folder in the way stays; nothing is written, and one line says so.
void RaiseFrameTest::versionFileInTheWay()
{
    QFile::remove("/tmp/can_version");
    QVERIFY(QDir("/tmp").mkdir("can_version"));
    AdapterFixture fixture;
    fixture.start<CanBus_Raise_Toyota>();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is not written: /tmp/can_version"));
    shellCommands.clear();
    fixture.exchange("30 31");
    fixture.exchange("30 32");
    QTest::qWait(500);
    QVERIFY(QDir("/tmp").rmdir("can_version"));
    QCOMPARE(shellCommands, QByteArrayList());
}

// A box that repeats itself at line speed must not hold the unit up.
void RaiseFrameTest::versionFlood()
{
    QFile::remove("/tmp/can_version");
    AdapterFixture fixture;
    fixture.start<CanBus_Raise_Toyota>();
    shellCommands.clear();
    const QByteArrayList same = QVector<QByteArray>(60, RaiseWire::frame(0x30, "same")).toList();
    fixture.exchange(same);
    QTest::qWait(300);
    fixture.exchange(same);
    QTest::qWait(300);
    QCOMPARE(int(shellCommands.size()), 1);
    for (int round = 0; round < 100; ++round) { // for a second
        fixture.exchange(QByteArrayList{RaiseWire::frame(0x30, "V" + QByteArray::number(round))});
        QTest::qWait(10);
    }
    QTRY_COMPARE(TestSupport::contentOf("/tmp/can_version"), QByteArray("V99\n"));
    QVERIFY2(shellCommands.size() <= 1 + 20, qPrintable(QString::number(shellCommands.size())));
    QFile::remove("/tmp/can_version");
}

CANBUS_TEST_MAIN(RaiseFrameTest)
#include "tst_raiseframe.moc"
