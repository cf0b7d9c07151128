#include "deskbench.h"

#include "adapterfactory.h"
#include "boxcatalog.h"
#include "canbusadapter.h"
#include "linelogformats.h"
#include "orbapplication.h"
#include "orbhost.h"
#include "orbtrace.h"
#include "screenbench.h"
#include "serialtap.h"
#include "sidepanel.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStackedWidget>
#include <QtTest>

namespace {

const AppTagId TypeTag = 0x10008;
const char *const PortName = "CANPortName";
const char *const Link = "ttyBox";
const QSize Room(1366 - 8, 768 - 44); // what a small laptop leaves a window
const int StartTime = 1500;           // ms: the line is open and the box has said how the car is
const int SayTime = 600;
const int DecodeTime = 2;       // ms: until the unit reads what is there
const int Silence = 2000000000; // ms

} // namespace

DeskBench::DeskBench(int type, Box box, const QSize &screen, const QString &port)
    : m_before(QDir::currentPath())
{
    QDir::setCurrent(m_folder.path());
    OrbHost *const host = OrbHost::instance();
    host->setTag(TypeTag, type);
    host->setProductValue(PortName, Link);
    QVERIFY(port.isEmpty() || QFile::link(port, Link));
    QString error;
    if (box != NoBox) {
        m_box.reset(BoxCatalog::createBox(type, nullptr, &error));
        QVERIFY2(m_box && m_box->open(Link, &error), qPrintable(error));
        m_box->holdTongue(box == SilentBox ? Silence : 0);
    }
    m_unit.reset(new HeadUnit);
    m_unit->lineHealth()->setType(type);
    m_unit->lineHealth()->setPort(Link);
    // Built in another language: all texts have to follow.
    const QString language = host->language();
    host->setLanguage(language == "de" ? "fr" : "de");
    m_window.reset(new DeskWindow(m_unit.get(), m_box.get(), screen));
    m_window->resize(Room);
    m_window->show();
    m_window->chooseLanguage(language);
    QVERIFY(m_window->minimumSizeHint().boundedTo(Room) == m_window->minimumSizeHint());
    m_adapter.reset(AdapterFactory::create(CanBusType(type)));
    m_adapter->initAdapter();
    passTime(StartTime);
}

DeskBench::~DeskBench()
{
    OrbHost *const host = OrbHost::instance();
    host->setProductValue(PortName, QString()); // without a port it lets go of the line
    m_adapter->initAdapter();
    m_adapter.reset();
    m_window.reset();
    m_unit.reset();
    m_box.reset();
    host->setProductValue(PortName, QVariant());
    host->setTag(TypeTag, QVariant());
    QDir::setCurrent(m_before);
}

void DeskBench::drive(const QStringList &changes)
{
    for (const QString &change : changes) {
        QVERIFY2(m_box->car()->setValue(change.section(' ', 0, 0), change.section(' ', 1)),
                 qPrintable(change));
        passTime(SayTime);
    }
}

void DeskBench::removePort()
{
    QVERIFY(QFile::remove(Link));
}

void DeskBench::hear(const QString &log, int ms)
{
    QString error;
    const std::unique_ptr<LineLogReader> reader = LineLogFormats::reader(log, {}, &error);
    QVERIFY2(reader, qPrintable(error));
    const qint64 start = SerialTap::now();
    for (LineRecord record; reader->next(&record) && record.microseconds < ms * qint64(1000);) {
        passTime(int(qMax<qint64>(0, start + record.microseconds - SerialTap::now()) / 1000));
        for (SerialTapObserver *observer : SerialTap::observers()) {
            observer->received(record.bytes, SerialTap::now());
        }
        passTime(DecodeTime);
        OrbTrace::listener->called("ProtocolUtils", "recvProtocolData", {record.bytes});
        QVERIFY(
            QMetaObject::invokeMethod(m_adapter.get(), "onRecvMcuProtocol", Q_ARG(QByteArray, record.bytes)));
    }
    passTime(SayTime);
}

QWidget *DeskBench::page(int index) const
{
    m_window->sidePanel()->showPage(index);
    passTime(SayTime);
    // The system gives a terminal another number each time.
    for (QLabel *label : m_window->sidePanel()->findChildren<QLabel *>()) {
        label->setText(label->text().replace(QRegularExpression("/dev/pts/[0-9]+"), "/dev/pts/0"));
    }
    // Nor does a line between two real ends keep its times.
    for (QPlainTextEdit *log : m_window->sidePanel()->findChildren<QPlainTextEdit *>()) {
        log->clear();
    }
    const QStackedWidget *const pages = m_window->sidePanel()->findChild<QStackedWidget *>();
    return qobject_cast<QScrollArea *>(pages->currentWidget())->widget();
}
