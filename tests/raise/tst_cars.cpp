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
    void phoneKey_data();
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
        for (const CarVector &vector : car.second)
            QTest::addRow("%s, %s", car.first, vector.name)
                << QString(car.first) << QByteArray(vector.setup) << vector.packages << vector.trace;
    }
}

void CarsTest::vectors()
{
    QFETCH(QString, car);
    QFETCH(QByteArray, setup);
    QFETCH(QByteArray, packages);
    QFETCH(QStringList, trace);
    m_bench.useByName(car);
    if (!setup.isEmpty())
        m_bench.fixture().exchange(setup.constData());
    QCOMPARE(m_bench.fixture().exchange(packages.constData()), trace);
}

void CarsTest::phoneKey_data()
{
    QTest::addColumn<QString>("car");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<quint64>("statusWord");
    QTest::addColumn<int>("key");
    const int call = 0x01100004;
    const int voiceDial = 0x01100008;
    const auto row = [](const char *name, const char *car, const char *package, quint64 word, int key) {
        QTest::newRow(name) << QString(car) << QByteArray(package) << word << key;
    };
    row("GM, no call", "CanBus_Raise_GM", "01 06 01", ~quint64(0x3000000), voiceDial);
    row("GM, bit 24", "CanBus_Raise_GM", "01 06 01", 0x1000000, call);
    row("GM, bit 25", "CanBus_Raise_GM", "01 06 01", 0x2000000, call);
    row("Jeep, no call", "CanBus_Raise_Jeep", "01 17 01", ~quint64(0x3000000), voiceDial);
    row("Jeep, both bits", "CanBus_Raise_Jeep", "01 17 01", 0x3000000, call);
}

void CarsTest::phoneKey()
{
    QFETCH(QString, car);
    QFETCH(QByteArray, package);
    QFETCH(quint64, statusWord);
    QFETCH(int, key);
    m_bench.useByName(car);
    OrbHost::instance()->setTag(0x10001, statusWord);
    const QStringList trace = m_bench.fixture().exchange(package.constData());
    OrbHost::instance()->setTag(0x10001, QVariant());
    QCOMPARE(trace, Expect::pressed(key, 1));
}

void CarsTest::commandTables_data()
{
    QTest::addColumn<QByteArray>("packages");
    for (const auto &car : allVectors()) {
        QByteArrayList packages;
        for (const CarVector &vector : car.second)
            packages << vector.packages;
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
            if (quint8(bytes.at(0)) == table.rows[i].command && bytes.size() > table.rows[i].minimumN)
                reached << table.rows[i].command;
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
        for (int size = 0; size <= whole.size() && command != 0x30 && command != 0x7F; ++size)
            car->onRecvMcuProtocol(QByteArray(whole.constData(), size));
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
