#include "unitshell.h"

#include "apppage.h"
#include "carview.h"
#include "headunit.h"
#include "homepage.h"
#include "keynavigator.h"
#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "orbtrace.h"
#include "statusbar.h"
#include "unitscreen.h"

namespace {

const AppTagId StatusWordTag = 0x10001;
const AppTagId ClockFormatTag = 0x11009;
const uint CallState = 0x1000000;

// How long a plug-in may take to bring up a window of its own for an application that was opened.
const int WindowPatience = 150; // milliseconds

struct SourceIcon
{
    uint mode;
    const char *icon;
};

const SourceIcon SourceIcons[] = {{6, "radio"}, {9, "music"}, {3, "bluetooth"}, {4, "navigation"}};

// Applications without icons of their own for which the unit has a better one than the common one.
const SourceIcon AppIcons[] = {{513, "view360"}};

template <size_t Count>
QString launcherIcon(const SourceIcon (&icons)[Count], uint id)
{
    const char *name = "app";
    for (const SourceIcon &row : icons) {
        name = row.mode == id ? row.icon : name;
    }
    return QStringLiteral(":/desk/launcher/%1.png").arg(QLatin1String(name));
}

} // namespace

UnitShell::UnitShell(HeadUnit *unit, UnitScreen *screen, QObject *parent)
    : QObject(parent)
    , m_unit(unit)
    , m_screen(screen)
    , m_statusBar(new StatusBar(screen->statusArea()))
    , m_homePage(new HomePage(&m_controls, screen->windowArea()))
    , m_appPage(new AppPage(screen->windowArea()))
{
    m_statusBar->resize(screen->statusArea()->size());
    m_homePage->resize(screen->windowArea()->size());
    m_appPage->resize(screen->windowArea()->size());
    m_appPage->lower();
    m_homePage->lower();

    connectFramework();
    connect(&m_controls, &UnitControls::changed, this, &UnitShell::showControls);
    connect(&m_controls, &UnitControls::callChanged, this, &UnitShell::onCallChanged);
    connect(&m_controls, &UnitControls::navigation, this, &UnitShell::onNavigation);
    connect(&m_controls, &UnitControls::modeChanged, this, [this](uint mode, uint before) {
        if (m_unit->mode() != mode) { // else it is the unit that has changed it
            m_unit->setMode(mode, before);
        }
    });
    connect(m_unit, &HeadUnit::modeChanged, &m_controls, &UnitControls::setMode);
    connect(m_homePage->launcher(), &Launcher::chosen, this, &UnitShell::open);
    // The clock format and new windows announce themselves to nobody.
    connect(&m_secondTimer, &QTimer::timeout, this, &UnitShell::showControls);
    connect(&m_secondTimer, &QTimer::timeout, this, &UnitShell::showEntries);
    m_secondTimer.start(1000);
    retranslate();
}

void UnitShell::connectFramework()
{
    OrbApplication *application = OrbApplication::instance();
    connect(application, &OrbApplication::orbEventDispatched, this, &UnitShell::onEvent);
    connect(application, &OrbApplication::orbEventReceived, this, &UnitShell::onEvent);
    connect(application, &OrbApplication::keySimulated, &m_controls,
            [this](int key, bool press, bool autoRepeat, int) { m_controls.key(key, press, autoRepeat); });
    OrbHost *host = OrbHost::instance();
    connect(host, &OrbHost::appTitleChanged, this, &UnitShell::showEntries);
    connect(host, &OrbHost::appIconsChanged, this, &UnitShell::showEntries);
    // Windows that come or go may be half built or half gone while they say so.
    connect(host, &OrbHost::windowsChanged, this, &UnitShell::showEntries, Qt::QueuedConnection);
    connect(host, &OrbHost::windowsChanged, this, &UnitShell::showFront, Qt::QueuedConnection);
}

void UnitShell::useKey(int code, int phase)
{
    static const char *const phases[] = {"release", "press", "repeat"}; // as HeadUnit::KeyPhase
    if (OrbTrace::listener) {
        OrbTrace::listener->called("desk", "key", {code, phases[phase]});
    }
    if (!m_unit->key(uint(code), HeadUnit::KeyPhase(phase))) {
        m_controls.key(code, phase != HeadUnit::KeyReleased, phase == HeadUnit::KeyRepeated);
    }
}

void UnitShell::onEvent(const OrbEvent *event)
{
    if (m_carState.take(*event)) {
        showCarState();
    } else if (int(event->type()) == OrbEventType::ShowApp) {
        onShowApp(event->getParam2());
    } else if (int(event->type()) == OrbEventType::Return) {
        onReturn();
    }
}

/// The plug-in itself asks for the application, so it is not asked to show it once more.
void UnitShell::onShowApp(uint appId)
{
    showPage(appId);
}

void UnitShell::onReturn()
{
    if (m_appPage->isVisible()) {
        hidePage();
    } else {
        KeyNavigator::goBack();
    }
}

void UnitShell::onCallChanged(bool isInCall)
{
    const quint64 before = OrbApplication::instance()->getTag(StatusWordTag, QVariant(0)).toULongLong();
    const quint64 state = isInCall ? before | CallState : before & ~quint64(CallState);
    OrbHost::instance()->setTag(StatusWordTag, state);
    m_unit->changeState(uint(state), CallState);
}

void UnitShell::onNavigation(int key)
{
    QWidget *front = OrbHost::instance()->frontWindow();
    switch (key) {
    case Qt::Key_Home:
        hidePage();
        KeyNavigator::goHome();
        break;
    case Qt::Key_Back:
        if (!KeyNavigator::goBack()) {
            hidePage();
        }
        break;
    default:
        if (front) {
            KeyNavigator::send(front, key);
        } else if (!m_appPage->isVisible()) {
            m_homePage->launcher()->navigate(key);
        }
        break;
    }
}

void UnitShell::open(const Launcher::Entry &entry)
{
    switch (entry.kind) {
    case Launcher::Entry::Source:
        m_controls.setMode(entry.id);
        break;
    case Launcher::Entry::Window:
        openWindow(entry.title);
        break;
    case Launcher::Entry::Application:
        m_unit->showApp(entry.id);
        QTimer::singleShot(WindowPatience, this, [this, entry] {
            if (!OrbHost::instance()->frontWindow()) {
                showPage(entry.id);
            }
        });
        break;
    }
}

void UnitShell::openWindow(const QString &title)
{
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (qobject_cast<OrbMainWindow *>(window) && window->windowTitle() == title) {
            window->setVisible(true);
            return;
        }
    }
}

void UnitShell::showPage(uint appId)
{
    const Launcher::Entry entry = appEntry(appId);
    m_appPage->setApplication(appId, entry.title, QPixmap(entry.normalIcon));
    m_appPage->setCarState(m_carState);
    m_appPage->show();
    showFront();
}

void UnitShell::hidePage()
{
    m_appPage->hide();
    showFront();
}

void UnitShell::showCarState()
{
    m_homePage->carView()->setState(m_carState);
    m_appPage->setCarState(m_carState);
}

void UnitShell::setDoubt(const QString &doubt)
{
    m_homePage->carView()->setDoubt(doubt);
    m_appPage->setDoubt(doubt);
}

void UnitShell::showControls()
{
    m_statusBar->setTwelveHourClock(
        OrbApplication::instance()->getTag(ClockFormatTag, QVariant(0)).toUInt() == 1);
    m_statusBar->setVolume(m_controls.volume(), UnitControls::Loudest, m_controls.isMuted());
    m_statusBar->setMode(UnitControls::modeName(m_controls.mode()));
    m_statusBar->setCall(m_controls.callText(), m_controls.call() == UnitControls::InCall);
    m_homePage->launcher()->setMode(m_controls.mode());
}

void UnitShell::showFront()
{
    QWidget *front = OrbHost::instance()->frontMainWindow();
    if (front) {
        // A window translates its title after the desk does, or changes it while it is open.
        connect(front, &QWidget::windowTitleChanged, this, &UnitShell::showFront, Qt::UniqueConnection);
    }
    m_statusBar->setApplication(front                    ? front->windowTitle()
                                : m_appPage->isVisible() ? m_appPage->title()
                                                         : tr("Home"));
}

QVector<Launcher::Entry> UnitShell::sourceEntries() const
{
    QVector<Launcher::Entry> entries;
    for (const uint mode : UnitControls::modes()) {
        entries << Launcher::Entry{Launcher::Entry::Source, mode, UnitControls::modeName(mode),
                                   launcherIcon(SourceIcons, mode), QString()};
    }
    return entries;
}

Launcher::Entry UnitShell::appEntry(uint appId) const
{
    const QStringList icons = OrbHost::instance()->appIcons(appId);
    const QString title = AppTitleFromAppId(appId);
    return {Launcher::Entry::Application, appId, title.isEmpty() ? tr("Application %1").arg(appId) : title,
            icons.isEmpty() ? launcherIcon(AppIcons, appId) : icons.value(0), icons.value(1)};
}

void UnitShell::showEntries()
{
    QVector<Launcher::Entry> entries = sourceEntries();
    for (const uint appId : OrbHost::instance()->titledApps()) {
        entries << appEntry(appId);
    }
    for (const OrbMainWindow *window : HeadUnit::launcherWindows()) {
        entries << Launcher::Entry{Launcher::Entry::Window, 0, window->windowTitle(),
                                   QStringLiteral(":/desk/launcher/settings.png"), QString()};
    }
    m_homePage->launcher()->setEntries(entries);
}

void UnitShell::retranslate()
{
    showEntries();
    showControls();
    showFront();
    m_homePage->carView()->update();
}
