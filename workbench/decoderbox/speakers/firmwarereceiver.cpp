#include "firmwarereceiver.h"

#include <QCryptographicHash>

namespace {

const int PacketSize = 128;
const int PacketHeader = 6;
const quint32 MostPackets = 64 * 1024 * 1024 / PacketSize;
const int PatienceMs = 1000;
const int MostRepeats = 60;

enum Step { Start = 0x00, Count = 0x01, Packet = 0x02, End = 0x03 };
enum Answer { ReadyForCount = 0x01, AskForPacket = 0x02, UpdateFinished = 0x03 };

quint32 bigEndian32(const BoxPackage &package, int from)
{
    quint32 value = 0;
    for (int i = from; i < from + 4; ++i) {
        value = value << 8 | package.d(i);
    }
    return value;
}

} // namespace

FirmwareReceiver::FirmwareReceiver(const SimulatedCar *car, QObject *parent) : QObject(parent), m_car(car)
{
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &FirmwareReceiver::askAgain);
}

QString FirmwareReceiver::take(const BoxPackage &package)
{
    switch (package.d(0)) {
    case Start:
        return takeStart();
    case Count:
        return takeCount(package);
    case Packet:
        return takePacket(package);
    case End:
        return "end of the firmware update";
    default:
        return "unknown step of a firmware update";
    }
}

QString FirmwareReceiver::takeStart()
{
    m_state = Ready;
    m_image.clear();
    m_patience.stop();
    Q_EMIT observed("firmware", "ready");
    Q_EMIT answerDue(QByteArray(1, char(ReadyForCount)), "ready for the firmware");
    return "start of a firmware update";
}

QString FirmwareReceiver::takeCount(const BoxPackage &package)
{
    const quint32 count = bigEndian32(package, 2);
    QString meaning = QString("firmware of %1 packets").arg(count);
    if (m_state != Ready || package.n() < PacketHeader) {
        return meaning + ", out of turn";
    }
    if (count > MostPackets) {
        fail("too large");
        return meaning;
    }
    m_state = Receiving;
    m_count = count;
    m_arrived = 0;
    m_isSecondAsk = false;
    m_hasAskedBeyond = false;
    m_isBackwards = m_car->text("firmware.fault") == "backwards";
    m_image.fill('\0', int(count) * PacketSize);
    askNext();
    return meaning;
}

QString FirmwareReceiver::takePacket(const BoxPackage &package)
{
    const quint32 number = bigEndian32(package, 2);
    QString meaning = QString("firmware packet %1").arg(number);
    if (m_state != Receiving || package.n() < PacketHeader + PacketSize || number != wanted()) {
        return meaning + ", not asked for";
    }
    m_image.replace(int(number) * PacketSize, PacketSize, package.data.mid(PacketHeader, PacketSize));
    m_repeats = 0;
    const bool asksTwice = m_car->text("firmware.fault") == "twice";
    m_isSecondAsk = asksTwice && !m_isSecondAsk;
    if (m_isSecondAsk) {
        ask(number);
        return meaning;
    }
    ++m_arrived;
    Q_EMIT observed("firmware", QString("receiving %1/%2").arg(m_arrived).arg(m_count));
    askNext();
    return meaning;
}

void FirmwareReceiver::askNext()
{
    const QString fault = m_car->text("firmware.fault");
    if (m_arrived == m_count) {
        finish();
    } else if (fault == "stop" && isHalfWay()) {
        fail("stopped asking");
    } else if (fault == "beyond" && isHalfWay() && !m_hasAskedBeyond) {
        m_hasAskedBeyond = true;
        ask(m_count);
    } else {
        ask(wanted());
    }
}

void FirmwareReceiver::ask(quint32 number)
{
    m_patience.start();
    QByteArray data(2, '\0');
    data[0] = char(AskForPacket);
    for (int shift = 24; shift >= 0; shift -= 8) {
        data += char(number >> shift);
    }
    Q_EMIT answerDue(data, QString("asks for firmware packet %1").arg(number));
}

void FirmwareReceiver::askAgain()
{
    if (++m_repeats > MostRepeats) {
        fail("the unit sends nothing");
    } else {
        ask(wanted());
    }
}

void FirmwareReceiver::finish()
{
    m_state = Complete;
    m_patience.stop();
    const QByteArray hash = QCryptographicHash::hash(m_image, QCryptographicHash::Sha256).toHex();
    Q_EMIT observed("firmware sha256", QString::fromLatin1(hash));
    Q_EMIT observed("firmware", "complete");
    Q_EMIT answerDue(QByteArray(1, char(UpdateFinished)), "firmware complete");
}

void FirmwareReceiver::fail(const QString &why)
{
    m_state = Failed;
    m_patience.stop();
    Q_EMIT observed("firmware", "failed: " + why);
}

quint32 FirmwareReceiver::wanted() const
{
    return m_isBackwards ? m_count - 1 - m_arrived : m_arrived;
}
