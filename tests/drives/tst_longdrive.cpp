// A day of each box's own traffic on a bad line: every good package is taken exactly once and in order, and nothing grows.
// An hour of it unless ORB_WHOLE_DAY is set.

#include "boxcatalog.h"
#include "canbusadapter.h"
#include "canbusplugin.h"
#include "decoderbox.h"
#include "frameformat.h"
#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost.h"
#include "orbtrace.h"
#include "scenarioplayer.h"
#include "testmain.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QQueue>
#include <QTemporaryDir>

#include <malloc.h>

namespace {

const int Hour = 3600 * 1000;   // ms
const int Stretches = 8;        // of a drive; behind each the unit is looked at
const int Quiet = 3000;         // ms without news, after which nothing is on its way
const int OutFor = 2000;        // ms that the line is pulled out in the middle of a stretch
const qint64 FreeLists = 32768; // bytes that the C library keeps for the next allocation, and counts as used
const uint CarApp = 769;
const uint CanBusTypeTag = 0x10008;

// Each strikes so many packages of a hundred.
struct Rate
{
    LineFaults::Kind kind;
    int amount;
    double percent;
};
const Rate Rates[] = {
    {LineFaults::Flip, 0, 1},     {LineFaults::Corrupt, 0, 1},  {LineFaults::Drop, 0, 1},
    {LineFaults::Double, 0, 1},   {LineFaults::Cut, 3, 0.5},    {LineFaults::Stall, 60, 0.5},
    {LineFaults::Length, 0, 0.5}, {LineFaults::Garbage, 12, 1}, {LineFaults::Late, 150, 0.5}};

// What must be the same at the end of a day as in its middle.
struct Footprint
{
    qint64 heap;
    int timers;
    int windows;
    int files;
};

int timersOf(const QObject *object)
{
    const QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance();
    int count = int(dispatcher->registeredTimers(const_cast<QObject *>(object)).size());
    for (const QObject *const child : object->children()) {
        count += timersOf(child);
    }
    return count;
}

} // namespace

/// Compares what the box puts on the line with what the unit takes from it.
class LineJudge : public QObject, public OrbTraceListener
{
public:
    explicit LineJudge(DecoderBox *box) : m_box(box)
    {
        connect(box, &DecoderBox::logLine, this, &LineJudge::onLogLine);
        connect(box, &DecoderBox::unitLeft, this, [this] { m_onItsWay.clear(); });
        OrbTrace::setListener(this);
    }
    ~LineJudge() override { OrbTrace::setListener(nullptr); }

    void called(const QString &, const QString &call, const QVariantList &args) override
    {
        if (call == "recvProtocolData") {
            take(args.first().toByteArray());
        }
    }
    void eventCalled(const QString &, const OrbEvent &) override {}
    void valueTold(const QString &, const QVariant &) override {}

    qint64 good = 0;    // packages that left the box whole
    qint64 spoilt = 0;  // those that did not
    qint64 lost = 0;    // good ones that the unit never took
    qint64 foreign = 0; // taken, and not on the line
    bool isQuiet() const { return m_onItsWay.isEmpty(); }

private:
    // "  12.345 box>unit 2e8101017c what it means"
    void onLogLine(const QString &line)
    {
        const QStringList words = line.simplified().split(' ');
        if (words.value(1) != "box>unit" || !m_box->isPlugged() || !m_box->isUnitThere()) {
            return;
        }
        const FrameFormat &format = m_box->speaker()->format();
        const QByteArray bytes = QByteArray::fromHex(words.at(2).toLatin1());
        const qint64 before = good;
        for (int at = 0; at < bytes.size(); ++at) {
            const int size = quint8(bytes.at(at)) == format.start
                                 ? format.frameSize(bytes.constData() + at, int(bytes.size()) - at)
                                 : 0;
            if (size > 0 && format.isFrame(bytes.mid(at, size))) {
                m_onItsWay.enqueue(bytes.mid(at, size));
                ++good;
                at += size - 1;
            }
        }
        spoilt += bytes.size() > 1 && good == before;
    }

    void take(const QByteArray &package)
    {
        const int at = int(m_onItsWay.indexOf(package));
        if (at < 0) {
            ++foreign;
            return;
        }
        lost += at;
        m_onItsWay.erase(m_onItsWay.begin(), m_onItsWay.begin() + at + 1);
    }

    DecoderBox *m_box;
    QQueue<QByteArray> m_onItsWay;
};

class TestLongDrive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wholeDay_data();
    void wholeDay();

private:
    void drive(DecoderBox *box, ScenarioPlayer *player, int ms);
    void lookAtScreens();
    Footprint footprint() const;

    QTemporaryDir m_folder;
    QWidget m_screen; // is never shown: what is painted is not what is asked here
    CanBusPlugin *m_plugin = nullptr;
    CanBusAdapter *m_adapter = nullptr;
};

void TestLongDrive::initTestCase()
{
    OrbHost::instance()->setSettingsDir(m_folder.filePath("settings"));
    m_screen.resize(1024, 600);
    // Each loss of the line is told.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    OrbHost::instance()->setScreen(&m_screen, &m_screen);
}

void TestLongDrive::wholeDay_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("car");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (QFile::exists(QString(SCENARIOS "/%1-all.scn").arg(row.car))) {
            QTest::newRow(row.car) << row.type << QString(row.car);
        }
    }
}

// The drive goes on and on; the line is pulled out once, and somebody looks at the screen.
void TestLongDrive::drive(DecoderBox *box, ScenarioPlayer *player, int ms)
{
    player->play();
    QTest::qWait(ms / 2);
    box->unplug(OutFor);
    lookAtScreens();
    QTest::qWait(ms / 2);
    player->stop();
    QTest::qWait(Quiet);
}

void TestLongDrive::lookAtScreens()
{
    OrbEvent show(0, 0, OrbEventType::ShowApp);
    show.setParams(CarApp, 0);
    QCoreApplication::sendEvent(m_plugin, &show);
    QTest::qWait(1000);
    if (QWidget *const window = OrbHost::instance()->frontMainWindow()) {
        window->setVisible(false);
    }
}

Footprint TestLongDrive::footprint() const
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    int timers = timersOf(m_adapter);
    for (const QWidget *const window : OrbHost::instance()->windows()) {
        timers += timersOf(window);
    }
    return {qint64(mallinfo2().uordblks), timers, int(OrbHost::instance()->windows().size()),
            int(QDir("/proc/self/fd").entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot).size())};
}

void TestLongDrive::wholeDay()
{
    QFETCH(int, type);
    QFETCH(QString, car);
    const int stretch = (qEnvironmentVariableIsSet("ORB_WHOLE_DAY") ? 24 : 1) * Hour / Stretches;
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    QVERIFY2(box, qPrintable(error));
    QVERIFY2(box->open(m_folder.filePath(car), &error), qPrintable(error));
    Scenario scenario;
    QVERIFY2(scenario.load(QString(SCENARIOS "/%1-all.scn").arg(car), *box, &error), qPrintable(error));
    ScenarioPlayer player(box.get(), scenario);
    connect(&player, &ScenarioPlayer::finished, &player, [&player] { player.play(); });
    for (const Rate &rate : Rates) {
        box->faults()->setRate(rate.kind, rate.amount, rate.percent);
    }
    LineJudge judge(box.get());
    OrbHost::instance()->setTag(CanBusTypeTag, type);
    OrbHost::instance()->setProductValue("CANPortName", m_folder.filePath(car));
    m_plugin = new CanBusPlugin;
    m_adapter = CanBusAdapter::getAdapterInstance(static_cast<CanBusType>(type));
    QVERIFY(m_adapter);

    Footprint most[2] = {};
    for (int i = 0; i < Stretches; ++i) {
        drive(box.get(), &player, stretch);
        QTRY_VERIFY_WITH_TIMEOUT(judge.isQuiet(), Quiet);
        const Footprint now = footprint();
        Footprint &half = most[i / (Stretches / 2)];
        half = {qMax(half.heap, now.heap), qMax(half.timers, now.timers), qMax(half.windows, now.windows),
                qMax(half.files, now.files)};
    }
    std::printf("%s: %lld good, %lld spoilt, %lld lost, %lld foreign; heap %lld, %lld bytes\n",
                qPrintable(car), judge.good, judge.spoilt, judge.lost, judge.foreign, most[0].heap,
                most[1].heap);
    QVERIFY(judge.good > 2000 && judge.spoilt > judge.good / 50);
    // What an 8-bit sum lets through: one of 256 spoilt ones at the most, and now and then the good one behind it.
    QVERIFY(judge.foreign <= 1 + judge.spoilt / 256);
    QVERIFY(judge.lost <= 2 + judge.spoilt / 2000);
    QVERIFY(most[1].heap <= most[0].heap + FreeLists);
    QVERIFY(most[1].timers <= most[0].timers);
    QVERIFY(most[1].windows <= most[0].windows);
    QVERIFY(most[1].files <= most[0].files);

    delete m_plugin;
    delete m_adapter;
    for (QWidget *const window : OrbHost::instance()->windows()) {
        delete window;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

CANBUS_TEST_MAIN(TestLongDrive)
#include "tst_longdrive.moc"
