// How a box behaves on the line, whatever its protocol says.

#include "decoderbox.h"
#include "simulatedunit.h"

#include <QtTest>

namespace {

const int toyota = 9;
const int toyotaStateReports = 6;

int countFrames(const SimulatedUnit &unit, quint8 command)
{
    int count = 0;
    for (const SimulatedUnit::Arrival &arrival : unit.packages()) {
        count += quint8(arrival.bytes.at(1)) == command;
    }
    return count;
}

} // namespace

class TestBoxManners : public QObject
{
    Q_OBJECT

private slots:
    void saysNothingBeforeReady();
    void sendsStateOnceAndIgnoresFurtherReadies();
    void waitsForEachAcknowledgement();
    void resendsThreeTimesThenFallsSilent();
    void readyAfterSilenceStartsAgain();
    void unitThatComesBackGetsTheStateAgain();
    void endStopsTheBox();
    void answers_data();
    void answers();
    void badPackageHidesNoGoodOne_data();
    void badPackageHidesNoGoodOne();
    void waitingReportTellsTheNewestState();
    void heldKeyRepeats();
    void keysKnobsAndTouchesThatDoNotExist();
    void spoiltPackageIsSentAgain_data();
    void spoiltPackageIsSentAgain();
    void silenceHoldsPackagesBack();
    void noiseIsTheSameEachRun();
    void queueIsBounded();
    void hostileUnitIsEndured_data();
    void hostileUnitIsEndured();
    void linkIsReplacedAndRemoved();
    void linkNeverReplacesAFile();
};

void TestBoxManners::saysNothingBeforeReady()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    box->car()->setValue("climate.left", 25);
    box->pressKey("volume_up");
    QTest::qWait(60);
    QCOMPARE(unit.packages().size(), 0);
    box->sendRaw("\x2e\x01");
    QTest::qWait(20);
    unit.write("\xff");
    QVERIFY(unit.packages().isEmpty());
}

void TestBoxManners::sendsStateOnceAndIgnoresFurtherReadies()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.writeReady();
    QTRY_COMPARE(unit.singleBytes(), QByteArray("\xff\xff\xff"));
    QTest::qWait(150);
    QCOMPARE(int(unit.packages().size()), toyotaStateReports);
}

void TestBoxManners::waitsForEachAcknowledgement()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box, 0);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 1);
    QTest::qWait(40);
    QCOMPARE(int(unit.packages().size()), 1);
    unit.write("\xff");
    QTRY_COMPARE(int(unit.packages().size()), 2);
    QVERIFY(unit.frames().at(0) != unit.frames().at(1));
}

void TestBoxManners::resendsThreeTimesThenFallsSilent()
{
    const auto box = openBox(toyota);
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
}

void TestBoxManners::readyAfterSilenceStartsAgain()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box, 0);
    unit.writeReady();
    QTRY_COMPARE(box->state(), DecoderBox::Silent);
    unit.forget();
    unit.setAcknowledgements(-1);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
}

void TestBoxManners::unitThatComesBackGetsTheStateAgain()
{
    const auto box = openBox(toyota);
    {
        SimulatedUnit unit(*box);
        unit.writeReady();
        QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    }
    QTRY_VERIFY(!box->isUnitThere());
    QCOMPARE(box->state(), DecoderBox::WaitsForReady);
    box->car()->setValue("doors.front_left", true);
    SimulatedUnit unit(*box);
    QTRY_VERIFY(box->isUnitThere());
    QTest::qWait(20);
    QCOMPARE(int(unit.packages().size()), 0);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    QCOMPARE(unit.frames().last(), raiseFrame("24 40"));
}

void TestBoxManners::endStopsTheBox()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.write(raiseFrame("81 00"));
    QTRY_COMPARE(box->state(), DecoderBox::WaitsForReady);
    box->car()->setValue("climate.fan", 5);
    QTest::qWait(30);
    QCOMPARE(int(unit.packages().size()), toyotaStateReports);
}

void TestBoxManners::answers_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("answered");
    QTest::newRow("good package") << QByteArray::fromHex("2e84020801 70") << QByteArray("\xff");
    QTest::newRow("bad checksum") << QByteArray::fromHex("2e84020801 71") << QByteArray("\xf0");
    QTest::newRow("unknown command") << QByteArray::fromHex("2e550055").replace(3, 1, "\xaa")
                                     << QByteArray("\xf3");
    QTest::newRow("known command, too little data")
        << QByteArray::fromHex("2e840108 72") << QByteArray("\xff");
    QTest::newRow("no data at all") << QByteArray::fromHex("2e81007e") << QByteArray("\xff");
    QTest::newRow("255 data bytes") << QByteArray::fromHex("2e99ff") + QByteArray(255, '\0') +
                                           QByteArray::fromHex("67")
                                    << QByteArray("\xff");
    QTest::newRow("noise") << QByteArray::fromHex("00ff55aaf0f3fc") << QByteArray();
    QTest::newRow("acknowledgement that nobody asked for") << QByteArray("\xff") << QByteArray();
}

void TestBoxManners::answers()
{
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, answered);
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.write(sent);
    QTRY_COMPARE(unit.singleBytes(), answered);
    QTest::qWait(20);
    QCOMPARE(unit.singleBytes(), answered);
}

void TestBoxManners::badPackageHidesNoGoodOne_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("answered");
    const QByteArray good = QByteArray::fromHex("2e8101017c");
    QTest::newRow("behind a bad one") << QByteArray::fromHex("2e8101017d") + good << QByteArray("\xf0\xff");
    QTest::newRow("inside a bad one")
        << QByteArray::fromHex("2e5507") + good + QByteArray::fromHex("000000") << QByteArray("\xff");
    QTest::newRow("behind start bytes") << QByteArray("\x2e\x2e\x2e") + good << QByteArray("\xff");
}

// A false start may or may not be answered; what counts is that the good package is.
void TestBoxManners::badPackageHidesNoGoodOne()
{
    QFETCH(QByteArray, sent);
    QFETCH(QByteArray, answered);
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.write(sent);
    QTest::qWait(150);
    unit.write(QByteArray(1, '\0'));
    QTRY_COMPARE(box->state(), DecoderBox::Talks);
    QVERIFY(unit.singleBytes().endsWith(answered.right(1)));
}

void TestBoxManners::waitingReportTellsTheNewestState()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.forget();
    unit.setAcknowledgements(0);
    box->car()->setValue("doors.front_left", true);
    box->car()->setValue("climate.fan", 3);
    box->car()->setValue("climate.fan", 4);
    box->car()->setValue("climate.fan", 5);
    QTRY_COMPARE(int(unit.packages().size()), 1);
    unit.setAcknowledgements(-1);
    unit.write("\xff");
    QTRY_COMPARE(int(unit.packages().size()), 2);
    QTest::qWait(30);
    QCOMPARE(countFrames(unit, 0x28), 1);
    QCOMPARE(unit.frames().last(), raiseFrame("28 80 45 07 07 00"));
}

void TestBoxManners::heldKeyRepeats()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.forget();
    QVERIFY(box->pressKey("next"));
    QVERIFY(box->pressKey("next"));
    QTest::qWait(500);
    QVERIFY(box->releaseKey("next"));
    QTest::qWait(250);
    const QVector<QByteArray> expected = {raiseFrame("20 03 01"), raiseFrame("20 03 02"),
                                          raiseFrame("20 03 02"), raiseFrame("20 03 00")};
    QCOMPARE(unit.frames(), expected);
    const qint64 gap = unit.packages().at(2).ms - unit.packages().at(1).ms;
    QVERIFY2(gap > 180 && gap < 240, qPrintable(QString::number(gap)));
}

void TestBoxManners::keysKnobsAndTouchesThatDoNotExist()
{
    const auto box = openBox(toyota);
    QVERIFY(!box->pressKey("ejector_seat"));
    QVERIFY(!box->releaseKey("ejector_seat"));
    QVERIFY(!box->turnKnob("next", 1));
    QVERIFY(!box->touch(BoxSpeaker::TouchPressed, 1, 1));
}

void TestBoxManners::spoiltPackageIsSentAgain_data()
{
    QTest::addColumn<int>("fault");
    QTest::newRow("cut") << int(DecoderBox::CutNext);
    QTest::newRow("corrupt") << int(DecoderBox::CorruptNext);
}

void TestBoxManners::spoiltPackageIsSentAgain()
{
    QFETCH(int, fault);
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.setAcknowledgements(0);
    QStringList sent;
    connect(box.get(), &DecoderBox::logLine, this, [&sent](const QString &line) {
        if (line.contains("box>unit")) {
            sent << line.simplified().section(' ', 2, 2);
        }
    });
    box->spoilNext(DecoderBox::Fault(fault), 2);
    box->car()->setValue("doors.front_right", true);
    QTRY_COMPARE(int(sent.size()), 2);
    QVERIFY(sent.at(0) != "2e2401805a");
    QCOMPARE(sent.at(1), QString("2e2401805a"));
}

void TestBoxManners::silenceHoldsPackagesBack()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), toyotaStateReports);
    unit.forget();
    box->holdTongue(120);
    box->car()->setValue("doors.front_right", true);
    unit.write(raiseFrame("84 08 01"));
    QTest::qWait(70);
    QVERIFY(unit.packages().isEmpty());
    QVERIFY(unit.singleBytes().isEmpty());
    QTRY_COMPARE(int(unit.packages().size()), 1);
    QCOMPARE(box->observation("sound 0x08"), QString("0x01"));
}

void TestBoxManners::noiseIsTheSameEachRun()
{
    QByteArray noise[2];
    for (QByteArray &heard : noise) {
        const auto box = openBox(toyota);
        connect(box.get(), &DecoderBox::logLine, this,
                [&heard](const QString &line) { heard = line.mid(9).toLatin1(); });
        SimulatedUnit unit(*box);
        box->sendNoise(16);
    }
    QVERIFY(noise[0].size() > 32);
    QCOMPARE(noise[0], noise[1]);
}

void TestBoxManners::queueIsBounded()
{
    const auto box = openBox(toyota);
    SimulatedUnit unit(*box, 0);
    unit.writeReady();
    QTRY_COMPARE(int(unit.packages().size()), 1);
    int dropped = 0;
    connect(box.get(), &DecoderBox::logLine, this,
            [&dropped](const QString &line) { dropped += line.contains("too much to send"); });
    for (int i = 0; i < 400; ++i) {
        box->pressKey("next");
        box->releaseKey("next");
    }
    QVERIFY(dropped > 400 && dropped < 800);
}

void TestBoxManners::hostileUnitIsEndured_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("start bytes") << toyota << QByteArray(4096, '\x2E');
    QTest::newRow("lying lengths") << toyota << QByteArray("\x2E\x81\xFF").repeated(1300);
    QTest::newRow("start bytes, other frame") << 4 << QByteArray(4096, '\xF0');
    QTest::newRow("no lengths, other frame") << 4 << QByteArray("\xF0\x00", 2).repeated(2000);
}

// A hundred kilobytes of it costs little time, and the package behind it still counts.
void TestBoxManners::hostileUnitIsEndured()
{
    QFETCH(int, type);
    QFETCH(QByteArray, piece);
    const auto box = openBox(type);
    SimulatedUnit unit(*box);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 32; ++i) {
        unit.write(piece);
        QTest::qWait(1);
    }
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QTest::qWait(120);
    unit.write(type == toyota ? QByteArray::fromHex("2e8101017c") : QByteArray::fromHex("f0038101017c"));
    QTRY_COMPARE(box->state(), DecoderBox::Talks);
}

void TestBoxManners::linkIsReplacedAndRemoved()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("can");
    QVERIFY(QFile::link("/nowhere", link));
    QString error;
    {
        PseudoTerminal terminal;
        QVERIFY2(terminal.open(link, &error), qPrintable(error));
        QCOMPARE(QFile::symLinkTarget(link), terminal.devicePath());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size(),
                 1);
    }
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
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

QTEST_GUILESS_MAIN(TestBoxManners)
#include "tst_boxmanners.moc"
