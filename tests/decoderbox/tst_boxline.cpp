// The line between box and unit: how long bytes take on it, and what goes wrong there.

#include "boxcommand.h"
#include "boxtools.h"
#include "simulatedunit.h"
#include "virtualmain.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

namespace {

const int Toyota = 9;
const int XinHang = 4;
const QByteArray Door = "2e2401805a"; // the right front door opens

void order(DecoderBox *box, const QString &text)
{
    BoxCommand command;
    QString error;
    if (!command.parse(text, *box, &error)) {
        qFatal("%s", qPrintable(error));
    }
    command.carryOut(box);
}

/// All bytes that the unit's side of \a box gets, with the time at which they came.
class Listener
{
public:
    explicit Listener(DecoderBox *box)
    {
        m_clock.start();
        QObject::connect(box, &DecoderBox::logLine, &m_context, [this](const QString &line) {
            const QStringList words = line.simplified().split(' ');
            if (words.value(1) == "box>unit" && words.value(2).size() > 2) {
                sent << words.value(2).toLatin1();
                times << m_clock.elapsed();
            }
        });
    }

    QByteArrayList sent;
    QVector<qint64> times;

private:
    QObject m_context;
    QElapsedTimer m_clock;
};

} // namespace

class TestBoxLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesTakeTheirTime_data();
    void bytesTakeTheirTime();
    void unitIsHeardAtTheSameSpeed();
    void faultStrikesOnce_data();
    void faultStrikesOnce();
    void stallKeepsTheRestBack();
    void acknowledgementComesLate();
    void chancesComeFromTheSeed();
    void lineIsPulledOutAndPutBack();
    void updateIsCut();
};

void TestBoxLine::bytesTakeTheirTime_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isPaced");
    QTest::addColumn<int>("ms");
    QTest::newRow("38400") << Toyota << true << 1000;
    QTest::newRow("115200") << XinHang << true << 333;
    QTest::newRow("unpaced") << XinHang << false << 0;
}

void TestBoxLine::bytesTakeTheirTime()
{
    QFETCH(int, type);
    QFETCH(bool, isPaced);
    QFETCH(int, ms);
    const auto box = openBox(type, isPaced);
    SimulatedUnit unit(*box);
    QTRY_VERIFY(box->isUnitThere());
    QElapsedTimer clock;
    clock.start();
    box->sendRaw(QByteArray(3839, '\x55') + '\x66');
    QTRY_VERIFY(unit.singleBytes().endsWith('\x66'));
    QCOMPARE(int(unit.singleBytes().size()), 3840);
    QVERIFY2(clock.elapsed() >= ms - 1 && clock.elapsed() <= ms + 60,
             qPrintable(QString::number(clock.elapsed())));
}

// More than the line's driver holds: the unit has to wait with the rest.
void TestBoxLine::unitIsHeardAtTheSameSpeed()
{
    const auto box = openBox(Toyota);
    SimulatedUnit unit(*box);
    QTRY_VERIFY(box->isUnitThere());
    QElapsedTimer clock;
    clock.start();
    unit.write(QByteArray(20000, '\0') + RaiseWire::frame("81 01"));
    QTRY_COMPARE_WITH_TIMEOUT(box->state(), DecoderBox::Talks, 10000);
    QVERIFY2(clock.elapsed() >= 5208 && clock.elapsed() < 5300, qPrintable(QString::number(clock.elapsed())));
}

void TestBoxLine::faultStrikesOnce_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("arrives");
    QTest::newRow("flip") << "flip"
                          << "one bit";
    QTest::newRow("corrupt") << "corrupt"
                             << "one bit";
    QTest::newRow("drop") << "drop"
                          << "4 bytes";
    QTest::newRow("double") << "double"
                            << "6 bytes";
    QTest::newRow("cut") << "cut 2"
                         << "2 bytes";
    QTest::newRow("cut behind its end") << "cut 9"
                                        << "whole";
    QTest::newRow("garbage") << "garbage 7"
                             << "12 bytes, whole at the end";
    QTest::newRow("length") << "length"
                            << "other length";
}

void TestBoxLine::faultStrikesOnce()
{
    QFETCH(QString, fault);
    Conversation talk(Toyota);
    talk.unit.setAcknowledgements(0);
    Listener listener(talk.box.get());
    order(talk.box.get(), "fault " + fault);
    order(talk.box.get(), "doors.front_right on");
    QTRY_VERIFY(listener.sent.size() >= 2);
    QCOMPARE(listener.sent.at(1), Door); // sent again, since nobody understood
    const QByteArray first = QByteArray::fromHex(listener.sent.at(0));
    const QByteArray whole = QByteArray::fromHex(Door);
    int bits = 0;
    int lastPlace = -1;
    for (int i = 0; i < whole.size() && first.size() == whole.size(); ++i) {
        bits += int(qPopulationCount(quint8(first.at(i) ^ whole.at(i))));
        lastPlace = first.at(i) != whole.at(i) ? i : lastPlace;
    }
    QString arrives = first == whole   ? QString("whole")
                      : lastPlace == 2 ? QString("other length")
                      : bits == 1      ? QString("one bit")
                                       : QString("%1 bytes").arg(first.size());
    arrives += first.size() > 6 && first.endsWith(whole) ? ", whole at the end" : "";
    if (QString(QTest::currentDataTag()) != "length" && bits == 1) {
        arrives = "one bit"; // also in the length byte
    }
    QTEST(arrives, "arrives");
}

void TestBoxLine::stallKeepsTheRestBack()
{
    Conversation talk(Toyota);
    order(talk.box.get(), "fault stall 300");
    order(talk.box.get(), "doors.front_right on");
    QTest::qWait(290);
    QVERIFY(talk.unit.packages().isEmpty());
    QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>{QByteArray::fromHex(Door)});
    QTest::qWait(200);
    QCOMPARE(int(talk.unit.packages().size()), 1); // the box waited for its own pause
}

void TestBoxLine::acknowledgementComesLate()
{
    Conversation talk(Toyota);
    order(talk.box.get(), "fault late 250");
    talk.unit.write(RaiseWire::frame("84 08 01") + RaiseWire::frame("84 08 02"));
    QTest::qWait(200);
    QCOMPARE(talk.unit.singleBytes(), QByteArray("\xff")); // the second one's
    QTRY_COMPARE(talk.unit.singleBytes(), QByteArray("\xff\xff"));
}

void TestBoxLine::chancesComeFromTheSeed()
{
    QByteArrayList sent[3];
    for (int run = 0; run < 3; ++run) {
        Conversation talk(Toyota);
        Listener listener(talk.box.get());
        talk.box->faults()->setSeed(run == 2 ? 8 : 7);
        for (const char *fault : {"flip 20%", "double 20%", "garbage 5 10.5%", "length 5%"}) {
            order(talk.box.get(), QString("fault ") + fault);
        }
        for (int i = 0; i < 50; ++i) {
            order(talk.box.get(), i % 2 ? "doors.front_right off" : "doors.front_right on");
            QTest::qWait(15);
        }
        order(talk.box.get(), "fault none");
        sent[run] = listener.sent;
    }
    QCOMPARE(sent[0], sent[1]);
    QVERIFY(sent[0] != sent[2]);
    const int good = int(sent[0].count(Door));
    QVERIFY2(good > 0 && good < 25, qPrintable(QString::number(good)));
}

void TestBoxLine::lineIsPulledOutAndPutBack()
{
    QTemporaryDir folder;
    const QString link = folder.filePath("can");
    const auto box = makeBox(Toyota);
    QString error;
    QVERIFY2(box->open(link, &error), qPrintable(error));
    {
        SimulatedUnit unit(*box);
        unit.writeReady();
        QTRY_COMPARE(box->state(), DecoderBox::Talks);
        order(box.get(), "fault unplug 500");
        QTRY_COMPARE(box->state(), DecoderBox::WaitsForReady);
        QVERIFY(!box->isPlugged() && !QFileInfo(link).isSymLink() && box->portPath().isEmpty());
        order(box.get(), "raw 00"); // into nothing
    }
    QTRY_VERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(QFile::symLinkTarget(link), box->portPath());
    SimulatedUnit back(*box);
    back.writeReady();
    QTRY_COMPARE(box->state(), DecoderBox::Talks);
}

void TestBoxLine::updateIsCut()
{
    QTemporaryDir folder;
    const auto box = makeBox(XinHang);
    QString error;
    QVERIFY(box->open(folder.filePath("can"), &error));
    order(box.get(), "fault update 2");
    SimulatedUnit unit(*box);
    box->start();
    unit.write(XinHangWire::frame("86 00 00"));
    unit.write(XinHangWire::frame("86 01 00 00000003"));
    for (const char *number : {"00000000", "00000001", "00000002"}) {
        QVERIFY(box->isPlugged());
        unit.write(XinHangWire::frame(QByteArray("86 02 00") + number + QByteArray(256, '0')));
        QTest::qWait(50);
        if (!box->isPlugged()) {
            break;
        }
    }
    QCOMPARE(box->observation("firmware"), QString("receiving 2/3"));
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxLine)
#include "tst_boxline.moc"
