#include "linkdrive.h"

#include "drivefolder.h"
#include "driveprocess.h"
#include "hostileline.h"
#include "memoryline.h"

#include "adapterfactory.h"
#include "boxcatalog.h"
#include "canbusplugin.h"
#include "keyredefadapter.h"
#include "orbapplication.h"
#include "orbevent.h"
#include "orbhost.h"
#include "raise/raiseadapter.h"
#include "unitlink.h"
#include "virtualclock.h"

#include <QDialog>
#include <QPointer>
#include <QThread>

#include <unistd.h>

namespace {

const int OrderPlaces = 32;
const int MostOrders = 64;
// Windows take longer than all else, so one drive of this many may open them: its bytes' sum decides.
const unsigned int WindowShare = 8;
const int MostClosings = 100;      // rounds until every dialog has to be gone
const int ReadySendings = 60;      // more than a box without an answer gets
const int Calm = 2000000;          // us, longer than any key's long press
const quint8 FunctionKey = 0x2F;   // of the Volkswagen's box
const quint8 XinHangStatus = 0x01; // doors and lights

// How the unit is set up.
enum Set { LineMissing = 0x01, AllSettings = 0x04 };

const int MostWork = 20; // s of the processor's time for one drive: libFuzzer's own limit goes by the clock

const QEvent::Type StepEvent = QEvent::User;

// The catalog makes a whole box to see it.
const FrameFormat *frameOf(CanBusType type)
{
    static QHash<int, const FrameFormat *> formats;
    if (!formats.contains(type)) {
        formats.insert(type, BoxCatalog::frameOf(type));
    }
    return formats.value(type);
}

} // namespace

// ------------------------------------------------------------------------------------------ a process

void LinkDrive::start(int *argc, char **argv)
{
    OrbApplication *const application = DriveProcess::start(argc, argv);
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
    DriveProcess::limitWork(MostWork);
    VirtualClock::resume(DriveProcess::StartOfDrives);
    {
        LinkDrive drive(type, orders.isEmpty() ? quint8(0) : quint8(orders.at(0)), orders.mid(1));
        drive.drive();
    }
    VirtualClock::pause();
    DriveProcess::limitWork(0);
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
    host->setScreen(DriveProcess::screen(), DriveProcess::screen());
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
    DriveProcess::expect(host->windows().isEmpty(), "a window is left");
    host->setScreen(nullptr, nullptr);
    QCoreApplication::removeTranslator(m_language);
    for (const uint tag : {UnitLink::CanBusTypeTag, UnitLink::StatusWordTag, UnitLink::ClockFormatTag}) {
        host->setTag(tag, QVariant());
    }
    host->setFactorySetting("SettingItemTypes", QStringList());
    host->setCurWindowAppId(-1);
    for (int number = 0; number < DriveFolder::Disks; ++number) {
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
        LinkDrive::keySet(set)->onKeyEvent(0, true, false);
        LinkDrive::keySet(set)->onKeyEvent(0, false, false);
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
    DriveProcess::expect(++m_closings < MostClosings, "a dialog that does not close");
    goOn(0);
    for (const QPointer<QWidget> window : OrbHost::instance()->windows()) {
        QDialog *const dialog = qobject_cast<QDialog *>(window);
        if (dialog && !dialog->isHidden()) {
            dialog->reject();
        }
    }
}
