#include "carbench.h"
#include "carvectors.h"

#include "orbhost.h"

#include <QSet>

// One table per car: packages in through the line, the whole ordered trace of framework calls out.
class CarsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vectors_data();
    void vectors();
    void phoneKey();
    void commandTables_data();
    void commandTables();
    void cutPackages_data() { commandTables_data(); }
    void cutPackages();

    void cleanupTestCase();

private:
    CarBench m_bench;
};

void CarsTest::vectors_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<QByteArray>("setup");
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QStringList>("trace");
    for (const auto &car : allVectors()) {
        for (const CarVector &vector : car.second) {
            QTest::addRow("%s, %s", car.first, vector.name)
                << QString(car.first) << QByteArray(vector.setup) << vector.packages << vector.trace;
        }
    }
}

void CarsTest::vectors()
{
    QFETCH(QString, car);
    QFETCH(QByteArray, setup);
    QFETCH(QByteArray, packages);
    QFETCH(QStringList, trace);
    m_bench.useByName(car);
    if (!setup.isEmpty()) {
        m_bench.fixture().exchange(setup.constData());
    }
    QCOMPARE(m_bench.fixture().exchange(packages.constData()), trace);
}

// The phone key takes a call or, without one, dials by voice.
void CarsTest::phoneKey()
{
    const QList<QPair<quint64, int>> calls = {
        {~quint64(0x3000000), 0x01100008}, {0x1000000, 0x01100004}, {0x2000000, 0x01100004}};
    for (const char *car : {"CanBus_Raise_GM", "CanBus_Raise_Jeep"}) {
        m_bench.useByName(car);
        for (const auto &call : calls) {
            OrbHost::instance()->setTag(0x10001, call.first);
            const QStringList trace =
                m_bench.fixture().exchange(QByteArray(car).endsWith("GM") ? "01 06 01" : "01 17 01");
            OrbHost::instance()->setTag(0x10001, QVariant());
            QCOMPARE(trace, Expect::pressed(call.second, 1));
        }
    }
}

void CarsTest::commandTables_data()
{
    QTest::addColumn<QByteArray>("packages");
    for (const auto &car : allVectors()) {
        QByteArrayList packages;
        for (const CarVector &vector : car.second) {
            packages << vector.packages;
        }
        QTest::newRow(car.first) << packages.join('|');
    }
}

// A car's data sheet has no command twice and none without a handler, and the tables above reach every row.
void CarsTest::commandTables()
{
    QFETCH(QByteArray, packages);
    QSet<int> reached;
    const RaiseAdapter::CommandTable table = m_bench.useByName(QTest::currentDataTag())->commands();
    for (const QByteArray &package : packages.split('|')) {
        const QByteArray bytes = QByteArray::fromHex(package);
        for (int i = 0; i < table.count; ++i) {
            if (quint8(bytes.at(0)) == table.rows[i].command && bytes.size() > table.rows[i].minimumN) {
                reached << table.rows[i].command;
            }
        }
    }
    QVERIFY(table.count > 0);
    QSet<int> commands;
    for (int i = 0; i < table.count; ++i) {
        const RaiseAdapter::Command &row = table.rows[i];
        QVERIFY2(!commands.contains(row.command), qPrintable(QString("command %1 twice").arg(row.command)));
        commands << row.command;
        QVERIFY(row.handler != nullptr);
        QVERIFY2(reached.contains(row.command), qPrintable(QString("%1 untested").arg(row.command)));
    }
}

// Packages that end anywhere, with a length byte that lies: every read stays inside.
void CarsTest::cutPackages()
{
    RaiseAdapter *const car = m_bench.useByName(QTest::currentDataTag());
    m_bench.fixture().trace.take();
    for (int command = 0; command < 256; ++command) {
        const QByteArray whole = QByteArray("\x2E") + char(command) + QByteArray(14, '\xFF');
        // The version would run the shell each time.
        for (int size = 0; size <= whole.size() && command != 0x30 && command != 0x7F; ++size) {
            car->onRecvMcuProtocol(QByteArray(whole.constData(), size));
        }
    }
    QStringList sent = m_bench.fixture().trace.linesOf("ProtocolUtils");
    sent.removeDuplicates();
    QCOMPARE(sent, QStringList{"ProtocolUtils.writeDatas_direct(ff)"});
}

void CarsTest::cleanupTestCase()
{
    m_bench.reset();
    QFile::remove("/tmp/can_version");
}

CANBUS_TEST_MAIN(CarsTest)
#include "tst_cars.moc"
