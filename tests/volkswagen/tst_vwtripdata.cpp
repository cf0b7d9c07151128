#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"

#include "volkswagen/carpicture.h"
#include "volkswagen/volkswagenwindow.h"

#include "orbhost.h"

#include <QFrame>
#include <QLabel>
#include <QPixmap>

#include <memory>

/// Driving data and tyres: what the box's packages put on the screen, and what the screen asks the box for.
class TestVwTripData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void figures_data();
    void figures();
    void figuresOfOtherPagesStayAway();
    void pagesGoRound_data();
    void pagesGoRound();
    void asksWhenShown();
    void tyreStates_data();
    void tyreStates();
    void tyreWarning_data();
    void tyreWarning();
    void warningReplacesTheStates();
    void marksLieOnTheTyres();
    void shortPackagesChangeNothing();
    void laterWindowKnowsTheTyres();
    void buttonsTurnTheScreen();
    void retranslatesWhileOpen();
};

namespace {

/// Window, adapter and screen of one test.
struct Bench
{
    Bench() : window(&adapter) { window.show(); }

    QString text(const char *label) const { return window.findChild<QLabel *>(label)->text(); }
    QWidget *widget(const char *name) const { return window.findChild<QWidget *>(name); }

    QStringList sent() { return VwBench::sent(trace); }

    TestScreen screen;
    TraceRecorder trace;
    CanBus_Raise_Volkswagen adapter;
    VolkswagenWindow window;
};

const char *const TyreLabels[] = {"labelTyreLeftFront", "labelTyreRightFront", "labelTyreLeftRear",
                                  "labelTyreRightRear"};
const char *const TyreFrames[] = {"frameTyreLeftFront", "frameTyreRightFront", "frameTyreLeftRear",
                                  "frameTyreRightRear"};
const char *const Figures[] = {"labelRange",    "labelConsumption",  "labelAverageConsumption",
                               "labelDistance", "labelAverageSpeed", "labelDrivingTime"};

} // namespace

void TestVwTripData::initTestCase()
{
    TestSupport::watchConnects();
}

void TestVwTripData::figures_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, int page, const char *package, const char *label,
                        const char *text) {
        QTest::newRow(name) << page << QByteArray(package) << QByteArray(label) << QString(text);
    };
    row("range in km", 0, "50 10 01 08 02 00 00", "labelRange", "520 km");
    row("range in miles, on every page", 2, "50 10 fe ff ff 00 00", "labelRange", "65535 mi");
    row("distance in km", 0, "50 20 01 ff ff 00 00", "labelDistance", "6553 km");
    row("distance in miles", 1, "50 21 00 09 00 00 00", "labelDistance", "0 mi");
    row("distance of 32 bits", 2, "50 22 03 ff ff ff ff", "labelDistance", "429496729 km");
    row("distance without its highest byte", 0, "50 20 01 0a 00 00", "labelDistance", "--");
    row("average consumption below 1", 0, "50 30 00 07 00 00 00", "labelAverageConsumption", "0.7 L/100km");
    row("average consumption of nothing", 0, "50 30 00 00 00 00 00", "labelAverageConsumption",
        "0.0 L/100km");
    row("average consumption", 1, "50 31 01 4b 00 00 00", "labelAverageConsumption", "7.5 km/L");
    row("average consumption, UK", 2, "50 32 02 ff ff 00 00", "labelAverageConsumption", "6553.5 mph(UK)");
    row("average consumption, US", 0, "50 30 ff 0a 00 00 00", "labelAverageConsumption", "1.0 mph(US)");
    row("average speed in km/h", 0, "50 40 fe a4 01 00 00", "labelAverageSpeed", "42 km/h");
    row("average speed in mph", 1, "50 41 01 ff ff 00 00", "labelAverageSpeed", "6553 mph");
    row("driving time", 0, "50 50 5f 00 ff ff ff", "labelDrivingTime", "1:35");
    row("driving time is not padded", 1, "50 51 3d 00 00 00 00", "labelDrivingTime", "1:1");
    row("longest driving time", 2, "50 52 ff ff 00 00 00", "labelDrivingTime", "1092:15");
    row("consumption now", 0, "50 61 00 3e 00 00 00", "labelConsumption", "6 L/100km");
    row("consumption now, on every page", 2, "50 61 03 ff ff 00 00", "labelConsumption", "6553 mph(US)");
    row("unknown sub-type", 0, "50 60 00 3e 00 00 00", "labelConsumption", "--");
    row("unknown page", 0, "50 23 01 ff ff 00 00", "labelDistance", "--");
}

void TestVwTripData::figures()
{
    QFETCH(int, page);
    QFETCH(QByteArray, package);
    QFETCH(QByteArray, label);
    QFETCH(QString, text);
    Bench bench;
    bench.window.changeRangeIndex(page);
    VwBench::feed(bench.adapter, package);
    for (const char *figure : Figures)
        QCOMPARE(bench.text(figure), figure == label ? text : QString("--"));
}

void TestVwTripData::figuresOfOtherPagesStayAway()
{
    Bench bench;
    VwBench::feed(bench.adapter, "50 21 01 0a 00 00 00 | 50 22 01 0a 00 00 00 | 50 10 01 05 00 00 00");
    QCOMPARE(bench.text("labelDistance"), QString("--"));
    VwBench::feed(bench.adapter, "50 20 01 64 00 00 00");
    QCOMPARE(bench.text("labelDistance"), QString("10 km"));
    // What belonged to the page before goes; what holds for all of them stays.
    bench.window.changeRangeIndex(1);
    QCOMPARE(bench.text("labelDistance"), QString("--"));
    QCOMPARE(bench.text("labelRange"), QString("5 km"));
}

void TestVwTripData::pagesGoRound_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("title");
    QTest::newRow("first") << 0 << 0 << "Since start";
    QTest::newRow("second") << 1 << 1 << "Since refueling";
    QTest::newRow("last") << 2 << 2 << "Long-term";
    QTest::newRow("before the first") << -1 << 2 << "Long-term";
    QTest::newRow("far before the first") << -100 << 2 << "Long-term";
    QTest::newRow("behind the last") << 3 << 0 << "Since start";
    QTest::newRow("far behind the last") << 1000 << 0 << "Since start";
}

void TestVwTripData::pagesGoRound()
{
    QFETCH(int, index);
    QFETCH(int, page);
    QFETCH(QString, title);
    Bench bench;
    bench.sent();
    bench.window.changeRangeIndex(index);
    QStringList requests;
    for (const int base : {0x20, 0x30, 0x40, 0x50})
        requests << "90 50 " + QString::number(base + page, 16);
    QCOMPARE(bench.sent(), requests);
    QCOMPARE(bench.text("labelPageTitle"), title);
    bench.window.syncDrivingData(3);
    bench.window.syncDrivingData(-1);
    QCOMPARE(bench.sent(), QStringList());
}

void TestVwTripData::asksWhenShown()
{
    Bench bench;
    QCOMPARE(bench.sent(), QStringList() << "90 50 20"
                                         << "90 50 30"
                                         << "90 50 40"
                                         << "90 50 50"
                                         << "90 50 10");
    bench.window.hide();
    QCOMPARE(bench.sent(), QStringList());
    bench.window.show();
    QCOMPARE(bench.sent(), QStringList() << "90 50 10");
}

void TestVwTripData::tyreStates_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("style");
    const QString faulty = "border-color:#f00;color:#f00;";
    QTest::newRow("normal") << 0 << "Normal pressure"
                            << "border-color:#fff;";
    QTest::newRow("low") << 1 << "Low pressure" << faulty;
    QTest::newRow("high") << 2 << "Hight pressure" << faulty;
    QTest::newRow("unknown counts as high") << 5 << "Hight pressure" << faulty;
    QTest::newRow("largest") << 255 << "Hight pressure" << faulty;
}

void TestVwTripData::tyreStates()
{
    QFETCH(int, state);
    QFETCH(QString, text);
    QFETCH(QString, style);
    for (int tyre = 0; tyre < 4; ++tyre) {
        Bench bench;
        VwBench::click(bench.window, "btnTPMS");
        QByteArray states(4, 0);
        states[tyre] = char(state);
        bench.adapter.onRecvMcuProtocol(RaiseWire::frame(0x65, states));
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(bench.text(TyreLabels[i]), i == tyre ? text : QString("Normal pressure"));
            QCOMPARE(bench.widget(TyreLabels[i])->styleSheet(),
                     i == tyre ? style : QString("border-color:#fff;"));
            QCOMPARE(bench.widget(TyreLabels[i])->width(), 220);
            QVERIFY(bench.widget(TyreLabels[i])->isVisible());
        }
    }
}

void TestVwTripData::tyreWarning_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<QString>("text");
    QTest::newRow("normal") << 0 << "Tire pressure is normal";
    QTest::newRow("not used") << 1 << "";
    QTest::newRow("check") << 2 << "Please check the tire pressure";
    QTest::newRow("low") << 3 << "Tire pressure is too low";
    QTest::newRow("loss") << 4 << "Tire pressure loss";
    QTest::newRow("past the list") << 5 << "";
    QTest::newRow("largest") << 255 << "";
}

void TestVwTripData::tyreWarning()
{
    QFETCH(int, message);
    QFETCH(QString, text);
    for (int marks = 0; marks < 16; ++marks) {
        Bench bench;
        VwBench::click(bench.window, "btnTPMS");
        const char data[] = {char(marks | 0xF0), char(message)};
        bench.adapter.onRecvMcuProtocol(RaiseWire::frame(0x68, QByteArray(data, 2)));
        QCOMPARE(bench.text("labelTpmsState"), text);
        for (int i = 0; i < 4; ++i) {
            const bool marked = marks & 1 << i;
            QCOMPARE(bench.widget(TyreFrames[i])->styleSheet(),
                     QString(marked ? "border:2px solid #ff0;background-color:#ff0;border-radius:10px;"
                                    : "border-color:transparent;"));
            QVERIFY(bench.widget(TyreFrames[i])->isVisible());
        }
    }
}

void TestVwTripData::warningReplacesTheStates()
{
    Bench bench;
    VwBench::click(bench.window, "btnTPMS");
    VwBench::feed(bench.adapter, "65 00 01 00 00");
    QVERIFY(bench.widget(TyreLabels[1])->isVisible());
    VwBench::feed(bench.adapter, "68 02 03");
    for (const char *label : TyreLabels)
        QVERIFY(!bench.widget(label)->isVisible());
    VwBench::feed(bench.adapter, "65 00 01 00 00");
    QVERIFY(bench.widget(TyreLabels[1])->isVisible());
}

void TestVwTripData::marksLieOnTheTyres()
{
    Bench bench;
    VwBench::click(bench.window, "btnTPMS");
    VwBench::feed(bench.adapter, "68 0f 03");
    const CarPicture *car = bench.window.findChild<CarPicture *>();
    for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
        bench.screen.resize(size);
        QCoreApplication::processEvents();
        const QRect picture = car->pictureRect();
        QVERIFY(picture.height() > 200 && car->rect().contains(picture));
        for (int i = 0; i < 4; ++i) {
            const QRect frame = bench.widget(TyreFrames[i])->geometry();
            QCOMPARE(frame.size(), QSize(qRound(picture.width() * 0.15), qRound(picture.height() * 0.23)));
            QVERIFY(picture.contains(frame));
            QCOMPARE(frame.center().x() > picture.center().x(), i % 2 == 1);
            QCOMPARE(frame.center().y() > picture.center().y(), i >= 2);
        }
    }
}

void TestVwTripData::shortPackagesChangeNothing()
{
    Bench bench;
    VwBench::feed(bench.adapter,
                  "50 | 50 10 | 50 10 01 08 02 00 | 50 61 00 3e 00 | 65 01 01 01 | 65 | 68 0f | 68");
    for (const char *figure : Figures)
        QCOMPARE(bench.text(figure), QString("--"));
    for (int i = 0; i < 4; ++i) {
        QVERIFY(bench.widget(TyreLabels[i])->isHidden());
        QVERIFY(bench.widget(TyreFrames[i])->isHidden());
    }
}

void TestVwTripData::laterWindowKnowsTheTyres()
{
    CanBus_Raise_Volkswagen adapter;
    VwBench::feed(adapter, "65 00 00 01 00 | 68 04 03");
    VolkswagenWindow window(&adapter);
    QCOMPARE(window.findChild<QLabel *>("labelTpmsState")->text(), QString("Tire pressure is too low"));
    QVERIFY(window.findChild<QWidget *>("frameTyreLeftRear")->styleSheet().contains("#ff0"));
    QVERIFY(window.findChild<QWidget *>("labelTyreLeftRear")->isHidden());
}

void TestVwTripData::buttonsTurnTheScreen()
{
    Bench bench;
    QVERIFY(bench.widget("tabRange")->isVisible());
    VwBench::click(bench.window, "btnTPMS");
    QVERIFY(bench.widget("tabTPMS")->isVisible() && !bench.widget("tabRange")->isVisible());
    VwBench::click(bench.window, "btnRange");
    QVERIFY(bench.widget("tabRange")->isVisible());
    VwBench::click(bench.window, "btnLeft");
    QCOMPARE(bench.window.rangeIndex(), 2);
    VwBench::click(bench.window, "btnRight");
    VwBench::click(bench.window, "btnRight");
    QCOMPARE(bench.window.rangeIndex(), 1);
    bench.sent();
    VwBench::click(bench.window, "btnCarStatus");
    QCOMPARE(bench.sent(), QStringList());
    VwBench::click(bench.window, "btnSetting");
    VWFunctionSetting *settings = qobject_cast<VWFunctionSetting *>(OrbHost::instance()->frontWindow());
    QVERIFY(settings);
    QCOMPARE(settings->appId(), 782u);
    QCOMPARE(bench.sent(), QStringList() << "90 40 10");
    // Home leaves the main window alone and takes the page away.
    settings->home();
    bench.window.home();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!OrbHost::instance()->windows().contains(settings));
    bench.window.show();
    QCOMPARE(bench.window.rangeIndex(), 1);
}

void TestVwTripData::retranslatesWhileOpen()
{
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    Bench bench;
    VwBench::feed(bench.adapter, "50 20 01 64 00 00 00 | 65 00 01 02 00 | 68 01 04 | 65 00 01 02 00");
    QVERIFY(OrbHost::instance()->setLanguage("de"));
    QCoreApplication::sendPostedEvents();
    const QString title = bench.text("labelPageTitle");
    const QString message = bench.text("labelTpmsState");
    const QString low = bench.text(TyreLabels[1]);
    OrbHost::instance()->setLanguage("en");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(title, QString("Seit Start"));
    QCOMPARE(message, QString("Reifendruckverlust"));
    QCOMPARE(low, QString("Druck zu niedrig"));
    QCOMPARE(bench.text("labelPageTitle"), QString("Since start"));
    QCOMPARE(bench.text("labelDistance"), QString("10 km"));
}

CANBUS_TEST_MAIN(TestVwTripData)
#include "tst_vwtripdata.moc"
