#include "carbench.h"

#include "boxcatalog.h"
#include "decoderbox.h"
#include "orbhost.h"
#include "raise/raiseadapter.h"
#include "xinhang/canbus_xinhang.h"

#include <QSet>

// Every car: packages in through the line, the whole ordered trace of framework calls out; and whether each
// decoder of the plug-in has a sheet that says so.
class CarsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDecoderHasItsSheet();
    void everyDecodedCarHasItsBox();
    void vectors_data();
    void vectors();
    void phoneKey();
    void commandTables_data() { eachSheet(); }
    void commandTables();
    void cutPackages_data() { eachSheet(); }
    void cutPackages();

    void cleanupTestCase();

private:
    void eachSheet();

    CarBench m_bench;
};

namespace {

// A decoder's rows, whatever its frame: command and fewest data bytes.
typedef QList<QPair<int, int>> Rows;

template <class Adapter>
bool readRows(CanBusAdapter *adapter, Rows *rows)
{
    const Adapter *const framed = dynamic_cast<const Adapter *>(adapter);
    if (!framed) {
        return false;
    }
    const auto table = framed->commands();
    for (int i = 0; i < table.count; ++i) {
        const bool isHandled = table.rows[i].handler != nullptr || table.rows[i].shared != nullptr;
        *rows << qMakePair(isHandled ? int(table.rows[i].command) : -1, int(table.rows[i].minimumN));
    }
    return true;
}

Rows rowsOf(CanBusAdapter *adapter)
{
    Rows rows;
    if (!readRows<RaiseAdapter>(adapter, &rows)) {
        readRows<CanBus_XinHang>(adapter, &rows);
    }
    return rows;
}

QString hex(int number)
{
    return "0x" + QString::number(number, 16).rightJustified(2, '0');
}

} // namespace

void CarsTest::everyDecoderHasItsSheet()
{
    if (!areAllCarsTested()) {
        QSKIP("one car only");
    }
    QList<int> sheets;
    for (const CarSheet &sheet : carSheets()) {
        QVERIFY2(AdapterFactory::className(sheet.type),
                 "a sheet of " + sheet.name() + ", which the plug-in lacks");
        sheets << sheet.type;
        const auto isItsBox = [&](const BoxCatalog::Row &row) {
            return row.type == int(sheet.type) && sheet.car == row.car;
        };
        QVERIFY2(std::any_of(BoxCatalog::rows().begin(), BoxCatalog::rows().end(), isItsBox),
                 "the boxes' catalog has another word than '" + sheet.car + "' for " + sheet.name());
    }
    for (const CanBusType type : AdapterFactory::types()) {
        QVERIFY2(sheets.count(type) == 1, qPrintable(QString("%1 has %2 sheets in tests/cars/sheets")
                                                         .arg(AdapterFactory::className(type))
                                                         .arg(sheets.count(type))));
    }
}

// What a decoder understands, a virtual box can say.
void CarsTest::everyDecodedCarHasItsBox()
{
    for (const CarSheet &sheet : carSheets()) {
        const bool isDecoded = !rowsOf(m_bench.use(sheet.type)).isEmpty();
        QString error;
        const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(int(sheet.type), nullptr, &error));
        // A box that only knows the handshake reports its version, and nothing else.
        QVERIFY2(!isDecoded || (box && box->speaker()->keys().size() + box->speaker()->reports().size() > 1),
                 sheet.name() + " decodes commands, but no virtual box speaks them");
    }
}

void CarsTest::vectors_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("setup");
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QStringList>("trace");
    for (const CarSheet &sheet : carSheets()) {
        for (const CarVector &vector : sheet.vectors) {
            QTest::addRow("%s, %s", sheet.name().constData(), vector.name)
                << int(sheet.type) << QByteArray(vector.setup) << vector.packages << vector.trace;
        }
    }
}

void CarsTest::vectors()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    QFETCH(QByteArray, setup);
    QFETCH(QByteArray, packages);
    QFETCH(QStringList, trace);
    m_bench.use(static_cast<CanBusType>(type));
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
    for (const CanBusType type : {CanBusTypeRaiseGm, CanBusTypeRaiseJeep}) {
        if (!findSheet(type)) {
            continue;
        }
        m_bench.use(type);
        for (const auto &call : calls) {
            OrbHost::instance()->setTag(0x10001, call.first);
            const QStringList trace =
                m_bench.fixture().exchange(type == CanBusTypeRaiseGm ? "01 06 01" : "01 17 01");
            OrbHost::instance()->setTag(0x10001, QVariant());
            QCOMPARE(trace, Expect::pressed(call.second, 1));
        }
    }
}

void CarsTest::eachSheet()
{
    QTest::addColumn<int>("type");
    for (const CarSheet &sheet : carSheets()) {
        QTest::newRow(sheet.name().constData()) << int(sheet.type);
    }
}

// A car's data sheet has no command twice and none without a handler, and the sheet's vectors reach each row.
void CarsTest::commandTables()
{
    QFETCH(int, type);
    QByteArrayList packages;
    for (const CarVector &vector : findSheet(type)->vectors) {
        packages << vector.packages.split('|');
    }
    QSet<int> commands;
    for (const auto &row : rowsOf(m_bench.use(static_cast<CanBusType>(type)))) {
        QVERIFY2(row.first >= 0, "a row without a handler");
        QVERIFY2(!commands.contains(row.first), qPrintable("command " + hex(row.first) + " twice"));
        commands << row.first;
        bool reached = false;
        for (const QByteArray &package : packages) {
            const QByteArray bytes = QByteArray::fromHex(package);
            reached = reached || (quint8(bytes.at(0)) == row.first && bytes.size() > row.second);
        }
        QVERIFY2(reached, qPrintable("command " + hex(row.first) + " has no vector"));
    }
}

// Packages that end anywhere, with a length byte that lies: every read stays inside.
void CarsTest::cutPackages()
{
    QFETCH(int, type);
    if (type == CanBusTypeXinHang) {
        QSKIP("another frame");
    }
    CanBusAdapter *const car = m_bench.use(static_cast<CanBusType>(type));
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
    const bool isFramed = dynamic_cast<RaiseAdapter *>(car) != nullptr;
    QCOMPARE(sent, isFramed ? QStringList("ProtocolUtils.writeDatas_direct(ff)") : QStringList());
}

void CarsTest::cleanupTestCase()
{
    m_bench.reset();
    QFile::remove("/tmp/can_version");
}

CANBUS_TEST_MAIN(CarsTest)
#include "tst_cars.moc"
