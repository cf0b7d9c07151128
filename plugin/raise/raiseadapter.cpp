#include "raiseadapter.h"

#include "framing.h"
#include "keysource.h"
#include "unitlink.h"

#include <QTimer>

#include <qextserialport.h>

#include <cstring>

namespace {

// Frame: start byte, command, N, N data bytes, checksum over command, N and data.
const char StartByte = 0x2E;
enum Offset { CommandAt = 1, LengthAt = 2, DataAt = 3 };
const int Overhead = 4; // bytes of a frame without data

const char Acknowledgement = '\xFF';
const quint8 ReadyCommand = 0x81;
const int ReadyInterval = 200; // ms
const int WriteInterval = 30;  // ms that the boxes want between two packages
const unsigned long AppStateMask = 4;

} // namespace

RaiseAdapter::RaiseAdapter()
    : CanBusAdapter(nullptr)
    , m_periodicTimer(nullptr)
    , m_readyTimer(nullptr)
    , m_wheelKeys(nullptr)
    , m_appState(false)
{
    setWritePackageIntval(WriteInterval);
}

// ---------------------------------------------------------------------------------------------- framing

int RaiseAdapter::getPackageMinSize()
{
    return Overhead;
}

int RaiseAdapter::findPackageStartSig(int from)
{
    return Framing::findStart(recvBuffer, from, StartByte);
}

int RaiseAdapter::getPackageSize(int start)
{
    return quint8(recvBuffer.at(start + LengthAt)) + Overhead;
}

bool RaiseAdapter::isAvaliablePackage(int start, int last, int size)
{
    return getPackageCheckSum(recvBuffer, start + CommandAt, size - 2) == quint8(recvBuffer.at(last));
}

unsigned char RaiseAdapter::getPackageCheckSum(const QByteArray &data, int start, int len)
{
    return Framing::checkSum(data, start, len);
}

QByteArray RaiseAdapter::makeCanBusProtocol(unsigned short cmd, const unsigned char *data, unsigned char len)
{
    QByteArray frame(len + Overhead, '\0');
    frame[0] = StartByte;
    frame[CommandAt] = char(cmd & 0xFF);
    frame[LengthAt] = char(len);
    if (data) {
        memcpy(frame.data() + DataAt, data, len);
    }
    frame[frame.size() - 1] = char(getPackageCheckSum(frame, CommandAt, frame.size() - 2));
    return frame;
}

bool RaiseAdapter::getPortSettings(PortSettings &settings)
{
    setLine(settings, BAUD38400, -1);
    return true;
}

// ---------------------------------------------------------------------------------------------- receiving

void RaiseAdapter::onReadDeviceDatas()
{
    CanBusAdapter::onReadDeviceDatas();
}

void RaiseAdapter::onRecvMcuProtocol(const QByteArray &byteArray)
{
    // The box waits 10 ms for this byte: it goes first, and past the queue.
    writeDatas_direct(QByteArray(1, Acknowledgement));

    const quint8 n = byteArray.size() > LengthAt ? quint8(byteArray.at(LengthAt)) : 0;
    const PackageView package(byteArray, CommandAt, DataAt, n);
    const CommandTable table = commands();
    for (int i = 0; i < table.count; ++i) {
        const Command &row = table.rows[i];
        if (row.command == package.command() && package.n() >= row.minimumN) {
            (this->*row.handler)(package);
            return;
        }
    }
    onOtherPackage(package);
}

RaiseAdapter::CommandTable RaiseAdapter::commands() const
{
    const CommandTable none = {nullptr, 0};
    return none;
}

void RaiseAdapter::onOtherPackage(const PackageView &) {}

void RaiseAdapter::onRecvAppProtocol(const QByteArray &) {}

void RaiseAdapter::onKeyEvent(unsigned int, bool, bool) {}

void RaiseAdapter::orbAppStateChange(unsigned long state, unsigned long mask)
{
    if (mask == AppStateMask) {
        m_appState = state & AppStateMask;
    }
}

void RaiseAdapter::onVersion(const PackageView &d)
{
    if (m_readyTimer) {
        m_readyTimer->stop();
    }
    UnitLink::publishVersion(d.bytes());
}

void RaiseAdapter::onStatus(const PackageView &d)
{
    // d[0]: 7 status bit 1, 6 status bit 0, 5 status bit 3, 4 status bit 2, 3..0 not used
    const int status = d.bit(0, 6) | d.bit(0, 7) << 1 | d.bit(0, 4) << 2 | d.bit(0, 5) << 3;
    UnitLink::sendCarData(UnitLink::DoorStatus, static_cast<unsigned int>(status));
}

void RaiseAdapter::onSteeringWheelKey(const PackageView &d)
{
    processSWCKey(d.data());
}

void RaiseAdapter::processSWCKey(const unsigned char *d)
{
    if (m_wheelKeys) {
        m_wheelKeys->report(d[0], d[1]);
    }
}

unsigned int RaiseAdapter::currentKey() const
{
    return m_wheelKeys ? m_wheelKeys->currentKey() : static_cast<unsigned int>(CarKeys::NoKey);
}

void RaiseAdapter::onSignedSteeringAngle(const PackageView &d)
{
    UnitLink::sendSteeringAngle(float(d.s16le(0)) / 4608.0f * 40.0f);
}

// ---------------------------------------------------------------------------------------------- sending

void RaiseAdapter::writeCanBusData(unsigned char cmd, const unsigned char *data, unsigned char len)
{
    writeDatas(makeCanBusProtocol(cmd, data, len));
}

void RaiseAdapter::setPeriodicTimer(int milliseconds, const char *slot)
{
    m_periodicTimer = new QTimer(this);
    m_periodicTimer->setInterval(milliseconds);
    connect(m_periodicTimer, SIGNAL(timeout()), this, slot);
}

void RaiseAdapter::setReadyTimer()
{
    setPeriodicTimer(ReadyInterval, SLOT(onSendReadyTimer()));
    m_readyTimer = m_periodicTimer;
}

void RaiseAdapter::onSendReadyTimer()
{
    const unsigned char listening[] = {0x01};
    writeCanBusData(ReadyCommand, listening, sizeof listening);
}

void RaiseAdapter::sendReady(int times)
{
    for (int i = 0; i < times; ++i) {
        onSendReadyTimer();
    }
}
