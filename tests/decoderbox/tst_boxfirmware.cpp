// The XinHang box's side of a firmware update; steps out of order stand in boxes/xinhang.txt.

#include "decoderbox.h"
#include "simulatedunit.h"
#include "virtualmain.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QVector>

#include <numeric>

namespace {

const int XinHang = 4;
const int PacketSize = 128;

QByteArray hex32(quint32 number)
{
    return QByteArray::number(number, 16).rightJustified(8, '0');
}

QByteArray makeFirmware(int size)
{
    QByteArray result;
    for (int i = 0; i < size; ++i) {
        result += char(i * 7 + i / 256);
    }
    return result;
}

// Of the image that a box puts together from it.
QString hashOf(const QByteArray &firmware)
{
    const int packets = (int(firmware.size()) + PacketSize - 1) / PacketSize;
    const QByteArray image = firmware.leftJustified(packets * PacketSize, '\xFF');
    return QCryptographicHash::hash(image, QCryptographicHash::Sha256).toHex();
}

/// A unit that feeds a firmware file to a box, and notes what the box asks for. The first answer with packet
/// \a lost gets lost.
class Updater : public QObject
{
public:
    Updater(DecoderBox *box, const QByteArray &firmware, int lost)
        : m_unit(*box), m_firmware(firmware), m_lost(lost)
    {
        connect(&m_unit, &SimulatedUnit::arrived, this, [this](const QByteArray &frame) {
            if (quint8(frame.at(2)) == 0x08) {
                answer(frame.mid(3));
            }
        });
        box->start();
        m_unit.write(XinHangWire::frame("86 00 00"));
    }

    const QVector<quint32> &asked() const { return m_asked; }

private:
    void answer(const QByteArray &request)
    {
        if (request.at(0) == 1) {
            const quint32 count = quint32((m_firmware.size() + PacketSize - 1) / PacketSize);
            m_unit.write(XinHangWire::frame("86 01 00" + hex32(count)));
        } else if (request.at(0) == 2) {
            const quint32 number = request.mid(2, 4).toHex().toUInt(nullptr, 16);
            m_asked << number;
            const QByteArray packet = m_firmware.mid(int(number) * PacketSize, PacketSize);
            if (int(number) == m_lost) {
                m_lost = -1;
            } else if (!packet.isEmpty()) {
                m_unit.write(XinHangWire::frame("86 02 00" + hex32(number) +
                                                packet.leftJustified(PacketSize, '\xFF').toHex()));
            }
        } else if (request.at(0) == 3) {
            m_unit.write(XinHangWire::frame("86 03 00"));
        }
    }

    SimulatedUnit m_unit;
    QByteArray m_firmware;
    QVector<quint32> m_asked;
    int m_lost;
};

} // namespace

class TestBoxFirmware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updates_data();
    void updates();
    void hundredKilobytesTakeTenSeconds();
};

void TestBoxFirmware::updates_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("lost");
    QTest::addColumn<QVector<quint32>>("asked");
    const auto row = [](const char *name, const char *fault, int size, int lost,
                        const QVector<quint32> &asked) {
        QTest::newRow(name) << QString(fault) << size << lost << asked;
    };
    QVector<quint32> many(313);
    std::iota(many.begin(), many.end(), 0);
    row("empty file", "none", 0, -1, {});
    row("one packet", "none", 128, -1, {0});
    row("one packet and a byte", "none", 129, -1, {0, 1});
    row("more than 256 packets", "none", 40000, -1, many);
    row("the unit loses a packet", "none", 512, 1, {0, 1, 1, 2, 3});
    row("each packet twice", "twice", 512, -1, {0, 0, 1, 1, 2, 2, 3, 3});
    row("last packet first", "backwards", 512, -1, {3, 2, 1, 0});
    row("a packet beyond the count", "beyond", 512, -1, {0, 1, 4, 2, 3});
    row("asks no more", "stop", 512, -1, {0, 1});
}

void TestBoxFirmware::updates()
{
    QFETCH(QString, fault);
    QFETCH(int, size);
    QFETCH(int, lost);
    const QByteArray firmware = makeFirmware(size);
    const auto box = openBox(XinHang, false);
    box->car()->setValue("firmware.fault", fault);
    Updater updater(box.get(), firmware, lost);
    const bool stops = fault == "stop";
    QTRY_COMPARE(box->observation("firmware"), QString(stops ? "failed: stopped asking" : "complete"));
    QTEST(updater.asked(), "asked");
    QCOMPARE(box->observation("firmware sha256"), stops ? QString() : hashOf(firmware));
}

void TestBoxFirmware::hundredKilobytesTakeTenSeconds()
{
    const auto box = openBox(XinHang);
    QElapsedTimer clock;
    clock.start();
    Updater updater(box.get(), makeFirmware(100000), -1);
    // No QTRY: it sleeps while bytes arrive.
    QEventLoop loop;
    connect(box.get(), &DecoderBox::observed, &loop, [&loop](const QString &, const QString &value) {
        if (value == "complete") {
            loop.quit();
        }
    });
    loop.exec();
    QVERIFY2(clock.elapsed() > 9000 && clock.elapsed() < 10500, qPrintable(QString::number(clock.elapsed())));
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxFirmware)
#include "tst_boxfirmware.moc"
