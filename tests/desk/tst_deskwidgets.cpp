#include "apptile.h"
#include "carview.h"
#include "desklooks.h"
#include "homepage.h"
#include "keystrip.h"
#include "launcher.h"
#include "mediacard.h"
#include "statusbar.h"
#include "steeringwheel.h"

#include <QMap>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using Phases = QList<int>;

/// The desk's own widgets under a finger.
class TestDeskWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void heldKeyRepeats();
    void keySetsAddTheirRawKeys();
    void titlesFitTheirTile();
    void launcherOpensByFingerAndByKeys();
    void sourceTileIsLitByTheModeOnly();
    void clockFollowsTheFormat();
    void wheelTurnsUnderTheMouse();
    void homePage();

private:
    static QVector<Launcher::Entry> entries(int applications);
};

void TestDeskWidgets::initTestCase()
{
    QVERIFY(wearDeskStyle());
}

QVector<Launcher::Entry> TestDeskWidgets::entries(int applications)
{
    QVector<Launcher::Entry> result = {
        {Launcher::Entry::Source, 6, "Radio", ":/desk/launcher/radio.png", QString()},
        {Launcher::Entry::Source, 9, "USB music", ":/desk/launcher/music.png", QString()}};
    for (int i = 0; i < applications; ++i) {
        result << Launcher::Entry{Launcher::Entry::Application, uint(513 + i), QString("App %1").arg(i),
                                  QString(), QString()};
    }
    return result;
}

void TestDeskWidgets::heldKeyRepeats()
{
    KeyStrip strip(0);
    strip.resize(1024, strip.sizeHint().height());
    strip.show();
    Phases phases;
    connect(&strip, &KeyStrip::keyUsed, this, [&phases](int code, int phase) {
        QCOMPARE(code, int(Qt::Key_VolumeUp));
        phases << phase;
    });
    QToolButton *key = buttonOf<QToolButton>(&strip, "Vol +");
    QVERIFY(key);
    QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(phases, (Phases{KeyStrip::Press, KeyStrip::Release}));
    phases.clear();
    QTest::mousePress(key, Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(phases, (Phases{KeyStrip::Press, KeyStrip::Repeat, KeyStrip::Repeat}), 2000);
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(phases.last(), int(KeyStrip::Release));
    const int count = phases.size();
    QTest::qWait(KeyStrip::RepeatInterval * 3 / 2);
    QCOMPARE(phases.size(), count);
    // A key that is left behind is released.
    QTest::mousePress(key, Qt::LeftButton);
    strip.hide();
    QCOMPARE(phases.mid(count), (Phases{KeyStrip::Press, KeyStrip::Release}));
}

void TestDeskWidgets::keySetsAddTheirRawKeys()
{
    const QList<QList<int>> sets{
        {},
        {0x2000061, 0x2F00005, 0x2F00010, 0x2000013, 0x2000015},
        {0x2F00001, 0x2000002, 0x2F00003, 0x2F00004, 0x2F00005, 0x2F00006, 0x2F00007},
        {}}; // there is no fourth one
    for (int keySet = 0; keySet < sets.size(); ++keySet) {
        KeyStrip strip(keySet);
        strip.show();
        QList<int> sent;
        connect(&strip, &KeyStrip::keyUsed, this, [&sent](int code, int phase) {
            if (phase == KeyStrip::Press) {
                sent << code;
            }
        });
        const QList<QToolButton *> buttons = strip.findChildren<QToolButton *>();
        for (QToolButton *button : buttons.mid(KeyStrip::standardKeys().size())) {
            QVERIFY(button->height() >= 60);
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(sent, sets.at(keySet));
    }
}

void TestDeskWidgets::titlesFitTheirTile()
{
    const QMap<QString, int> linesOf{{"", 0},
                                     {"360", 1},
                                     {"Car settings list", 2},
                                     {"Fahrzeugeinstellungen der Zentralverriegelung hinten", 2},
                                     {QString::fromUtf8("车辆信息"), 1}};
    QFont font;
    font.setPixelSize(18);
    for (auto title = linesOf.cbegin(); title != linesOf.cend(); ++title) {
        const AppTile tile(title.key(), QString(), QString());
        const QStringList lines = tile.titleLines();
        QCOMPARE(int(lines.size()), title.value());
        for (const QString &line : lines) {
            QVERIFY2(QFontMetrics(font).horizontalAdvance(line) <= tile.width(), qPrintable(line));
        }
    }
}

void TestDeskWidgets::launcherOpensByFingerAndByKeys()
{
    Launcher launcher;
    launcher.resize(560, 376);
    launcher.setEntries(entries(3));
    launcher.show();
    QVector<uint> opened;
    connect(&launcher, &Launcher::chosen, this,
            [&opened](const Launcher::Entry &entry) { opened << entry.id; });
    QTest::mouseClick(launcher.tile(2), Qt::LeftButton);
    QCOMPARE(opened, QVector<uint>{513});

    QVERIFY(QTest::qWaitForWindowActive(&launcher));
    launcher.tile(0)->setFocus();
    launcher.navigate(Qt::Key_Left); // nothing to the left of the first one
    launcher.navigate(Qt::Key_Right);
    launcher.navigate(Qt::Key_Enter);
    QCOMPARE(opened.last(), 9u);
    launcher.navigate(Qt::Key_Down);
    launcher.navigate(Qt::Key_Enter);
    QCOMPARE(opened.last(), 9u); // the row below has no tile there
    launcher.navigate(Qt::Key_Left);
    launcher.navigate(Qt::Key_Down);
    launcher.navigate(Qt::Key_Enter);
    QCOMPARE(opened.last(), 515u);
}

void TestDeskWidgets::sourceTileIsLitByTheModeOnly()
{
    Launcher launcher;
    launcher.setEntries(entries(1));
    launcher.setMode(6);
    launcher.tile(1)->click();
    QVERIFY2(launcher.tile(0)->isChecked() && !launcher.tile(1)->isChecked(), "a tap asks; the mode answers");
    launcher.setMode(9);
    QVERIFY(!launcher.tile(0)->isChecked() && launcher.tile(1)->isChecked());
}

void TestDeskWidgets::clockFollowsTheFormat()
{
    StatusBar bar;
    bar.holdClock(QTime(0, 5));
    QCOMPARE(bar.clockText(), QString("00:05"));
    bar.setTwelveHourClock(true);
    QCOMPARE(bar.clockText(), QString("12:05 AM"));
}

void TestDeskWidgets::wheelTurnsUnderTheMouse()
{
    SteeringWheel wheel(540, 10);
    wheel.resize(200, wheel.height());
    wheel.show();
    QSignalSpy spy(&wheel, &SteeringWheel::turned);
    const QPoint centre(100, 88);
    const QPoint places[] = {QPoint(0, -60), QPoint(42, -42), QPoint(60, 0), QPoint(42, 42), QPoint(0, 60)};
    QTest::mousePress(&wheel, Qt::LeftButton, Qt::NoModifier, centre + places[0]);
    for (const QPoint &place : places) {
        const QPointF at = centre + place;
        QMouseEvent move(QEvent::MouseMove, at, wheel.mapToGlobal(at.toPoint()), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&wheel, &move);
    }
    QTest::mouseRelease(&wheel, Qt::LeftButton, Qt::NoModifier, centre + places[4]);
    QCOMPARE(wheel.angle(), 180);
    QCOMPARE(spy.last().at(0).toInt(), 180);
    QTest::mouseDClick(&wheel, Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(wheel.angle(), 0);
    wheel.setAngle(-1000);
    QCOMPARE(wheel.angle(), -540);
}

void TestDeskWidgets::homePage()
{
    HomePage page;
    page.launcher()->setEntries(entries(7));
    page.launcher()->setMode(6);
    page.mediaCard()->setTrack("Radio", QPixmap(":/desk/launcher/radio.png"), "FM 88.4 MHz", "Harbour FM");
    CarState state;
    state.doors = CarState::FrontLeft | CarState::RearRight;
    state.front[0] = 2;
    state.rear[3] = 5;
    state.steering = 25;
    state.areLightsOn = true;
    page.carView()->setState(state);
    for (const QSize &size : {QSize(1024, 552), QSize(800, 432)}) {
        page.resize(size);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        for (QWidget *part :
             {static_cast<QWidget *>(page.launcher()), static_cast<QWidget *>(page.mediaCard()),
              static_cast<QWidget *>(page.carView())}) {
            QVERIFY(page.rect().contains(part->geometry()));
            QVERIFY(part->width() >= part->minimumSizeHint().width());
        }
        for (int i = 0; i < page.launcher()->entries().size(); ++i) {
            QTRY_VERIFY(page.launcher()->tile(i)->geometry().right() < page.launcher()->width());
        }
        takeScreenshot(&page, QString("desk-home-%1").arg(size.width()));
    }
    QCOMPARE(page.carView()->message(), QString("Doors open"));
    state.rear[1] = 1;
    page.carView()->setState(state);
    QCOMPARE(page.carView()->message(), QString("Stop"));
}

QTEST_MAIN(TestDeskWidgets)
#include "tst_deskwidgets.moc"
