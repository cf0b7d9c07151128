#include "adapterfactory.h"
#include "adapterfixture.h"
#include "boxcatalog.h"

#include "decoders/silentadapter.h"
#include "orbhost.h"

#include <QFile>
#include <QProcess>

// The factory keeps one adapter for the life of a process, so every case is a process of its own:
// program --factory PORT TYPE..., where PORT is "-" for none set; its answers are lines on standard output.

namespace {

CanBusAdapter *instanceOf(const QString &type)
{
    return CanBusAdapter::getAdapterInstance(static_cast<CanBusType>(type.toUInt()));
}

void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    printf("%s\n", qPrintable(text));
}

int factoryMain(const QString &port, const QStringList &types)
{
    qInstallMessageHandler(printMessage);
    if (port != "-") {
        OrbHost::instance()->setProductValue("CANPortName", port == "empty" ? QString() : port);
    }
    CanBusAdapter *first = nullptr;
    for (const QString &type : types) {
        CanBusAdapter *const adapter = instanceOf(type);
        first = first ? first : adapter;
        if (!adapter) {
            printf("%s none\n", qPrintable(type));
        } else {
            printf("%s %s inited=%d type=%u%s\n", qPrintable(type), adapter->metaObject()->className(),
                   adapter->isInited(), adapter->getCanBusType(), adapter == first ? "" : " another");
        }
    }
    TraceRecorder trace;
    QTest::qWait(300);
    printf("start-up packages: %d\n", int(trace.linesOf("ProtocolUtils").filter("writeDatas(").size()));
    fflush(stdout);
    return 0;
}

QStringList run(const QString &port, const QString &types)
{
    const VirtualClock::Hold hold; // the other process takes real time
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList({"--factory", port}) + types.split(' '));
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed().split('\n');
}

} // namespace

class AdapterFactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void types();
    void numberTaken();
    void rules_data();
    void rules();
    void secondInit();
};

// All types, each in a process of its own: the first adapter built stays, whatever is asked for.
void AdapterFactoryTest::types()
{
    QStringList known;
    for (const CanBusType type : AdapterFactory::types()) {
        known << QString("%1 %2").arg(type).arg(AdapterFactory::className(type));
        const QString number = QString::number(type);
        const QString other = type == CanBusTypeXinHang ? "3" : "4";
        const QString adapter =
            QString("%1 %2 inited=0 type=%1").arg(number, AdapterFactory::className(type));
        QStringList lines = run("empty", number + ' ' + number + ' ' + other + " 0");
        lines.removeAll(QString());
        QCOMPARE(lines,
                 (QStringList{QString("CanBusAdapter: %2 %1").arg(number, AdapterFactory::className(type)),
                              adapter, adapter, other + " none", "0 none", "start-up packages: 0"}));
    }
    // The boxes' catalog was written apart from the plug-in.
    QStringList boxes;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        boxes << QString("%1 %2").arg(row.type).arg(row.className);
    }
    QCOMPARE(known.join(", "), boxes.join(", "));
}

// One row a number: the second one is refused, and goes without a trace.
void AdapterFactoryTest::numberTaken()
{
    const QList<CanBusType> before = AdapterFactory::types();
    {
        const AdapterFactory::Row other(CanBusTypeNone, SilentAdapter::staticMetaObject, nullptr);
        QCOMPARE(AdapterFactory::types(), QList<CanBusType>{CanBusTypeNone} + before);
        QTest::ignoreMessage(QtWarningMsg,
                             "CAN-bus type 9 is CanBus_Raise_Toyota already, SilentAdapter is left out");
        const AdapterFactory::Row taken(CanBusTypeRaiseToyota, SilentAdapter::staticMetaObject, nullptr);
        QCOMPARE(AdapterFactory::className(CanBusTypeRaiseToyota), "CanBus_Raise_Toyota");
    }
    QCOMPARE(AdapterFactory::types(), before);
}

void AdapterFactoryTest::rules_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("types");
    QTest::addColumn<QStringList>("lines");
    const QString opened = "Open CanBus Serial Port  \"%1\"  Ret: false \"The %1 file doesn't exists\"";
    const QStringList built = {"CanBusAdapter: CanBus_Raise_Haval 11", opened,
                               "11 CanBus_Raise_Haval inited=1 type=11", "start-up packages: 3"};
    QTest::newRow("unknown types build nothing and log nothing")
        << "-"
        << "0 999 4294967295" << QStringList{"0 none", "999 none", "4294967295 none", "start-up packages: 0"};
    QTest::newRow("a known type after unknown ones")
        << "/nowhere/tty"
        << "0 999 11"
        << QStringList({"0 none", "999 none"}) + QStringList(built).replaceInStrings("%1", "/nowhere/tty");
    QTest::newRow("default port") << "-"
                                  << "11" << QStringList(built).replaceInStrings("%1", "/dev/ttyHS0");
}

void AdapterFactoryTest::rules()
{
    QFETCH(QString, port);
    QFETCH(QString, types);
    QFETCH(QStringList, lines);
    QCOMPARE(run(port, types), lines);
}

namespace {

// Counts its starts.
class CountingAdapter : public SilentAdapter
{
public:
    CountingAdapter() : SilentAdapter(38400) {}

    using CanBusAdapter::timerEvent;
    void onInited() override { ++starts; }

    int starts = 0;
};

} // namespace

// Another timer's event starts nothing; a second initAdapter replaces the port and starts again, once.
void AdapterFactoryTest::secondInit()
{
    PtyBox box;
    OrbHost::instance()->setProductValue("CANPortName", box.path());
    CountingAdapter adapter;
    QVERIFY(!adapter.isInited());
    QCOMPARE(adapter.getCanBusType(), CanBusTypeNone);
    QCOMPARE(adapter.objectName(), QString("CanBusAdapter"));
    adapter.initAdapter();
    QVERIFY(adapter.isInited());
    QTimerEvent other(-1);
    adapter.timerEvent(&other);
    QCOMPARE(adapter.starts, 0);
    QTRY_COMPARE(adapter.starts, 1);
    adapter.initAdapter();
    QTest::qWait(150);
    QCOMPARE(adapter.starts, 2);
    OrbHost::instance()->setProductValue("CANPortName", QString());
    adapter.initAdapter();
    QVERIFY(!adapter.isInited());
    QTest::qWait(100);
    QCOMPARE(adapter.starts, 2);
}

int main(int argc, char **argv)
{
    if (!VirtualClock::start()) {
        return 1;
    }
    OrbApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--factory") {
        return factoryMain(arguments.value(2), arguments.mid(3));
    }
    AdapterFactoryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_adapterfactory.moc"
