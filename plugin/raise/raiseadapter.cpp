#include "raiseadapter.h"

#include "carvalues.h"
#include "keysource.h"
#include "unitlink.h"

#include "orbapplication.h"

#include <QTimer>

#include <qextserialport.h>

#include <algorithm>

namespace {

const char Acknowledgement = '\xFF';
const quint8 ReadyCommand = 0x81;
const int ReadyInterval = 200; // ms
const int WriteInterval = 30;  // ms that the boxes want between two packages
const unsigned long AppStateMask = 4;

// A box repeats an unanswered package three times, 100 ms apart, and then falls silent until it hears a ready. Four
// of a kind at once are what it said while the unit's thread stood still.
const int RepetitionTime = 50;     // ms, in which they are read
const int ReminderInterval = 1000; // ms, at least
const qint64 LongAgo = -ReminderInterval;

} // namespace

RaiseAdapter::RaiseAdapter()
    : FramedAdapter<RaiseFrame>(nullptr)
    , m_periodicTimer(nullptr)
    , m_readyTimer(nullptr)
    , m_wheelKeys(nullptr)
    , m_panelKeys(nullptr)
    , m_settingCommand(0)
    , m_requestCommand(0)
    , m_clockCommand(0)
    , m_modeCommand(0)
    , m_modeLength(0)
    , m_modeCodes(nullptr)
    , m_modeCount(0)
    , m_values(nullptr)
    , m_valueCount(0)
    , m_handsOnUnknown(false)
    , m_appState(false)
    , m_lastReminder(LongAgo)
{
    std::fill(m_lastArrivals, m_lastArrivals + MostRepetitions, LongAgo);
    m_clock.start();
    m_lastPackage.reserve(Framing::overhead<RaiseFrame>() + 255);
    setWritePackageIntval(WriteInterval);
}

QByteArray RaiseAdapter::makeCanBusProtocol(unsigned short cmd, const unsigned char *data, unsigned char len)
{
    return Framing::makePackage<RaiseFrame>(quint8(cmd & 0xFF), data, len);
}

bool RaiseAdapter::getPortSettings(PortSettings &settings)
{
    setLine(settings, BAUD38400, -1);
    return true;
}

// ---------------------------------------------------------------------------------------------- received

void RaiseAdapter::onReadDeviceDatas()
{
    CanBusAdapter::onReadDeviceDatas();
}

void RaiseAdapter::onRecvMcuProtocol(const QByteArray &byteArray)
{
    // The box waits 10 ms for this byte: it goes first, and past the queue.
    static const QByteArray acknowledgement(1, Acknowledgement);
    writeDatas_direct(acknowledgement);
    noteRepetition(byteArray);
    const PackageView package = viewOf(byteArray);
    if (dispatch(package)) {
        tellValues(package);
    }
}

void RaiseAdapter::noteRepetition(const QByteArray &package)
{
    const qint64 now = m_clock.elapsed();
    if (package != m_lastPackage) {
        m_lastPackage.resize(package.size());
        std::copy(package.constBegin(), package.constEnd(), m_lastPackage.begin());
        std::fill(m_lastArrivals, m_lastArrivals + MostRepetitions, LongAgo);
    } else if (now - m_lastArrivals[0] <= RepetitionTime && now - m_lastReminder >= ReminderInterval) {
        m_lastReminder = now;
        onSendReadyTimer();
    }
    std::copy(m_lastArrivals + 1, m_lastArrivals + MostRepetitions, m_lastArrivals);
    m_lastArrivals[MostRepetitions - 1] = now;
}

void RaiseAdapter::onRecvAppProtocol(const QByteArray &) {}

void RaiseAdapter::onKeyEvent(unsigned int, bool, bool) {}

void RaiseAdapter::orbAppStateChange(unsigned long state, unsigned long mask)
{
    if (mask == AppStateMask) {
        m_appState = state & AppStateMask;
    }
}

void RaiseAdapter::onOtherPackage(const PackageView &package)
{
    const CommandTable table = commands();
    bool isKnown = false; // and too short
    for (int i = 0; i < table.count; ++i) {
        isKnown = isKnown || table.rows[i].command == package.command();
    }
    if (m_handsOnUnknown && !isKnown) {
        onScreenData(package);
    }
}

void RaiseAdapter::onScreenData(const PackageView &d)
{
    Q_EMIT recvCanDatas(d.command(), d.data(), quint8(d.n()));
}

void RaiseAdapter::tellValues(const PackageView &package)
{
    for (int i = 0; i < m_valueCount; ++i) {
        if (m_values[i].isIn(package)) {
            tellValue(m_values[i].name(), m_values[i].read(package));
        }
    }
}

void RaiseAdapter::tellValue(const char *name, const QVariant &value)
{
    if (property(name) != value) {
        setProperty(name, value);
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

void RaiseAdapter::onPanelKey(const PackageView &d)
{
    processPanelKey(d.data());
}

void RaiseAdapter::processPanelKey(const unsigned char *d)
{
    if (m_panelKeys) {
        m_panelKeys->report(d[0], d[1]);
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

void RaiseAdapter::onSignAndSizeSteeringAngle(const PackageView &d)
{
    // d[0]: 7 right, 6..0 high bits; d[1] low byte. The range is nominal.
    const int size = d.u16be(0) & 0x7FFF;
    const float angle = float(d.bit(0, 7) ? size : -size) / 5400.0f * 40.0f;
    UnitLink::sendSteeringAngle(qBound(-40.0f, angle, 40.0f));
}

// ---------------------------------------------------------------------------------------------- sent

void RaiseAdapter::writeCanBusData(unsigned char cmd, const unsigned char *data, unsigned char len)
{
    const QByteArray package = makeCanBusProtocol(cmd, data, len);
    writeOrKeep(package, kindSize(cmd, int(package.size())));
}

// Bytes of a package of \a size that tell what it is about.
int RaiseAdapter::kindSize(quint8 command, int size) const
{
    if (command == ReadyCommand) {
        return 0; // the greeting says it again
    }
    if (command == m_requestCommand) {
        return size;
    }
    const int header = RaiseFrame::DataAt;
    const bool isWhole = command == m_modeCommand || command == m_clockCommand;
    const bool hasItem = !isWhole && size > header + 2; // item, value, checksum
    return hasItem ? header + 1 : header;
}

void RaiseAdapter::writeBytes(quint8 command, const QByteArray &data)
{
    writeCanBusData(command, reinterpret_cast<const unsigned char *>(data.constData()),
                    static_cast<unsigned char>(qMin<int>(int(data.size()), 0xFF)));
}

void RaiseAdapter::writePair(quint8 command, quint8 first, quint8 second)
{
    const unsigned char data[] = {first, second};
    writeCanBusData(command, data, sizeof data);
}

void RaiseAdapter::syncData(unsigned char type, unsigned char param)
{
    if (m_requestCommand != 0) {
        writePair(m_requestCommand, type, param);
    }
}

// Only a car with screens of settings has pages to ask for.
void RaiseAdapter::syncSettingData(unsigned char) {}

void RaiseAdapter::writeSettingData(unsigned char item, unsigned char value)
{
    if (m_settingCommand != 0) {
        writePair(m_settingCommand, item, value);
    }
}

void RaiseAdapter::startModeReport(quint8 command, quint8 length, const ModeCode *rows, int count)
{
    m_modeCommand = command;
    m_modeLength = length;
    m_modeCodes = rows;
    m_modeCount = count;
    connect(OrbApplication::instance(), SIGNAL(modeAppChanged(uint, uint)), this,
            SLOT(onModeAppChange(uint, uint)), Qt::UniqueConnection);
}

void RaiseAdapter::onModeAppChange(uint mode, uint)
{
    if (m_modeCommand == 0) {
        return;
    }
    QByteArray data(m_modeLength, '\0');
    for (int i = 0; i < m_modeCount; ++i) {
        const ModeCode &row = m_modeCodes[i];
        if (row.mode == mode) {
            const int length = row.length == 0 ? int(m_modeLength) : row.length;
            const char bytes[] = {char(row.first), char(row.second)};
            data = QByteArray(bytes, sizeof bytes).leftJustified(length, char(row.rest), true);
        }
    }
    writeBytes(m_modeCommand, data);
}

void RaiseAdapter::setKeys(KeySource *wheel, KeySource *panel)
{
    m_wheelKeys = wheel;
    m_panelKeys = panel;
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
