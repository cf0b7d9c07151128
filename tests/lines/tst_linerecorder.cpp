// What the recorder writes down of a line, under the virtual clock.

#include "linerecorder.h"
#include "orblog.h"
#include "ptybox.h"
#include "testmain.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <qextserialport.h>

namespace {

const QByteArray Key = QByteArray::fromHex("2e20020101db");
const QByteArray Bad = QByteArray::fromHex("2e20020101dc");

// A polled port, as the unit has, behind which the recorder stands.
class Line
{
public:
    Line() : port(box.path(), {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, -1}, QextSerialPort::Polling)
    {
        recorder.setType(7);
        QObject::connect(&recorder, &LineRecorder::recorded, [this](const LineRecord &record) {
            records << QString::fromLatin1(OrbLog::line(record).trimmed()).section(' ', 1);
            isInOrder = isInOrder && record.microseconds >= last;
            last = record.microseconds;
        });
        port.open(QIODevice::ReadWrite);
    }

    // The box says \a bytes, and the unit reads them.
    void say(const QByteArray &bytes)
    {
        box.send(bytes);
        while (port.bytesAvailable() < bytes.size()) { // the kernel takes real time
        }
        port.readAll();
    }

    static void pass(int ms)
    {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    QStringList records; // "< 2e..."
    bool isInOrder = true;
    qint64 last = 0;
    PtyBox box;
    LineRecorder recorder;
    QextSerialPort port;
};

QStringList contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n') : QStringList();
}

} // namespace

class TestLineRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chunks_data();
    void chunks();
    void waitsForNobody();
    void states();
    void savesAtTheFirstBadPackage();
    void fullDisk();
};

void TestLineRecorder::chunks_data()
{
    QTest::addColumn<QByteArrayList>("said");
    QTest::addColumn<QStringList>("written");
    const QString key = "< " + Key.toHex();
    QTest::newRow("package") << QByteArrayList{Key} << QStringList{key};
    QTest::newRow("two in a chunk") << QByteArrayList{Key + Key} << QStringList{"< " + (Key + Key).toHex()};
    QTest::newRow("in two chunks") << QByteArrayList{Key.left(4), Key.mid(4)}
                                   << QStringList{"< " + Key.left(4).toHex(), "< " + Key.mid(4).toHex()};
    QTest::newRow("noise before") << QByteArrayList{"\x01\x02" + Key} << QStringList{"! 0102", key};
    QTest::newRow("bad package") << QByteArrayList{Bad + Key} << QStringList{"! " + Bad.toHex(), key};
    QTest::newRow("cut package") << QByteArrayList{Key.left(3)} << QStringList{"! " + Key.left(3).toHex()};
    QTest::newRow("acknowledgement") << QByteArrayList{"\xff"} << QStringList{"< ff"};
}

void TestLineRecorder::chunks()
{
    QFETCH(QByteArrayList, said);
    Line line;
    for (const QByteArray &bytes : said) {
        line.say(bytes);
        Line::pass(10);
    }
    Line::pass(600); // a package that is not whole by then is none
    line.records.removeFirst();
    QTEST(line.records, "written");
}

// What the unit says behind half a package stands behind it, though nobody knows yet what the half is.
void TestLineRecorder::waitsForNobody()
{
    Line line;
    line.say(Key.left(3));
    Line::pass(5);
    line.port.write("\xff", 1);
    Line::pass(5);
    QTemporaryDir folder;
    QString error;
    QVERIFY(line.recorder.save(folder.filePath("half"), &error));
    line.say(Key.mid(3));
    QCOMPARE(line.records, QStringList({"# opened", "< 2e2002", "> ff", "< 0101db"}));
    QVERIFY(line.isInOrder);
    const QStringList saved = contentOf(folder.filePath("half"));
    QVERIFY(saved.filter(" < 2e2002").size() == 1 && saved.filter(" > ff").size() == 1);
    QCOMPARE(saved.mid(0, 3),
             QStringList({"# orblog 1", "# type 7 CanBus_Raise_Honda", "# port " + line.box.path()}));
}

void TestLineRecorder::states()
{
    Line line;
    line.say(Key);
    Line::pass(12000); // says once that it is silent
    line.say(Key);
    line.port.close();
    line.port.open(QIODevice::ReadWrite);
    QextSerialPort missing("/dev/nowhere", {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, -1});
    missing.open(QIODevice::ReadWrite);
    missing.open(QIODevice::ReadWrite); // the same again
    const QString key = "< " + Key.toHex();
    QCOMPARE(line.records, QStringList({"# opened", key, "# silent", key, "# closed", "# back",
                                        "# does not open: No such file or directory"}));
}

void TestLineRecorder::savesAtTheFirstBadPackage()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("bad.orblog");
    Line line;
    line.recorder.saveAtBadPackage(path);
    line.say(Key);
    QVERIFY(!QFile::exists(path));
    line.say(Bad);
    const QStringList saved = contentOf(path);
    QCOMPARE(saved.filter(Bad.toHex()).size(), 1);
    QCOMPARE(saved.filter(Key.toHex()).size(), 1);
    line.say(Bad);
    QCOMPARE(contentOf(path), saved); // the first one was asked for
}

void TestLineRecorder::fullDisk()
{
    Line line;
    QSignalSpy failed(&line.recorder, &LineRecorder::fileFailed);
    QString error;
    QVERIFY(line.recorder.startFile("/dev/full", &error));
    for (int i = 0; i < 3; ++i) {
        line.say(Key);
    }
    QCOMPARE(failed.size(), 1);
    QVERIFY2(failed.first().first().toString().contains("No space left"),
             qPrintable(failed.first().first().toString()));
    QVERIFY(!line.recorder.isWritingFile());
    QCOMPARE(line.records.size(), 4); // the ring goes on
    QVERIFY(!line.recorder.startFile("/nowhere/log", &error));
}

CANBUS_TEST_MAIN(TestLineRecorder)
#include "tst_linerecorder.moc"
