#include "linkdrive.h"

#include "drivefolder.h"
#include "driveprocess.h"
#include "hostileline.h"
#include "memoryline.h"

#include "canbusadapter.h"
#include "canbusplugin.h"
#include "keyredefadapter_hud.h"
#include "keyredefadapter_lianbaolai.h"
#include "orbapplication.h"
#include "orbevent.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "tablelistview.h"
#include "unitlink.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPointer>
#include <QTranslator>

#include <iterator>

#include <unistd.h>

namespace {

const int MostWaited = 400; // ms of a drive in which the event loop runs, what costs most

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

// The plug-in's texts in a language, read once.
QTranslator *translator(quint8 number)
{
    static QHash<int, QTranslator *> read;
    QTranslator *&texts = read[number % int(std::size(Languages))];
    if (!texts) {
        texts = new QTranslator;
        const QString language = Languages[number % std::size(Languages)];
        if (!texts->load(QString(TRANSLATIONS "/canbus_%1.qm").arg(language))) {
            qFatal("no translation for '%s'", qPrintable(language));
        }
    }
    return texts;
}

template <class Part>
Part *partOfFront(quint8 number)
{
    const QList<Part *> parts =
        DriveProcess::front() ? DriveProcess::front()->findChildren<Part *>() : QList<Part *>();
    return parts.isEmpty() ? nullptr : parts.at(number % int(parts.size()));
}

} // namespace

// The unit's own key sets keep what is held in the process, so they live as long.
KeyRedefAdapter *LinkDrive::keySet(int number)
{
    static KeyRedefAdapter *const sets[] = {new KeyRedefAdapter_HUD, new KeyRedefAdapter_LianBaoLai};
    return sets[number];
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
    const int number = byte % DriveFolder::Disks;
    const int status = byte / DriveFolder::Disks % 3;
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
    if (!windows.isEmpty() && m_mayOpen) {
        windows.at(number % int(windows.size()))->setVisible(true);
    }
}

void LinkDrive::leave()
{
    const quint8 how = next();
    if (OrbMainWindow *const window = qobject_cast<OrbMainWindow *>(DriveProcess::front())) {
        if (how & 1) {
            window->home();
        } else {
            window->back();
        }
    } else if (QDialog *const dialog = qobject_cast<QDialog *>(DriveProcess::front())) {
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
        host->setScreen(DriveProcess::screen(), DriveProcess::screen());
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
