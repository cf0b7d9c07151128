#include "carbench.h"
#include "transcript.h"

#include "boxcatalog.h"
#include "decoderbox.h"
#include "sweep.h"
#include "xinhang/canbus_xinhang.h"

#include "raise/raiseadapter.h"

#include <QDir>
#include <QSet>

// Every car by its sheet: packages in through the line, the whole ordered trace of framework calls out; and
// whether each decoder of the plug-in has a sheet that says so.
class CarsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC"); } // a car's clock is set to the local time
    void everyDecoderHasItsSheet();
    void sheets_data() { eachCar(); }
    void sheets();
    void commands_data() { eachCar(); }
    void commands();
    void values_data() { eachCar(); }
    void values();
    void cutPackages_data() { eachCar(); }
    void cutPackages();
    void silentBoxes_data() { eachCar(); }
    void silentBoxes();
    void cleanupTestCase() { QFile::remove("/tmp/can_version"); }

private:
    void eachCar();
};

namespace {

// A decoder's rows, whatever its frame: command (-1 without a handler) and fewest data bytes.
typedef QList<QPair<int, int>> Rows;

template <class Adapter>
void readRows(CanBusAdapter *adapter, Rows *rows)
{
    const Adapter *const framed = dynamic_cast<const Adapter *>(adapter);
    for (int i = 0; framed && i < framed->commands().count; ++i) {
        const auto &row = framed->commands().rows[i];
        *rows << qMakePair(row.handler || row.shared ? int(row.command) : -1, int(row.minimumN));
    }
}

Rows rowsOf(CanBusAdapter *adapter)
{
    Rows rows;
    readRows<RaiseAdapter>(adapter, &rows);
    readRows<CanBus_XinHang>(adapter, &rows);
    return rows;
}

QString sheetOf(const char *car)
{
    return QString(SHEETS "/%1.txt").arg(car);
}

} // namespace

// CANBUS_CAR, a car's word, leaves one.
void CarsTest::eachCar()
{
    QTest::addColumn<int>("type");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (qEnvironmentVariable("CANBUS_CAR", row.car) == row.car) {
            QTest::newRow(row.car) << row.type;
        }
    }
}

// That catalog and plug-in have the same numbers is tst_adapterfactory's.
void CarsTest::everyDecoderHasItsSheet()
{
    QStringList sheets = QDir(SHEETS).entryList({"*.txt"});
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        QVERIFY2(sheets.removeAll(QString(row.car) + ".txt") == 1,
                 qPrintable(QString("%1 has no tests/cars/sheets/%2.txt").arg(row.className, row.car)));
    }
    QVERIFY2(sheets.isEmpty(),
             qPrintable("sheets of cars that the boxes' catalog lacks: " + sheets.join(' ')));
}

void CarsTest::sheets()
{
    SKIP_WITHOUT_ROWS();
    QFETCH(int, type);
    CarBench bench(static_cast<CanBusType>(type));
    const QString sheet = sheetOf(QTest::currentDataTag());
    const QString difference = TestSupport::goldenDifference(
        sheet, TestSupport::play(sheet, [&bench](const QString &order) { return bench.act(order); }));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

// A decoder has no command twice and none without a handler, its sheet reaches each, and a virtual box speaks
// them.
void CarsTest::commands()
{
    QFETCH(int, type);
    QByteArrayList packages;
    const QRegularExpression order("^> (each )?([0-9a-f?]{2}( [0-9a-f?]{2}| \\|)*)$");
    for (const QString &line :
         QString(TestSupport::contentOf(sheetOf(QTest::currentDataTag()))).split('\n')) {
        const QString sent = order.match(line).captured(2).replace('?', '0');
        packages << (sent.isEmpty() ? QByteArrayList() : sent.toLatin1().split('|'));
    }
    CarBench bench(static_cast<CanBusType>(type));
    const Rows rows = rowsOf(bench.car());
    QSet<int> commands;
    for (const auto &row : rows) {
        const QByteArray name = "command 0x" + QByteArray::number(row.first, 16).rightJustified(2, '0');
        QVERIFY2(row.first >= 0, "a row without a handler");
        QVERIFY2(!commands.contains(row.first), name + " twice");
        commands << row.first;
        const bool isReached =
            std::any_of(packages.begin(), packages.end(), [&row](const QByteArray &package) {
                const QByteArray bytes = QByteArray::fromHex(package);
                return quint8(bytes.at(0)) == row.first && bytes.size() > row.second;
            });
        QVERIFY2(isReached, name + " is not in the sheet");
    }
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    // A box that only knows the handshake reports its version, and nothing else.
    QVERIFY2(rows.isEmpty() || (box && box->speaker()->keys().size() + box->speaker()->reports().size() > 1),
             "decodes commands, but no virtual box speaks them");
}

// What the car of the virtual box is, and what the decoder says of it: two readings of one data sheet.
void CarsTest::values()
{
    QFETCH(int, type);
    CarBench bench(static_cast<CanBusType>(type));
    CanBusAdapter *const adapter = bench.car();
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    if (type == CanBusTypeXinHang || !box) {
        QSKIP("another frame");
    }
    for (const QString &order : Sweep::orders(*box, "properties")) {
        const QString name = order.section(' ', 0, 0);
        QVERIFY(box->car()->setValue(name, order.section(' ', 1)));
        for (int i = 0; i < box->speaker()->reports().size(); ++i) {
            const BoxPackage package = box->speaker()->reportPackage(i);
            if (box->speaker()->reports().at(i).isAbout(name) && name != "box.version") {
                adapter->onRecvMcuProtocol(RaiseWire::frame(package.command, package.data));
            }
        }
        const QVariant told = adapter->property(name.toLatin1());
        // The car has a number for the message of the parking picture.
        if (told.isValid() && name != "parking_picture.message") {
            QCOMPARE(name + ' ' + told.toString(), name + ' ' + box->car()->text(name));
        }
    }
}

// Packages that end anywhere, with a length byte that lies: every read stays inside.
void CarsTest::cutPackages()
{
    QFETCH(int, type);
    if (type == CanBusTypeXinHang) {
        QSKIP("another frame");
    }
    CarBench bench(static_cast<CanBusType>(type));
    CanBusAdapter *const car = bench.car();
    car->onRecvMcuProtocol(RaiseWire::frame("00")); // to a box that speaks a unit may have something to say
    bench.fixture().trace.take();
    for (int command = 0; command < 256; ++command) {
        const QByteArray whole = QByteArray("\x2E") + char(command) + QByteArray(14, '\xFF');
        // The version would run the shell each time.
        for (int size = 0; size <= whole.size() && command != 0x30 && command != 0x7F; ++size) {
            car->onRecvMcuProtocol(QByteArray(whole.constData(), size));
        }
    }
    QStringList sent = bench.fixture().trace.linesOf("ProtocolUtils");
    sent.removeDuplicates();
    const bool isFramed = dynamic_cast<RaiseAdapter *>(car) != nullptr;
    QCOMPARE(sent, isFramed ? QStringList("ProtocolUtils.writeDatas_direct(ff)") : QStringList());
}

// Boxes whose frame is not known: whatever they send, nothing is delivered, answered or kept.
void CarsTest::silentBoxes()
{
    QFETCH(int, type);
    if (type != CanBusTypeHuidaZd && type != CanBusTypeLiHangJmcE200N) {
        QSKIP("a box that is understood");
    }
    CarBench bench(static_cast<CanBusType>(type));
    CanBusAdapter *const car = bench.car();
    bench.fixture().trace.take();
    QVERIFY(bench.fixture().box.send(RaiseWire::frame("20 01 01").repeated(20000)));
    QCOMPARE(bench.fixture().box.takeUntilQuiet(), QByteArray());
    car->showApp(1);
    car->onKeyEvent(0x01000072, true, false);
    car->onRecvAppProtocol("x");
    QCOMPARE(bench.fixture().trace.take(), QStringList());
}

CANBUS_TEST_MAIN(CarsTest)
#include "tst_cars.moc"
