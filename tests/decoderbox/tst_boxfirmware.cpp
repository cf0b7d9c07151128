// The XinHang box's side of a firmware update.

#include "decoderbox.h"
#include "simulatedunit.h"
#include "speakers/xinhangspeaker.h"

#include <QCryptographicHash>
#include <QtTest>

namespace {

const int xinHang = 4;
const int packetSize = 128;

QByteArray number32(quint32 number)
{
    QByteArray result;
    for (int shift = 24; shift >= 0; shift -= 8) {
        result += char(number >> shift);
    }
    return result;
}

QByteArray makeFirmware(int size)
{
    QByteArray result;
    for (int i = 0; i < size; ++i) {
        result += char(i * 7 + i / 256);
    }
    return result;
}

QByteArray padded(const QByteArray &firmware)
{
    const int packets = (int(firmware.size()) + packetSize - 1) / packetSize;
    return firmware.leftJustified(packets * packetSize, '\xFF');
}

/// A unit that feeds a firmware file to a box, and notes what the box asks for.
class Updater : public QObject
{
public:
    Updater(DecoderBox *box, const QByteArray &firmware) : m_unit(*box), m_firmware(firmware)
    {
        connect(&m_unit, &SimulatedUnit::arrived, this, [this](const QByteArray &frame) {
            if (quint8(frame.at(2)) == 0x08) {
                answer(frame.mid(3));
            }
        });
        box->start();
    }

    void begin() { m_unit.write(xinHangFrame("86 00 00")); }
    /// From now on every packet of this number gets lost, -1 for none.
    void lose(int number) { m_lost = number; }

    const QVector<quint32> &asked() const { return m_asked; }
    bool isFinished() const { return m_isFinished; }

private:
    void answer(const QByteArray &request)
    {
        if (request.at(0) == 1) {
            const quint32 count = quint32((m_firmware.size() + packetSize - 1) / packetSize);
            m_unit.write(xinHangFrame(QByteArray::fromHex("860100") + number32(count)));
        } else if (request.at(0) == 2) {
            const quint32 number = request.mid(2, 4).toHex().toUInt(nullptr, 16);
            m_asked << number;
            const QByteArray packet = m_firmware.mid(int(number) * packetSize, packetSize);
            if (int(number) != m_lost && !packet.isEmpty()) {
                m_unit.write(xinHangFrame(QByteArray::fromHex("860200") + number32(number) +
                                          packet.leftJustified(packetSize, '\xFF')));
            }
        } else if (request.at(0) == 3) {
            m_isFinished = true;
            m_unit.write(xinHangFrame("86 03 00"));
        }
    }

    SimulatedUnit m_unit;
    QByteArray m_firmware;
    QVector<quint32> m_asked;
    int m_lost = -1;
    bool m_isFinished = false;
};

const FirmwareReceiver &receiver(const DecoderBox &box)
{
    return qobject_cast<XinHangSpeaker *>(box.speaker())->firmware();
}

} // namespace

class TestBoxFirmware : public QObject
{
    Q_OBJECT

private slots:
    void imageArrivesWhole_data();
    void imageArrivesWhole();
    void faults_data();
    void faults();
    void lostPacketIsAskedForAgain();
    void wrongStepsDoNoHarm_data();
    void wrongStepsDoNoHarm();
};

void TestBoxFirmware::imageArrivesWhole_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("empty file") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("one packet less a byte") << 127;
    QTest::newRow("one packet") << 128;
    QTest::newRow("one packet and a byte") << 129;
    QTest::newRow("more than 256 packets") << 40000;
}

void TestBoxFirmware::imageArrivesWhole()
{
    QFETCH(int, size);
    const QByteArray firmware = makeFirmware(size);
    const auto box = openBox(xinHang);
    Updater updater(box.get(), firmware);
    updater.begin();
    QTRY_VERIFY(updater.isFinished());
    QVERIFY(receiver(*box).isComplete());
    QCOMPARE(receiver(*box).image(), padded(firmware));
    QCOMPARE(box->observation("firmware"), QString("complete"));
    QCOMPARE(box->observation("firmware sha256").toLatin1(),
             QCryptographicHash::hash(padded(firmware), QCryptographicHash::Sha256).toHex());
}

void TestBoxFirmware::faults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QVector<quint32>>("asked");
    QTest::addColumn<QString>("observation");
    QTest::newRow("none") << "none" << QVector<quint32>{0, 1, 2, 3} << "complete";
    QTest::newRow("each packet twice") << "twice" << QVector<quint32>{0, 0, 1, 1, 2, 2, 3, 3} << "complete";
    QTest::newRow("last packet first") << "backwards" << QVector<quint32>{3, 2, 1, 0} << "complete";
    QTest::newRow("a packet beyond the count") << "beyond" << QVector<quint32>{0, 1, 4, 2, 3} << "complete";
    QTest::newRow("asks no more") << "stop" << QVector<quint32>{0, 1} << "failed: stopped asking";
}

void TestBoxFirmware::faults()
{
    QFETCH(QString, fault);
    QFETCH(QString, observation);
    const QByteArray firmware = makeFirmware(4 * packetSize);
    const auto box = openBox(xinHang);
    box->car()->setValue("firmware.fault", fault);
    Updater updater(box.get(), firmware);
    updater.begin();
    QTRY_COMPARE(box->observation("firmware"), observation);
    QTEST(updater.asked(), "asked");
    if (observation == "complete") {
        QCOMPARE(receiver(*box).image(), firmware);
    }
}

void TestBoxFirmware::lostPacketIsAskedForAgain()
{
    const QByteArray firmware = makeFirmware(3 * packetSize);
    const auto box = openBox(xinHang);
    Updater updater(box.get(), firmware);
    updater.lose(1);
    updater.begin();
    QTRY_COMPARE(updater.asked(), (QVector<quint32>{0, 1, 1}));
    updater.lose(-1);
    QTRY_VERIFY(updater.isFinished());
    QCOMPARE(receiver(*box).image(), firmware);
}

void TestBoxFirmware::wrongStepsDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("packages");
    QTest::addColumn<QString>("observation");
    QTest::newRow("count before start") << xinHangFrame("86 01 00 00 00 00 01") << "";
    QTest::newRow("packet before start")
        << xinHangFrame(QByteArray::fromHex("860200") + number32(0) + QByteArray(128, 'x')) << "";
    QTest::newRow("count cut short") << xinHangFrame("86 00 00") + xinHangFrame("86 01 00 00") << "ready";
    QTest::newRow("count beyond all memory")
        << xinHangFrame("86 00 00") + xinHangFrame("86 01 00 ff ff ff ff") << "failed: too large";
    QTest::newRow("packet cut short") << xinHangFrame("86 00 00") + xinHangFrame("86 01 00 00 00 00 01") +
                                             xinHangFrame("86 02 00 00 00 00 00 11 22")
                                      << "ready";
    QTest::newRow("packet that was not asked for")
        << xinHangFrame("86 00 00") + xinHangFrame("86 01 00 00 00 00 02") +
               xinHangFrame(QByteArray::fromHex("860200") + number32(1) + QByteArray(128, 'x'))
        << "ready";
    QTest::newRow("end without an update") << xinHangFrame("86 03 00") << "";
    QTest::newRow("unknown step") << xinHangFrame("86 09") << "";
}

void TestBoxFirmware::wrongStepsDoNoHarm()
{
    QFETCH(QByteArray, packages);
    const auto box = openBox(xinHang);
    SimulatedUnit unit(*box);
    box->start();
    unit.write(packages + xinHangFrame("89 01"));
    QTRY_COMPARE(box->observation("brightness"), QString("1"));
    QTEST(box->observation("firmware"), "observation");
    QVERIFY(!receiver(*box).isComplete());
}

QTEST_GUILESS_MAIN(TestBoxFirmware)
#include "tst_boxfirmware.moc"
