#include "linkdrive.h"

#include "drivefolder.h"
#include "hostileline.h"
#include "memoryline.h"

#include "adapterfactory.h"
#include "boxcatalog.h"
#include "canbusplugin.h"
#include "keyredefadapter_hud.h"
#include "keyredefadapter_lianbaolai.h"
#include "orbapplication.h"
#include "orbevent.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "raise/raiseadapter.h"
#include "tablelistview.h"
#include "unitlink.h"
#include "virtualclock.h"

#include <QAbstractButton>
#include <QDialog>
#include <QFontMetrics>
#include <QIcon>
#include <QPointer>
#include <QThread>
#include <QTranslator>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include <sys/time.h>
#include <unistd.h>

namespace {

const int OrderPlaces = 32;
const int MostOrders = 64;
// The Volkswagen's windows take longer than all else, so one drive of this many may open them: its bytes' sum decides.
const unsigned int WindowShare = 8;
const int MostWaited = 400;   // ms of a drive in which the event loop runs, what costs most
const int MostClosings = 100; // rounds until every dialog has to be gone
const int ReadySendings = 60; // more than a box without an answer gets
const int Disks = 2;
const int Calm = 2000000;             // us, longer than any key's long press
const int LetterWidth = 12;           // pixels
const quint8 FunctionKey = 0x2F;      // of the Volkswagen's box
const quint8 XinHangStatus = 0x01;    // doors and lights
const int MidsummerNoon = 1782820800; // 2026-06-30, UTC

// How the unit is set up.
enum Set { LineMissing = 0x01, AllSettings = 0x04 };

const int MostWork = 20; // s of the processor's time for one drive: libFuzzer's own limit goes by the clock

const QEvent::Type StepEvent = QEvent::User;

// What a unit says and asks in earnest; a byte past the end of such a table is taken as it is.
const unsigned int Apps[] = {769, 770, 771, 204, 513, 0};
const unsigned int Notifications[] = {0x5006, 0x5020, 0x5024, 0x5004, 0x5005};
const unsigned int States[] = {4, 0x1000000, 0x2000000, 0x3000000, 0};
const unsigned int Keys[] = {0x2F00001, 0x2000002, 0x2F00003, 0x2F00004, 0x2F00005, 0x2F00006, 0x2F00007,
                             0x2000061, 0x2F00010, 0x2000013, 0x2000015, 0x1000030, 0x1000070, 0x1000072};
const int Leaps[] = {30, 100, 250, 500, 1000, 1500, 2000, 4000, 5000, 20000};
const char *const Languages[] = {"de", "zh_CN", "ru"};

template <int Size>
unsigned int choice(const unsigned int (&table)[Size], quint8 byte)
{
    return byte < Size ? table[byte] : byte;
}

void expect(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

// Ends the program when it works for longer than \a seconds from now; 0: for as long as it likes.
void limitWork(int seconds)
{
    itimerval timer = {};
    timer.it_value.tv_sec = seconds;
    ::setitimer(ITIMER_VIRTUAL, &timer, nullptr);
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

// The screen is never shown: windows lie on it and react, but nothing lays them out or paints them.
QWidget *screen()
{
    static QWidget *const screen = new QWidget;
    return screen;
}

QWidget *front()
{
    OrbHost *const host = OrbHost::instance();
    return host->frontWindow() ? host->frontWindow() : host->frontWindow(false);
}

// Fonts that nobody holds are forgotten after a while, and in a drive a while is nothing.
void keepFonts()
{
    static QList<QFont> fonts;
    for (int pixels = 8; pixels <= 80; ++pixels) {
        for (const int weight : {QFont::Normal, QFont::Bold}) {
            QFont font;
            font.setPixelSize(pixels);
            font.setWeight(weight);
            fonts << font;
            QFontMetrics(fonts.last()).height();
        }
    }
}

// The plug-in's texts in a language, read once.
QTranslator *translator(quint8 number)
{
    static QHash<int, QTranslator *> read;
    QTranslator *&texts = read[number % int(std::size(Languages))];
    if (!texts) {
        texts = new QTranslator;
        texts->load(QString(TRANSLATIONS "/canbus_%1.qm").arg(Languages[number % std::size(Languages)]));
    }
    return texts;
}

// The unit's own key sets keep what is held in the process, so they live as long.
KeyRedefAdapter *keySet(int number)
{
    static KeyRedefAdapter *const sets[] = {new KeyRedefAdapter_HUD, new KeyRedefAdapter_LianBaoLai};
    return sets[number];
}

// The catalog makes a whole box to see it.
const FrameFormat *frameOf(CanBusType type)
{
    static QHash<int, const FrameFormat *> formats;
    if (!formats.contains(type)) {
        formats.insert(type, BoxCatalog::frameOf(type));
    }
    return formats.value(type);
}

template <class Part>
Part *partOfFront(quint8 number)
{
    const QList<Part *> parts = front() ? front()->findChildren<Part *>() : QList<Part *>();
    return parts.isEmpty() ? nullptr : parts.at(number % int(parts.size()));
}

} // namespace

// Flushing to the disk is what a drive's settings would wait for most, and nobody pulls the plug here.
extern "C" int fsync(int)
{
    return 0;
}

// Looks are most of what building a window takes, and nobody sees them.
void QWidget::setStyleSheet(const QString &) {}
void QIcon::addFile(const QString &, const QSize &, Mode, State) {}
QIcon::QIcon(const QString &) : d(nullptr) {}
int QFontMetrics::horizontalAdvance(const QString &text, int) const
{
    return LetterWidth * int(text.size());
}
int QFontMetrics::height() const
{
    return 2 * LetterWidth;
}

// ------------------------------------------------------------------------------------------ a process

void LinkDrive::start(int *argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal"); // whose letters are boxes
    expect(VirtualClock::start(MidsummerNoon), "no virtual clock");
    ::signal(SIGVTALRM, [](int) { std::abort(); });
    qInstallMessageHandler(ignoreMessage);
    static OrbApplication *const application = new OrbApplication(*argc, argv);
    Q_CLEANUP_RESOURCE(volkswagen);
    application->setStyleSheet(QString());
    keepFonts();
    screen()->resize(1024, 600);
    connect(application, &OrbApplication::keySimulated, [](int key, bool press, bool, int last) {
        MemoryLine::instance().note(quint32(key) * 4 + press * 2 + quint32(last));
    });
    connect(application, &OrbApplication::orbEventDispatched, [](const OrbEvent *event) {
        MemoryLine::instance().note(event->getParam() * 8 + event->getParam2());
    });
    OrbHost *const host = OrbHost::instance();
    host->setSettingsDir(DriveFolder::instance().settings());
    // What a process counts once and for ever is at its end before the first drive.
    for (const CanBusType type : AdapterFactory::types()) {
        LinkDrive drive(type, 0, QByteArray());
        for (int i = 0; type == CanBusTypeXinHang && i < ReadySendings; ++i) {
            QMetaObject::invokeMethod(drive.m_adapter, "onSendReadyTimeout");
        }
        if (type == CanBusTypeRaiseHonda) {
            drive.m_adapter->onRecvMcuProtocol(HostileLine::package(type, 0x21, QByteArray(9, '\x40')));
        }
    }
    VirtualClock::pause();
}

void LinkDrive::play(const QByteArray &orders)
{
    const QList<CanBusType> types = AdapterFactory::types();
    const quint8 type = orders.isEmpty() ? quint8(0) : quint8(orders.at(0));
    playType(types.at(type % int(types.size())), orders.mid(1));
}

void LinkDrive::playUpdate(const QByteArray &orders)
{
    playType(CanBusTypeXinHang, orders);
}

void LinkDrive::playType(CanBusType type, const QByteArray &orders)
{
    limitWork(MostWork);
    VirtualClock::resume(MidsummerNoon);
    {
        LinkDrive drive(type, orders.isEmpty() ? quint8(0) : quint8(orders.at(0)), orders.mid(1));
        drive.drive();
    }
    VirtualClock::pause();
    limitWork(0);
}

// ------------------------------------------------------------------------------------------- a drive

LinkDrive::LinkDrive(CanBusType type, quint8 set, const QByteArray &orders) : m_type(type), m_orders(orders)
{
    unsigned int sum = 0;
    for (const char byte : orders) {
        sum += quint8(byte);
    }
    m_mayOpen = sum % WindowShare == 0;
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &LinkDrive::step);
    MemoryLine::instance().reset(frameOf(type));
    MemoryLine::instance().isThere = (set & LineMissing) == 0;
    OrbHost *const host = OrbHost::instance();
    host->setScreen(screen(), screen());
    host->setTag(UnitLink::CanBusTypeTag, uint(type));
    if ((set & AllSettings) && m_mayOpen) {
        QStringList items;
        for (int item = 128; item < 150; ++item) {
            items << QString::number(item);
        }
        host->setFactorySetting("SettingItemTypes", items);
    }
    m_plugin = new CanBusPlugin;
    m_adapter = CanBusAdapter::getAdapterInstance(type);
}

LinkDrive::~LinkDrive()
{
    calmProcess();
    OrbHost *const host = OrbHost::instance();
    delete m_plugin;
    delete m_adapter;
    for (const QPointer<QWidget> window : host->windows()) {
        delete window.data();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    expect(host->windows().isEmpty(), "a window is left");
    host->setScreen(nullptr, nullptr);
    QCoreApplication::removeTranslator(m_language);
    for (const uint tag : {UnitLink::CanBusTypeTag, UnitLink::StatusWordTag, UnitLink::ClockFormatTag}) {
        host->setTag(tag, QVariant());
    }
    host->setFactorySetting("SettingItemTypes", QStringList());
    host->setCurWindowAppId(-1);
    for (int number = 0; number < Disks; ++number) {
        host->setDiskPartitions(number, QStringList());
    }
    DriveFolder::instance().reset();
    ::usleep(Calm);
}

// The car's keys come up, its lights go off, a call is over, and what is due is done.
void LinkDrive::calmProcess()
{
    MemoryLine::instance().isTrusted = false; // what is half written may go on
    const unsigned char nothing[2] = {};
    if (RaiseAdapter *const raise = qobject_cast<RaiseAdapter *>(m_adapter)) {
        raise->processSWCKey(nothing);
        raise->processPanelKey(nothing);
        raise->onRecvMcuProtocol(HostileLine::package(m_type, FunctionKey, QByteArray(2, '\0')));
    } else if (m_type == CanBusTypeXinHang) {
        m_adapter->onRecvMcuProtocol(HostileLine::package(m_type, XinHangStatus, QByteArray(4, '\0')));
        m_adapter->orbAppStateChange(UnitLink::CallPresent / 3, UnitLink::CallPresent / 3);
    }
    for (const int set : {0, 1}) {
        keySet(set)->onKeyEvent(0, true, false);
        keySet(set)->onKeyEvent(0, false, false);
    }
    OrbApplication::simulateMouse(QEvent::MouseButtonRelease, -1, -1);
    ::usleep(Calm);
    QCoreApplication::processEvents();
}

void LinkDrive::drive()
{
    m_level = QThread::currentThread()->loopLevel() + 1;
    goOn(0);
    m_loop.exec();
    m_timer.stop();
}

void LinkDrive::goOn(int ms)
{
    if (ms == 0) {
        QCoreApplication::postEvent(this, new QEvent(StepEvent));
    } else {
        m_timer.start(ms);
    }
}

bool LinkDrive::event(QEvent *event)
{
    if (event->type() == StepEvent) {
        step();
        return true;
    }
    return QObject::event(event);
}

// One order. It may open a dialog, whose event loop then takes the next one: so that is ordered first.
void LinkDrive::step()
{
    // Saved inputs count on their places, of which there are as many as a byte's values divide by.
    using Drive = LinkDrive;
    static const Order orders[OrderPlaces] = {
        &Drive::package,    &Drive::package,    &Drive::noise,     &Drive::wait,     &Drive::standStill,
        &Drive::click,      &Drive::row,        &Drive::tellApp,   &Drive::unitKey,  &Drive::ownKeySet,
        &Drive::mode,       &Drive::disk,       &Drive::spoilFile, &Drive::language, &Drive::lineTrouble,
        &Drive::leave,      &Drive::touch,      &Drive::setTag,    &Drive::restart,  &Drive::open,
        &Drive::package,    &Drive::package,    &Drive::package,   &Drive::package,  &Drive::package,
        &Drive::package,    &Drive::package,    &Drive::click,     &Drive::row,      &Drive::wait,
        &Drive::standStill, &Drive::lineTrouble};
    if (m_at >= m_orders.size() || m_played >= MostOrders) {
        closeDialogs();
        return;
    }
    ++m_played;
    const Order order = orders[next() % OrderPlaces];
    if (order != &LinkDrive::wait) {
        goOn(0);
    }
    (this->*order)();
}

// Whatever dialogs are open stand in each other's way out.
void LinkDrive::closeDialogs()
{
    if (QThread::currentThread()->loopLevel() <= m_level) {
        m_loop.quit();
        return;
    }
    expect(++m_closings < MostClosings, "a dialog that does not close");
    goOn(0);
    for (const QPointer<QWidget> window : OrbHost::instance()->windows()) {
        QDialog *const dialog = qobject_cast<QDialog *>(window);
        if (dialog && !dialog->isHidden()) {
            dialog->reject();
        }
    }
}

quint8 LinkDrive::next()
{
    return m_at < m_orders.size() ? quint8(m_orders.at(m_at++)) : quint8(0);
}

QByteArray LinkDrive::nextBytes(int most)
{
    const QByteArray bytes = m_orders.mid(m_at, qMin<int>(next(), most) + 1).mid(1);
    m_at += int(bytes.size());
    return bytes;
}

// -------------------------------------------------------------------------------------------- orders

void LinkDrive::package()
{
    const quint8 command = next();
    MemoryLine::instance().coming += HostileLine::package(m_type, command, nextBytes(0xFF));
    m_adapter->onReadDeviceDatas();
}

void LinkDrive::noise()
{
    MemoryLine::instance().coming += nextBytes(0xFF);
}

void LinkDrive::lineTrouble()
{
    enum Trouble { Good, HungUp, Vanished, Refuses, TakesLittle, TakesNothing, ReadsNothing };
    MemoryLine &line = MemoryLine::instance();
    const quint8 byte = next();
    const int trouble = byte % 7;
    line.isThere = trouble != Vanished;
    line.hasHungUp = line.hasHungUp || trouble == HungUp || trouble == Vanished;
    line.readsNothing = trouble == ReadsNothing;
    line.writing = trouble == Refuses                                  ? MemoryLine::Refused
                   : trouble == TakesLittle || trouble == TakesNothing ? MemoryLine::Short
                                                                       : MemoryLine::Whole;
    line.room = trouble == TakesLittle ? byte / 7 % 8 + 1 : 0;
}

void LinkDrive::tellApp()
{
    const quint8 what = next();
    const quint8 first = next();
    const quint8 second = next();
    const int kinds[] = {UnitLink::ShowAppEvent,     UnitLink::NotifyEvent, UnitLink::AppStateEvent,
                         UnitLink::AppProtocolEvent, UnitLink::KeyEvent,    UnitLink::FirstEvent + what % 16};
    const int kind = kinds[what % int(std::size(kinds))];
    OrbEvent event(0, 0, kind);
    if (kind == UnitLink::ShowAppEvent) {
        event.setParams(choice(Apps, first), 0);
        if (m_type == CanBusTypeRaiseVolkswagen && !m_mayOpen) {
            return;
        }
    } else if (kind == UnitLink::NotifyEvent) {
        event.setParams(choice(Notifications, first), second);
    } else if (kind == UnitLink::AppStateEvent) {
        event.setParams(choice(States, first), choice(States, second));
    } else {
        event.setParams(first, second);
        event.setByteArrayParams(m_orders.mid(m_at, first));
    }
    QCoreApplication::sendEvent(m_plugin, &event);
}

void LinkDrive::unitKey()
{
    const unsigned int key = choice(Keys, next());
    const quint8 phase = next() % 3;
    if (!OrbHost::instance()->filterKey(key, phase != 0, phase == 2)) {
        OrbEvent event(0, 0, UnitLink::KeyEvent);
        event.setParams(key, phase);
        QCoreApplication::sendEvent(m_plugin, &event);
    }
}

void LinkDrive::ownKeySet()
{
    const quint8 byte = next();
    keySet(byte & 1)->onKeyEvent(choice(Keys, byte >> 3), byte & 2, byte & 4);
}

void LinkDrive::mode()
{
    const quint8 mode = next();
    Q_EMIT OrbApplication::instance()->modeAppChanged(mode % 20, mode / 20);
}

void LinkDrive::disk()
{
    const quint8 byte = next();
    const int number = byte % Disks;
    const int status = byte / Disks % 3;
    OrbHost::instance()->setDiskPartitions(number, status == 0 ? QStringList()
                                                               : DriveFolder::instance().partitions(next()));
    Q_EMIT OrbApplication::instance()->diskDeviceStatusChange(number, status);
}

void LinkDrive::spoilFile()
{
    DriveFolder::instance().spoil(next());
}

void LinkDrive::language()
{
    QTranslator *const wanted = translator(next());
    if (m_language) {
        return;
    }
    m_language = wanted;
    QCoreApplication::installTranslator(m_language);
    OrbEvent event(0, 0, UnitLink::NotifyEvent);
    event.setParams(Notifications[0], 0);
    QCoreApplication::sendEvent(m_plugin, &event);
}

void LinkDrive::wait()
{
    const int ms = qMin(next() + 1, MostWaited - m_waited);
    m_waited += ms;
    goOn(ms);
}

// The unit's thread is busy: timers are late, and each comes once.
void LinkDrive::standStill()
{
    ::usleep(useconds_t(Leaps[next() % int(std::size(Leaps))]) * 1000);
}

void LinkDrive::click()
{
    if (QAbstractButton *const button = partOfFront<QAbstractButton>(next())) {
        button->click();
    }
}

void LinkDrive::row()
{
    const quint8 place = next();
    TableListView *const list = partOfFront<TableListView>(0);
    const int rows = list && list->model() ? list->model()->rowCount() : 0;
    if (rows == 0) {
        return;
    }
    const QModelIndex cell = list->model()->index(place / 3 % rows, place % 3);
    const QPointer<TableListView> guard(list);
    Q_EMIT list->pressed(cell);
    if (guard && cell.flags() & Qt::ItemIsEnabled) {
        Q_EMIT list->clicked(cell);
    }
    if (guard && list->model() && place / 3 % rows < list->model()->rowCount()) {
        Q_EMIT list->itemColumnClicked(list->model(), list->model()->index(place / 3 % rows, place % 3));
    }
}

void LinkDrive::open()
{
    const QList<QWidget *> windows = OrbHost::instance()->windows();
    const quint8 number = next();
    if (!windows.isEmpty()) {
        windows.at(number % int(windows.size()))->setVisible(true);
    }
}

void LinkDrive::leave()
{
    const quint8 how = next();
    if (OrbMainWindow *const window = qobject_cast<OrbMainWindow *>(front())) {
        if (how & 1) {
            window->home();
        } else {
            window->back();
        }
    } else if (QDialog *const dialog = qobject_cast<QDialog *>(front())) {
        dialog->done(how & 1);
    }
}

void LinkDrive::touch()
{
    static const int types[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove};
    const quint8 type = next();
    const int x = next() * 4;
    OrbApplication::simulateMouse(types[type % 3], x, next() * 3);
}

void LinkDrive::setTag()
{
    OrbHost *const host = OrbHost::instance();
    const quint8 what = next();
    const quint8 value = next();
    if (what % 4 == 0) {
        host->setTag(UnitLink::StatusWordTag, qulonglong(choice(States, value)));
    } else if (what % 4 == 1) {
        host->setTag(UnitLink::ClockFormatTag, value);
    } else if (what % 4 == 2) {
        host->setCurWindowAppId(value);
    } else {
        host->setScreen(nullptr, nullptr); // windows are handed back, and hidden
        host->setScreen(screen(), screen());
    }
}

void LinkDrive::restart()
{
    const quint8 how = next();
    if (how & 1) {
        delete m_plugin;
        m_plugin = new CanBusPlugin;
    } else {
        m_adapter->initAdapter();
    }
}
