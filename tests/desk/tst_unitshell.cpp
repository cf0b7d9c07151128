#include "apppage.h"
#include "apptile.h"
#include "climatewatch.h"
#include "deskwindow.h"
#include "headunit.h"
#include "homepage.h"
#include "keystrip.h"
#include "sidepanel.h"
#include "unitkey.h"
#include "unitpage.h"
#include "unitshell.h"

#include "airconditiondlg.h"
#include "orbapplication.h"
#include "orbcommons.h"
#include "orbdialog.h"
#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost.h"
#include "orbkeyfilter.h"
#include "orbmainwindow.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <memory>

/// The desk as one: what the framework is told shows on the unit, and what is done on the unit reaches the
/// framework.
class TestUnitShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void reportsShowOnTheCar();
    void tilesFollowTheFramework();
    void whatWasOpenedIsLeft();
    void backLeavesOneWindowAndHomeAll();
    void titleStaysUnderADialog();
    void keysPassTheFilters();
    void whatIsDoneIsToldToThePlugin();
    void climateGoesAwayWhenNothingChanges();

private:
    Launcher *launcher() const { return m_desk->shell()->homePage()->launcher(); }
    int tileOf(const QString &title) const;
    bool isPageShown() const { return m_desk->screen()->findChild<AppPage *>()->isVisible(); }
    void tap(int code);

    std::unique_ptr<HeadUnit> m_unit;
    std::unique_ptr<DeskWindow> m_desk;
};

namespace {

/// Takes one key.
class Filter : public OrbKeyFilter
{
public:
    bool filterKey(unsigned int key, bool, bool) override { return key == Qt::Key_VolumeUp; }
};

void send(int type, uint param, uint param2)
{
    OrbEvent event(401, 25, type);
    event.setParams(param, param2);
    QCoreApplication::sendEvent(OrbApplication::instance(), &event);
}

} // namespace

void TestUnitShell::init()
{
    m_unit.reset(new HeadUnit);
    m_desk.reset(new DeskWindow(m_unit.get(), nullptr));
    m_desk->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_desk.get()));
}

void TestUnitShell::cleanup()
{
    m_desk.reset();
    m_unit.reset();
}

int TestUnitShell::tileOf(const QString &title) const
{
    for (int i = 0; i < launcher()->entries().size(); ++i) {
        if (launcher()->entries().at(i).title == title) {
            return i;
        }
    }
    return -1;
}

void TestUnitShell::tap(int code)
{
    m_desk->shell()->useKey(code, KeyStrip::Press);
    m_desk->shell()->useKey(code, KeyStrip::Release);
}

void TestUnitShell::reportsShowOnTheCar()
{
    OrbEvent doors(400, 12, OrbEventType::Notify);
    doors.setParams(0x501B, CarState::RearLeft);
    OrbApplication::instance()->dispatchOrbEvent(&doors);
    send(OrbEventType::Notify, 0x5004, 8); // illumination is sent to the application, not dispatched
    const CarState &state = m_desk->shell()->carState();
    QVERIFY(state.isDoorOpen(CarState::RearLeft) && state.areLightsOn);
}

void TestUnitShell::tilesFollowTheFramework()
{
    AppendAppTitle(601, "First title");
    OrbEvent icons(400, 10, OrbEventType::AppIcon);
    icons.setParams(601, 0);
    icons.setStringParam(":/desk/launcher/radio.png,:/desk/launcher/music.png");
    OrbApplication::instance()->dispatchOrbEvent(&icons);
    QVERIFY(tileOf("First title") >= 0);
    const Launcher::Entry entry = launcher()->entries().at(tileOf("First title"));
    QCOMPARE(entry.normalIcon + "," + entry.highlightedIcon, icons.getStringParam());
    TranslateAppTitle(601, "Anderer Titel");
    QVERIFY(tileOf("First title") < 0 && tileOf("Anderer Titel") >= 0);

    std::unique_ptr<OrbMainWindow> list(new OrbMainWindow);
    list->setWindowTitle("List");
    QTRY_VERIFY(tileOf("List") >= 0);
    list.reset();
    QTRY_VERIFY(tileOf("List") < 0);
}

void TestUnitShell::whatWasOpenedIsLeft()
{
    AppendAppTitle(602, "Camera");
    OrbMainWindow list;
    list.setWindowTitle("Settings list");
    QTRY_VERIFY(tileOf("Settings list") >= 0);
    for (const QString &tile : QStringList{"Settings list", "Camera", "by the plug-in's wish"}) {
        for (const int key : {int(Qt::Key_Back), int(Qt::Key_Home), 0}) { // 0: the plug-in asks to return
            if (tileOf(tile) >= 0) {
                launcher()->tile(tileOf(tile))->click();
            } else {
                send(OrbEventType::ShowApp, 0, 513);
            }
            const bool isWindow = tile == list.windowTitle();
            QTRY_VERIFY2(list.isVisible() == isWindow && isPageShown() != isWindow, qPrintable(tile));
            for (int i = 0; i < 2; ++i) { // the second time there is nothing left to leave
                if (key == 0) {
                    send(OrbEventType::Return, 0, 0);
                } else { // as from a wheel key of the car: the simulated key is the unit's own
                    OrbApplication::simulateKey(key, true, false, 0);
                    OrbApplication::simulateKey(key, false, false, 0);
                }
                QTRY_VERIFY2(!list.isVisible() && !isPageShown(), qPrintable(tile));
            }
        }
    }
}

void TestUnitShell::backLeavesOneWindowAndHomeAll()
{
    for (const int key : {Qt::Key_Back, Qt::Key_Home}) {
        OrbMainWindow lower;
        OrbMainWindow upper;
        lower.show();
        upper.show();
        tap(key);
        QTRY_VERIFY(!upper.isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(lower.isVisible(), key == Qt::Key_Back);
    }
}

void TestUnitShell::titleStaysUnderADialog()
{
    // Without the clock, which may go on meanwhile.
    const auto title = [this] {
        QCoreApplication::processEvents();
        QWidget *const bar = m_desk->screen()->statusArea();
        return bar->grab(QRect(bar->width() / 10, 0, bar->width() / 2, bar->height())).toImage();
    };
    OrbMainWindow window;
    window.setWindowTitle("Car infos");
    const QImage home = title();
    window.show();
    const QImage inWindow = title();
    QVERIFY(inWindow != home);
    OrbDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QVERIFY(title() == inWindow);
    window.hide();
    QVERIFY(title() == home);
}

void TestUnitShell::keysPassTheFilters()
{
    Filter filter;
    const int before = m_desk->shell()->controls()->volume();
    OrbApplication::instance()->addKeyFilter(&filter);
    tap(Qt::Key_VolumeUp);
    tap(Qt::Key_VolumeDown);
    OrbApplication::instance()->removeKeyFilter(&filter);
    QCOMPARE(m_desk->shell()->controls()->volume(), before - 1);
}

void TestUnitShell::whatIsDoneIsToldToThePlugin()
{
    OrbApplication *application = OrbApplication::instance();
    OrbHost::instance()->setTag(0x10001, 4);
    tap(Qt::Key_Call);
    QCOMPARE(application->getTag(0x10001).toULongLong(), 0x1000004ull);
    tap(Qt::Key_Hangup);
    QCOMPARE(application->getTag(0x10001).toULongLong(), 4ull);

    QSignalSpy modes(application, &OrbApplication::modeAppChanged);
    const uint first = m_desk->shell()->controls()->mode();
    tap(UnitKey::ModeSwitch);
    QCOMPARE(modes, (QList<QVariantList>{{m_desk->shell()->controls()->mode(), first}}));
    m_unit->setMode(first);
    QCOMPARE(m_desk->shell()->controls()->mode(), first);
    QCOMPARE(modes.count(), 2);

    QSignalSpy disks(application, &OrbApplication::diskDeviceStatusChange);
    for (const bool isIn : {true, false}) {
        Q_EMIT m_desk->sidePanel()->unitPage()->diskChanged(isIn, "/somewhere");
    }
    QCOMPARE(disks, (QList<QVariantList>{{0, 1}, {0, 0}}));
}

void TestUnitShell::climateGoesAwayWhenNothingChanges()
{
    const int patience = 200;
    ClimateWatch watch(patience);
    AirConditionDlg climate;
    climate.setVisible(true);
    // Each change starts the wait again; the same again, which comes for ever, is no change. Timers fire in
    // the order in which they are due, so a slow machine changes nothing.
    int fan = 0;
    QElapsedTimer sinceChange;
    QTimer changes;
    connect(&changes, &QTimer::timeout, this, [&] {
        if (fan < 4) {
            ++fan;
            sinceChange.start();
        }
        climate.setAirVolume(fan);
    });
    changes.start(patience / 2);
    QTRY_VERIFY(!climate.isVisible());
    QCOMPARE(fan, 4);
    QVERIFY(sinceChange.elapsed() >= patience - patience / 20); // as exact as timers are
    climate.setVisible(true);
    QTRY_VERIFY2(!climate.isVisible(), "shown again, it goes again");
}

int main(int argc, char *argv[])
{
    OrbApplication application(argc, argv);
    TestUnitShell test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_unitshell.moc"
