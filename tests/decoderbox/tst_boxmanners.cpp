// How a box behaves on the line, whatever its protocol says.

#include "boxtools.h"
#include "simulatedunit.h"
#include "virtualmain.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

namespace {

const int Toyota = 9;
const int ToyotaStateReports = 6;

QVector<QByteArray> frames(const QByteArrayList &packages)
{
    QVector<QByteArray> result;
    for (const QByteArray &package : packages) {
        result << RaiseWire::frame(package);
    }
    return result;
}

} // namespace

class TestBoxManners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSaidBeforeTheUnitIsReady();
    void sendsStateOnceAndIgnoresFurtherReadies();
    void resendsThreeTimesThenFallsSilent();
    void endStopsTheBox();
    void answers_data();
    void answers();
    void badPackageHidesNoGoodOne();
    void waitingReportTellsTheNewestState();
    void heldKeyRepeats();
    void silenceHoldsPackagesBack();
    void queueIsBounded();
    void hostileUnitIsEndured_data();
    void hostileUnitIsEndured();
    void linkIsReplacedAndRemoved();
    void linkNeverReplacesAFile();
};

void TestBoxManners::nothingIsSaidBeforeTheUnitIsReady()
{
    const auto box = openBox(Toyota);
    // A unit that goes and comes back is a new one.
    for (int visit = 0; visit < 2; ++visit) {
        QTRY_VERIFY(!box->isUnitThere());
        SimulatedUnit unit(*box);
        QTRY_VERIFY(box->isUnitThere());
        QCOMPARE(box->state(), DecoderBox::WaitsForReady);
        box->car()->setValue("doors.front_left", visit == 0);
        box->keys()->press("volume_up");
        QTest::qWait(20);
        QCOMPARE(int(unit.packages().size()), 0);
        unit.writeReady();
        QTRY_COMPARE(int(unit.packages().size()), ToyotaStateReports);
        QCOMPARE(unit.frames().last(), RaiseWire::frame(visit == 0 ? "24 40" : "24 00"));
    }
}

void TestBoxManners::sendsStateOnceAndIgnoresFurtherReadies()
{
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), ToyotaStateReports);
    unit.writeReady();
    QTRY_COMPARE(unit.singleBytes(), QByteArray("\xff\xff\xff"));
    QTest::qWait(150);
    QCOMPARE(int(unit.packages().size()), ToyotaStateReports);
}

void TestBoxManners::resendsThreeTimesThenFallsSilent()
{
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box, 0);
    unit.writeReady();
    QTRY_COMPARE(box->state(), DecoderBox::Silent);
    QCOMPARE(int(unit.packages().size()), 4);
    for (int i = 1; i < 4; ++i) {
        QCOMPARE(unit.packages().at(i).bytes, unit.packages().at(0).bytes);
        const qint64 gap = unit.packages().at(i).ms - unit.packages().at(i - 1).ms;
        QVERIFY2(gap >= 95 && gap < 160, qPrintable(QString::number(gap)));
    }
    box->car()->setValue("doors.front_left", true);
    unit.write("\xff");
    QTest::qWait(150);
    QCOMPARE(int(unit.packages().size()), 4);
    unit.setAcknowledgements(-1);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 4 + ToyotaStateReports);
}

void TestBoxManners::endStopsTheBox()
{
    Conversation talk(Toyota);
    talk.unit.write(RaiseWire::frame("81 00"));
    QTRY_COMPARE(talk.box->state(), DecoderBox::WaitsForReady);
    talk.box->car()->setValue("climate.fan", 5);
    QTest::qWait(30);
    QVERIFY(talk.unit.packages().isEmpty());
}

void TestBoxManners::answers_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("answered");
    const auto row = [](const char *name, const QByteArray &sent, const char *answered) {
        QTest::newRow(name) << sent << QByteArray(answered);
    };
    const QByteArray good = RaiseWire::frame("84 08 01");
    row("bad checksum, then a good package", good.chopped(1) + '\x71' + good, "\xf0\xff");
    row("unknown command", RaiseWire::frame("55"), "\xf3");
    row("known command, too little data", RaiseWire::frame("84 08"), "\xff");
    row("no data at all", RaiseWire::frame("81"), "\xff");
    row("255 data bytes", RaiseWire::frame(0x99, QByteArray(255, '\0')), "\xff");
    row("noise", QByteArray::fromHex("00ff55aaf0f3fc"), "");
}

void TestBoxManners::answers()
{
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, answered);
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box);
    unit.write(sent);
    QTRY_COMPARE(unit.singleBytes(), answered);
    QTest::qWait(20);
    QCOMPARE(unit.singleBytes(), answered);
}

// A false start may or may not be answered; what counts is that the good package is.
void TestBoxManners::badPackageHidesNoGoodOne()
{
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box);
    unit.write(QByteArray::fromHex("2e5507") + RaiseWire::frame("81 01") + QByteArray(3, '\0'));
    QTRY_COMPARE(box->state(), DecoderBox::Talks);
    QVERIFY(unit.singleBytes().endsWith('\xff'));
}

void TestBoxManners::waitingReportTellsTheNewestState()
{
    Conversation talk(Toyota);
    talk.unit.setAcknowledgements(0);
    change(talk.box.get(), "doors.front_left on; climate.fan 3; climate.fan 4; climate.fan 5");
    QTRY_COMPARE(int(talk.unit.packages().size()), 1);
    talk.unit.setAcknowledgements(-1);
    talk.unit.write("\xff");
    QTRY_COMPARE(int(talk.unit.packages().size()), 2);
    QTest::qWait(30);
    QCOMPARE(talk.unit.frames(), frames({"24 40", "28 80 45 07 07 00"}));
}

void TestBoxManners::heldKeyRepeats()
{
    Conversation talk(Toyota);
    QVERIFY(!talk.box->keys()->press("ejector_seat") && !talk.box->keys()->release("ejector_seat"));
    QVERIFY(!talk.box->keys()->turn("next", 1) && !talk.box->keys()->touch(BoxSpeaker::TouchPressed, 1, 1));
    QVERIFY(talk.box->keys()->press("next"));
    QVERIFY(talk.box->keys()->press("next"));
    QTest::qWait(500);
    QVERIFY(talk.box->keys()->release("next"));
    QTest::qWait(250);
    QCOMPARE(talk.unit.frames(), frames({"20 03 01", "20 03 02", "20 03 02", "20 03 00"}));
    const qint64 gap = talk.unit.packages().at(2).ms - talk.unit.packages().at(1).ms;
    QVERIFY2(gap > 180 && gap < 240, qPrintable(QString::number(gap)));
}

void TestBoxManners::silenceHoldsPackagesBack()
{
    Conversation talk(Toyota);
    talk.box->holdTongue(120);
    talk.box->car()->setValue("doors.front_right", true);
    talk.unit.write(RaiseWire::frame("84 08 01"));
    QTest::qWait(70);
    QVERIFY(talk.unit.packages().isEmpty());
    QVERIFY(talk.unit.singleBytes().isEmpty());
    QTRY_COMPARE(int(talk.unit.packages().size()), 1);
    QCOMPARE(talk.box->observation("sound 0x08"), QString("0x01"));
}

void TestBoxManners::queueIsBounded()
{
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box, 0);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 1);
    int dropped = 0;
    connect(box.get(), &DecoderBox::logLine, this,
            [&dropped](const QString &line) { dropped += line.contains("too much to send"); });
    for (int i = 0; i < 400; ++i) {
        box->keys()->press("next");
        box->keys()->release("next");
    }
    QVERIFY(dropped > 400 && dropped < 800);
}

void TestBoxManners::hostileUnitIsEndured_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("start bytes") << Toyota << QByteArray(4096, '\x2E');
    QTest::newRow("lying lengths") << Toyota << QByteArray("\x2E\x81\xFF").repeated(1300);
    QTest::newRow("start bytes, other frame") << 4 << QByteArray(4096, '\xF0');
    QTest::newRow("no lengths, other frame") << 4 << QByteArray("\xF0\x00", 2).repeated(2000);
}

// Behind a hundred kilobytes of it a package still counts.
void TestBoxManners::hostileUnitIsEndured()
{
    QFETCH(int, type);
    QFETCH(QByteArray, piece);
    const auto box = openBox(type, false);
    SimulatedUnit unit(*box);
    for (int i = 0; i < 32; ++i) {
        unit.write(piece);
        QTest::qWait(1);
    }
    QTest::qWait(120);
    unit.write(type == Toyota ? RaiseWire::frame("81 01") : XinHangWire::frame("81 01"));
    QTRY_COMPARE(box->state(), DecoderBox::Talks);
}

void TestBoxManners::linkIsReplacedAndRemoved()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("can");
    QVERIFY(QFile::link("/nowhere", link));
    const auto entries = [&folder] {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    };
    {
        PseudoTerminal terminal;
        QString error;
        QVERIFY2(terminal.open(link, &error), qPrintable(error));
        QCOMPARE(QFile::symLinkTarget(link), terminal.devicePath());
        QCOMPARE(entries(), QStringList("can"));
    }
    QCOMPARE(entries(), QStringList());
}

void TestBoxManners::linkNeverReplacesAFile()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("precious"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    PseudoTerminal terminal;
    QString error;
    QVERIFY(!terminal.open(file.fileName(), &error));
    QVERIFY(error.contains("precious"));
    QVERIFY(!QFileInfo(file.fileName()).isSymLink());
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxManners)
#include "tst_boxmanners.moc"
