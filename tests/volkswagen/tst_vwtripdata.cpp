#include "adapterfixture.h"
#include "unitscreen.h"
#include "vwbench.h"

#include "volkswagen/carpicture.h"
#include "volkswagen/volkswagenwindow.h"

#include "orbhost.h"

#include <QLabel>
#include <QMap>

/// Driving data and tyres: what the box's packages put on the screen, and what the screen asks the box for.
class TestVwTripData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void figures_data();
    void figures();
    void figuresOfOtherPagesStayAway();
    void pagesGoRound();
    void asksWhenShown();
    void tyreStates();
    void tyreWarning();
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
    for (const char *figure : Figures) {
        QCOMPARE(bench.text(figure), figure == label ? text : QString("--"));
    }
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

void TestVwTripData::pagesGoRound()
{
    const char *const titles[] = {"Since start", "Since refueling", "Long-term"};
    const struct
    {
        int index, page;
    } rows[] = {{0, 0}, {1, 1}, {2, 2}, {-1, 2}, {-100, 2}, {3, 0}};
    Bench bench;
    bench.sent();
    for (const auto &row : rows) {
        bench.window.changeRangeIndex(row.index);
        QStringList requests;
        for (const int base : {0x20, 0x30, 0x40, 0x50}) {
            requests << "90 50 " + QString::number(base + row.page, 16);
        }
        QCOMPARE(bench.sent(), requests);
        QCOMPARE(bench.text("labelPageTitle"), QString(titles[row.page]));
    }
    bench.window.syncDrivingData(3);
    bench.window.syncDrivingData(-1);
    QCOMPARE(bench.sent(), QStringList());
}

void TestVwTripData::asksWhenShown()
{
    Bench bench;
    QCOMPARE(bench.sent().join('|'), QString("90 50 20|90 50 30|90 50 40|90 50 50|90 50 10"));
    bench.window.hide();
    QCOMPARE(bench.sent(), QStringList());
    bench.window.show();
    QCOMPARE(bench.sent(), QStringList() << "90 50 10");
}

void TestVwTripData::tyreStates()
{
    const QString faulty = "border-color:#f00;color:#f00;";
    const struct
    {
        int state;
        QString text, style;
    } rows[] = {{0, "Normal pressure", "border-color:#fff;"},
                {1, "Low pressure", faulty},
                {2, "Hight pressure", faulty},
                {255, "Hight pressure", faulty}}; // an unknown state counts as high
    Bench bench;
    VwBench::click(bench.window, "btnTPMS");
    for (const auto &row : rows) {
        for (int tyre = 0; tyre < 4; ++tyre) {
            QByteArray states(4, 0);
            states[tyre] = char(row.state);
            bench.adapter.onRecvMcuProtocol(RaiseWire::frame(0x65, states));
            for (int i = 0; i < 4; ++i) {
                const QWidget *label = bench.widget(TyreLabels[i]);
                QCOMPARE(bench.text(TyreLabels[i]), i == tyre ? row.text : rows[0].text);
                QCOMPARE(label->styleSheet(), i == tyre ? row.style : rows[0].style);
                QVERIFY(label->isVisible() && label->width() == 220);
            }
        }
    }
}

void TestVwTripData::tyreWarning()
{
    const QMap<int, QString> texts{{0, "Tire pressure is normal"},
                                   {2, "Please check the tire pressure"},
                                   {3, "Tire pressure is too low"},
                                   {4, "Tire pressure loss"}};
    Bench bench;
    VwBench::click(bench.window, "btnTPMS");
    for (int message = 0; message <= 255; ++message) {
        const char data[] = {char(message), char(message)}; // the low half marks the tyres
        // The warning takes the place of the states, and these that of the warning.
        VwBench::feed(bench.adapter, "65 00 01 00 00");
        QVERIFY(bench.widget(TyreLabels[1])->isVisible());
        bench.adapter.onRecvMcuProtocol(RaiseWire::frame(0x68, QByteArray(data, 2)));
        QCOMPARE(bench.text("labelTpmsState"), texts.value(message));
        for (int i = 0; i < 4; ++i) {
            const bool marked = message & 1 << i;
            QCOMPARE(bench.widget(TyreFrames[i])->styleSheet(),
                     QString(marked ? "border:2px solid #ff0;background-color:#ff0;border-radius:10px;"
                                    : "border-color:transparent;"));
            QVERIFY(bench.widget(TyreFrames[i])->isVisible() && !bench.widget(TyreLabels[i])->isVisible());
        }
    }
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
    for (const char *figure : Figures) {
        QCOMPARE(bench.text(figure), QString("--"));
    }
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
