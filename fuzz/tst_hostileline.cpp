// Every adapter survives whatever its line carries, and understands a good package afterwards. Run under a
// sanitizer, this finds reads outside a package.

#include "hostileline.h"

#include "adapterfactory.h"
#include "adapterfixture.h"

#include <random>

class TestHostileLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandOfEveryLength_data() { everyType(); }
    void everyCommandOfEveryLength();
    void randomBytes_data() { everyType(); }
    void randomBytes();
    void malformedArrays_data() { everyType(); }
    void malformedArrays();
    void shellCommands_data();
    void shellCommands();

private:
    void everyType()
    {
        QTest::addColumn<int>("type");
        for (const CanBusType type : AdapterFactory::types()) {
            QTest::newRow(AdapterFactory::className(type)) << int(type);
        }
    }
};

void TestHostileLine::everyCommandOfEveryLength()
{
    QFETCH(int, type);
    const CanBusType boxType = static_cast<CanBusType>(type);
    const std::unique_ptr<CanBusAdapter> adapter = HostileLine::adapter(boxType);
    std::mt19937 random(static_cast<unsigned int>(type));
    TraceRecorder trace;
    for (int command = 0; command < 256; ++command) {
        for (int n : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 254, 255}) {
            QByteArray data(n, '\0');
            for (char &byte : data) {
                byte = char(random());
            }
            adapter->onRecvMcuProtocol(HostileLine::package(boxType, quint8(command), data));
        }
        trace.take();
    }
    QCoreApplication::processEvents();
}

void TestHostileLine::randomBytes()
{
    QFETCH(int, type);
    const CanBusType boxType = static_cast<CanBusType>(type);
    const std::unique_ptr<CanBusAdapter> adapter = HostileLine::adapter(boxType);
    std::mt19937 random(static_cast<unsigned int>(type) + 100);
    QByteArray bytes(200000, '\0');
    for (char &byte : bytes) {
        // Start bytes and small lengths more often than chance has them, so that candidates come up.
        const unsigned int kind = random() % 4;
        byte = kind == 0 ? '\x2E' : kind == 1 ? '\xF0' : kind == 2 ? char(random() % 9) : char(random());
    }
    for (int readSize : {1, 38, 4096}) {
        HostileLine::receive(adapter.get(), bytes.left(readSize == 1 ? 5000 : bytes.size()), readSize);
    }

    // Room for whatever was begun, then a package that every acknowledging box gets its answer for.
    TraceRecorder trace;
    HostileLine::receive(adapter.get(),
                         QByteArray(600, '\0') + HostileLine::package(boxType, 0x77, QByteArray("\x01\x02")),
                         4096);
    const bool delivers = boxType != CanBusTypeLiHangJmcE200N && boxType != CanBusTypeHuidaZd;
    QCOMPARE(trace.linesOf("ProtocolUtils.recvProtocolData").size(), delivers ? 1 : 0);
}

void TestHostileLine::malformedArrays()
{
    QFETCH(int, type);
    const std::unique_ptr<CanBusAdapter> adapter = HostileLine::adapter(static_cast<CanBusType>(type));
    // The slot is public: arrays that no framer would deliver, shorter than their length bytes say.
    for (int command = 0; command < 256; ++command) {
        const QByteArray whole = QByteArray("\x2E") + char(command) + "\xFF\x01\x02";
        for (int size = 0; size <= whole.size(); ++size) {
            adapter->onRecvMcuProtocol(whole.left(size));
        }
        adapter->onRecvMcuProtocol(QByteArray("\xF0\xFF") + char(command));
    }
    adapter->onRecvAppProtocol(QByteArray(5000, '\xFF'));
    QCoreApplication::processEvents();
}

// The stand-in for the shell knows a command when it sees one.
void TestHostileLine::shellCommands_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<bool>("harmless");
    QTest::newRow("text") << QByteArray("echo 'V1.2' > /tmp/can_version") << true;
    QTest::newRow("nothing") << QByteArray("echo '' > /tmp/can_version") << true;
    QTest::newRow("quoted mark") << QByteArray("echo 'it'\\''s' > /tmp/can_version") << true;
    QTest::newRow("mark") << QByteArray("echo 'it's; rm' > /tmp/can_version") << false;
    QTest::newRow("end and begin") << QByteArray("echo 'a' $(rm) 'b' > /tmp/can_version") << false;
    QTest::newRow("line end") << QByteArray("echo 'a\nb' > /tmp/can_version") << false;
    QTest::newRow("elsewhere") << QByteArray("echo 'a' > /tmp/version") << false;
    QTest::newRow("no end") << QByteArray("echo ' > /tmp/can_version") << false;
}

void TestHostileLine::shellCommands()
{
    QFETCH(QByteArray, command);
    QTEST(HostileLine::isVersionCommand(command), "harmless");
}

CANBUS_TEST_MAIN(TestHostileLine)
#include "tst_hostileline.moc"
