#include "debuglog.h"
#include "testfiles.h"
#include "transcript.h"
#include "xinhangbench.h"

#include "updatedialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QRandomGenerator>

#include <memory>

#include <sys/stat.h>

/// The firmware update: which file is offered, what the box gets, and what is harmed on the way. It stands in
/// xinhangupdate.txt; transcript.h tells how to read it.
class TestXinHangUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transcript();
};

namespace {

QByteArray hex32(quint32 number)
{
    return QByteArray::number(number, 16).rightJustified(8, '0');
}

QByteArray image(int size)
{
    QByteArray bytes(size, '\0');
    QRandomGenerator random(quint32(size) + 1);
    for (char &byte : bytes) {
        byte = char(random.bounded(256));
    }
    return bytes;
}

} // namespace

/// An adapter with a disk, number 3, whose two partitions are the folders a and b.
class UpdateBench
{
public:
    explicit UpdateBench(int carType)
    {
        QDir(m_disk.path()).mkpath("a");
        QDir(m_disk.path()).mkpath("b");
        m_unit.drive(carType, "own");
    }
    ~UpdateBench() { OrbHost::instance()->setDiskPartitions(3, QStringList()); }

    QStringList carryOut(const QString &order);

private:
    QString path(const QString &name) const { return m_disk.filePath(name); }
    bool setTime(const QString &name, int seconds) const;
    bool changeFile(const QString &what, const QString &name, const QString &with);
    void changeDisk(int disk, int status);
    UpdateDialog *dialog() const;
    QStringList ask(quint32 number);
    QStringList askAll(int count);

    XinHangBench m_unit;
    QTemporaryDir m_disk;
    QByteArray m_firmware; // what was last put on the disk
};

// A disk that comes back has its files as they were.
bool UpdateBench::setTime(const QString &name, int seconds) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(QDateTime(QDate(2026, 1, 1), QTime(0, 0, seconds)),
                            QFileDevice::FileModificationTime);
}

bool UpdateBench::changeFile(const QString &what, const QString &name, const QString &with)
{
    if (what == "file") {
        m_firmware = image(with.toInt());
        TestSupport::writeFile(path(name), m_firmware);
        return setTime(name, 0);
    } else if (what == "touch") {
        return setTime(name, 1);
    } else if (what == "link") {
        return QFile::link(with, path(name));
    } else if (what == "size") {
        return QFile(path(name)).resize(with.toInt());
    } else if (what == "remove") {
        return QFile::remove(path(name)) || QDir().rmdir(path(name));
    } else if (what == "rename") {
        return QFile::rename(path(name), path(with));
    } else if (what == "pipe") {
        return mkfifo(QFile::encodeName(path(name)).constData(), 0600) == 0;
    } else if (what == "folder") {
        return QDir().mkdir(path(name));
    }
    return true;
}

void UpdateBench::changeDisk(int disk, int status)
{
    OrbHost::instance()->setDiskPartitions(3, status ? QStringList{path("a"), path("b")} : QStringList());
    Q_EMIT OrbApplication::instance()->diskDeviceStatusChange(disk, status);
}

UpdateDialog *UpdateBench::dialog() const
{
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (auto *const dialog = qobject_cast<UpdateDialog *>(window)) {
            return dialog;
        }
    }
    return nullptr;
}

/// What the unit calls when the box asks for a packet; "right packet" for the one that it should be.
QStringList UpdateBench::ask(quint32 number)
{
    const QByteArray part = m_firmware.mid(int(number) * 128, 128).leftJustified(128, '\xFF');
    const QString right = "send " + (QByteArray::fromHex("860200" + hex32(number)) + part).toHex(' ');
    QStringList calls = m_unit.feed("08 02 00 " + hex32(number));
    return calls.replaceInStrings(right, "right packet");
}

QStringList UpdateBench::askAll(int count)
{
    for (int number = 0; number < count; ++number) {
        const QStringList calls = ask(quint32(number));
        if (calls.value(0) != "right packet") {
            return calls;
        }
    }
    return {QString("%1 right packets").arg(count)};
}

QStringList UpdateBench::carryOut(const QString &order)
{
    const QStringList words = order.split(' ');
    const QString with = words.value(1);
    if (words[0] == "disk") {
        changeDisk(with.toInt(), words.value(2).toInt());
    } else if (words[0] == "feed") {
        return m_unit.feed(order.section(' ', 1).toLatin1());
    } else if (words[0] == "ask") {
        return with == "all"     ? askAll((m_firmware.size() + 127) / 128)
               : with == "first" ? askAll(words.value(2).toInt())
                                 : ask(with.toUInt(nullptr, 16));
    } else if (words[0] == "accept") {
        if (dialog()) {
            dialog()->findChild<QAbstractButton *>("btnOk")->click();
        }
    } else if (words[0] == "wait") {
        QTest::qWait(with.toInt());
        return {dialog()->findChild<QLabel *>("txtTitle")->text()};
    } else if (!changeFile(words[0], with, words.value(2))) {
        return {"could not be done"};
    }
    return m_unit.calls();
}

void TestXinHangUpdate::transcript()
{
    const DebugLog quiet;
    std::unique_ptr<UpdateBench> bench;
    const auto act = [&bench](const QString &order) {
        if (order.startsWith("==")) {
            return QStringList();
        }
        if (order.startsWith("car ")) {
            bench.reset(); // two at a time would share the settings folder
            bench.reset(new UpdateBench(order.section(' ', 1).toInt()));
            return QStringList();
        }
        return bench->carryOut(order);
    };
    COMPARE_WITH_TRANSCRIPT("xinhangupdate.txt", act);
}

CANBUS_TEST_MAIN(TestXinHangUpdate)
#include "tst_xinhang_update.moc"
