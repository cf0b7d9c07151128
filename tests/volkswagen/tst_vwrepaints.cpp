#include "repaints.h"
#include "vwbench.h"

#include "testmain.h"

#include "volkswagen/volkswagenwindow.h"

#include "carview.h"

/// What a package changes is what is painted again, and no more.
class TestVwRepaints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packages_data();
    void packages();
    void radar();
};

void TestVwRepaints::packages_data()
{
    QTest::addColumn<int>("screen"); // a settings page, or one of the two below
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QString>("widgets"); // nothing is painted when the package comes once more
    QTest::addColumn<int>("pixels");      // at most

    const int driving = 0;
    const int tyres = 1;
    const int one = 40000; // about the share of one value
    const QByteArray climate = "21 C0 43 08 08 00 00 00 00";
    QTest::newRow("range") << driving << QByteArray("50 10 01 08 02 00 00")
                           << QByteArray("50 10 01 09 02 00 00") << "labelRange" << one;
    QTest::newRow("distance") << driving << QByteArray("50 20 01 ff ff 00 00")
                              << QByteArray("50 20 01 ff fe 00 00") << "labelDistance" << one;
    QTest::newRow("tyre states") << tyres << QByteArray("65 00 01 00 02") << QByteArray("65 00 01 00 01")
                                 << "labelTyreRightRear" << one;
    QTest::newRow("tyre warning") << tyres << QByteArray("68 02 02") << QByteArray("68 0A 02")
                                  << "frameTyreRightRear" << one;
    QTest::newRow("a setting") << 771 << QByteArray("40 20 01 78 00") << QByteArray("40 20 00 78 00")
                               << "row 0" << 1024 * 80;
    QTest::newRow("start-stop") << 783 << QByteArray("60 80 00 00 00 00 00 00 00")
                                << QByteArray("60 80 00 00 00 00 00 00 00") << "" << 0;
    QTest::newRow("left temperature")
        << driving << climate << QByteArray("21 C0 43 09 08 00 00 00 00") << "airConditionDlg" << one;
    QTest::newRow("fan") << driving << climate << QByteArray("21 C0 44 08 08 00 00 00 00")
                         << "airConditionDlg" << one;
    QTest::newRow("compressor") << driving << climate << QByteArray("21 80 43 08 08 00 00 00 00")
                                << "airConditionDlg" << one / 4;
    QTest::newRow("climate off") << driving << climate << QByteArray("21 00 40 08 08 00 00 00 00")
                                 << "airConditionDlg" << 1024 * 190;
}

void TestVwRepaints::packages()
{
    QFETCH(int, screen);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, package);
    QFETCH(QString, widgets);
    QFETCH(int, pixels);
    VwBench::SettingsFolder settings;
    TestScreen unit;
    CanBus_Raise_Volkswagen adapter;
    std::unique_ptr<OrbMainWindow> window;
    if (screen > 1) {
        window.reset(new VWFunctionSetting(unsigned(screen), &adapter));
    } else {
        window.reset(new VolkswagenWindow(&adapter));
    }
    window->show();
    if (screen == 1) {
        VwBench::click(*window, "btnTPMS");
    }
    VwBench::feed(adapter, before);
    QTest::qWait(100);

    Repaints repaints(&unit);
    VwBench::feed(adapter, package);
    QCOMPARE(repaints.widgets().join(' '), widgets);
    QVERIFY2(repaints.pixels() <= pixels, qPrintable(QString::number(repaints.pixels())));
    repaints.settle();
    VwBench::feed(adapter, package);
    QCOMPARE(repaints.widgets().join(' '), QString());
}

// On the desk a radar's levels are painted at their end of the car.
void TestVwRepaints::radar()
{
    CarView view;
    view.resize(400, 600);
    view.show();
    CarState state;
    state.hasFront = true;
    state.hasRear = true;
    view.setState(state);
    QTest::qWait(100);
    Repaints repaints(&view);
    const int all = view.width() * view.height();
    for (quint8 *levels : {state.front, state.rear}) {
        levels[1] = 5;
        view.setState(state);
        QVERIFY(repaints.pixels() > 0);
        QVERIFY2(repaints.pixels() < all / 3, qPrintable(QString::number(repaints.pixels())));
        repaints.settle();
        view.setState(state);
        QCOMPARE(repaints.pixels(), 0);
    }
    state.doors = 1;
    view.setState(state);
    QCOMPARE(repaints.pixels(), all);
}

CANBUS_TEST_MAIN(TestVwRepaints)
#include "tst_vwrepaints.moc"
