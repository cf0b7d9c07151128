#include "apppage.h"
#include "apptile.h"
#include "climatewatch.h"
#include "desklooks.h"
#include "deskwindow.h"
#include "headunit.h"
#include "homepage.h"
#include "keystrip.h"
#include "sidepanel.h"
#include "unitkeys.h"
#include "unitpage.h"
#include "unitshell.h"

#include "airconditiondlg.h"
#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"
#include "orbhost.h"
#include "orbkeyfilter.h"
#include "orbmainwindow.h"

#include <QSignalSpy>
#include <QTest>
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
    void registeredApplicationsGetTiles();
    void applicationWithoutWindowGetsAPage();
    void pluginOpensAndLeavesAnApplication();
    void windowsWithoutApplicationGetTiles();
    void backAndHomeLeaveWindows();
    void keysOfTheStripPassTheFilters();
    void callIsToldToThePlugin();
    void modesGoBothWays();
    void diskReachesTheFileService();
    void climateGoesAwayWhenNothingChanges();
    void speaksEachLanguage();
    void fitsALaptop();

private:
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

void dispatch(uint what, uint value)
{
    OrbEvent event(400, 12, OrbEvent::NotifyType);
    event.setParams(what, value);
    OrbApplication::instance()->dispatchOrbEvent(&event);
}

void send(int type, uint param, uint param2)
{
    OrbEvent event(401, 25, type);
    event.setParams(param, param2);
    QCoreApplication::sendEvent(OrbApplication::instance(), &event);
}

} // namespace

void TestUnitShell::init()
{
    OrbHost::instance()->setTag(0x10001, QVariant());
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
    const QVector<Launcher::Entry> entries = m_desk->shell()->homePage()->launcher()->entries();
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).title == title) {
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
    dispatch(0x501B, CarState::RearLeft);
    QVERIFY(m_desk->shell()->carState().isDoorOpen(CarState::RearLeft));
    send(OrbEvent::NotifyType, 0x5004, 8); // illumination is sent to the application, not dispatched
    QVERIFY(m_desk->shell()->carState().areLightsOn);
}

void TestUnitShell::registeredApplicationsGetTiles()
{
    AppendAppTitle(601, "First title");
    QVERIFY(tileOf("First title") >= 0);
    OrbEvent icons(400, 10, OrbEvent::AppIconType);
    icons.setParams(601, 0);
    icons.setStringParam(":/desk/launcher/radio.png,:/desk/launcher/music.png");
    OrbApplication::instance()->dispatchOrbEvent(&icons);
    const Launcher::Entry entry =
        m_desk->shell()->homePage()->launcher()->entries().at(tileOf("First title"));
    QCOMPARE(entry.normalIcon, QString(":/desk/launcher/radio.png"));
    QCOMPARE(entry.highlightedIcon, QString(":/desk/launcher/music.png"));
    TranslateAppTitle(601, "Anderer Titel");
    QVERIFY(tileOf("First title") < 0 && tileOf("Anderer Titel") >= 0);
}

void TestUnitShell::applicationWithoutWindowGetsAPage()
{
    AppendAppTitle(602, "Camera");
    m_desk->shell()->homePage()->launcher()->tile(tileOf("Camera"))->click();
    QTRY_VERIFY(isPageShown());
    tap(Qt::Key_Back);
    QVERIFY(!isPageShown());
}

void TestUnitShell::pluginOpensAndLeavesAnApplication()
{
    send(OrbEvent::ShowAppType, 0, 513);
    QVERIFY(isPageShown());
    takeScreenshot(m_desk.get(), "desk-window-360");
    send(OrbEvent::ReturnType, 0, 0);
    QVERIFY(!isPageShown());
    send(OrbEvent::ReturnType, 0, 0); // nothing left to leave
    QVERIFY(!isPageShown());
}

void TestUnitShell::windowsWithoutApplicationGetTiles()
{
    std::unique_ptr<OrbMainWindow> list(new OrbMainWindow);
    list->setWindowTitle("Settings list");
    QTRY_VERIFY(tileOf("Settings list") >= 0);
    m_desk->shell()->homePage()->launcher()->tile(tileOf("Settings list"))->click();
    QVERIFY(list->isVisible());
    QTRY_VERIFY(OrbHost::instance()->frontWindow() == list.get());
    list.reset();
    QTRY_VERIFY(tileOf("Settings list") < 0);
}

void TestUnitShell::backAndHomeLeaveWindows()
{
    for (const int key : {Qt::Key_Back, Qt::Key_Home}) {
        OrbMainWindow lower;
        OrbMainWindow upper;
        lower.show();
        upper.show();
        // As from a wheel key of the car: the simulated key is the unit's own.
        OrbApplication::simulateKey(key, true, false, 0);
        OrbApplication::simulateKey(key, false, false, 0);
        QTRY_VERIFY(!upper.isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(lower.isVisible(), key == Qt::Key_Back);
        lower.hide();
    }
}

void TestUnitShell::keysOfTheStripPassTheFilters()
{
    UnitControls *controls = m_desk->shell()->controls();
    const int before = controls->volume();
    tap(Qt::Key_VolumeUp);
    QCOMPARE(controls->volume(), before + 1);
    Filter filter;
    OrbApplication::instance()->addKeyFilter(&filter);
    tap(Qt::Key_VolumeUp);
    QCOMPARE(controls->volume(), before + 1);
    tap(Qt::Key_VolumeDown);
    QCOMPARE(controls->volume(), before);
    OrbApplication::simulateKey(Qt::Key_VolumeUp, true, false,
                                0); // what a plug-in injects is not filtered again
    QCOMPARE(controls->volume(), before + 1);
    OrbApplication::instance()->removeKeyFilter(&filter);
}

void TestUnitShell::callIsToldToThePlugin()
{
    const auto statusWord = [] {
        return OrbApplication::instance()->getTag(0x10001, QVariant(0)).toULongLong();
    };
    OrbHost::instance()->setTag(0x10001, 4);
    tap(Qt::Key_Call);
    QCOMPARE(statusWord(), 0x1000004ull);
    tap(Qt::Key_Hangup);
    QCOMPARE(statusWord(), 4ull);
}

void TestUnitShell::modesGoBothWays()
{
    QSignalSpy spy(OrbApplication::instance(), &OrbApplication::modeAppChanged);
    UnitControls *controls = m_desk->shell()->controls();
    const uint first = controls->mode();
    tap(UnitKeys::ModeSwitch);
    const uint second = controls->mode();
    QCOMPARE(spy.takeFirst(), (QVariantList{second, first}));
    m_unit->setMode(first);
    QCOMPARE(controls->mode(), first);
    QCOMPARE(spy.count(), 1);
}

void TestUnitShell::diskReachesTheFileService()
{
    QSignalSpy spy(OrbApplication::instance(), &OrbApplication::diskDeviceStatusChange);
    UnitPage *page = m_desk->sidePanel()->unitPage();
    Q_EMIT page->diskChanged(true, "/somewhere");
    QCOMPARE(spy.takeFirst(), (QVariantList{0, 1}));
    Q_EMIT page->diskChanged(false, "/somewhere");
    QCOMPARE(spy.takeFirst(), (QVariantList{0, 0}));
}

void TestUnitShell::climateGoesAwayWhenNothingChanges()
{
    ClimateWatch watch(200);
    AirConditionDlg climate;
    climate.setVisible(true);
    for (int fan = 1; fan <= 4; ++fan) { // each change starts the wait again
        QTest::qWait(100);
        climate.setAirVolume(fan);
    }
    QVERIFY(climate.isVisible());
    QElapsedTimer since;
    since.start();
    while (climate.isVisible() && since.elapsed() < 2000) { // the same again is no change
        climate.setAirVolume(4);
        QTest::qWait(20);
    }
    QVERIFY(since.elapsed() >= 150 && since.elapsed() < 1500);
    climate.setVisible(true);
    QTRY_VERIFY(!climate.isVisible());
}

void TestUnitShell::speaksEachLanguage()
{
    const QStringList languages = UnitPage::languages() << "en"; // back to what the other tests expect
    for (const QString &language : languages) {
        Q_EMIT m_desk->sidePanel()->unitPage()->languageChosen(language);
        QCOMPARE(OrbHost::instance()->language(), language);
        QCoreApplication::processEvents();
        QCOMPARE(tileOf("Radio") >= 0, language != "zh_CN");
        for (const QToolButton *key : m_desk->keyStrip()->findChildren<QToolButton *>()) {
            QVERIFY2(key->fontMetrics().horizontalAdvance(key->text()) <= key->width() - 4,
                     qPrintable(key->text()));
        }
        QCOMPARE(buttonOf<QToolButton>(m_desk->keyStrip(), "Hang up") != nullptr, language == "en");
        takeScreenshot(m_desk.get(), "desk-window-" + language);
    }
}

void TestUnitShell::fitsALaptop()
{
    QVERIFY(m_desk->minimumSizeHint().width() <= 1440);
    QVERIFY(m_desk->minimumSizeHint().height() <= 860);
    takeScreenshot(m_desk.get(), "desk-window");
}

int main(int argc, char *argv[])
{
    OrbApplication application(argc, argv);
    TestUnitShell test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_unitshell.moc"
