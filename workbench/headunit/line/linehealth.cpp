#include "linehealth.h"

#include "boxcatalog.h"
#include "portholder.h"

#include <cerrno>
#include <cstring>

namespace {

// All in microseconds.
const qint64 Second = 1000000;
const qint64 StrangeFor = 300000;        // a first byte may be the end of something
const qint64 RepetitionFor = 3 * Second; // how long a repetition is worth a word
const int FewStrangeBytes = 8;           // less is a disturbance

LineStatus::State stateOfError(int systemError)
{
    switch (systemError) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return LineStatus::NoDevice;
    case EACCES:
    case EPERM:
        return LineStatus::NoPermission;
    case EBUSY:
        return LineStatus::InUse;
    case ENOTTY:
        return LineStatus::NoTerminal;
    case EIO: // a pseudo-terminal without its far end
        return LineStatus::Lost;
    default:
        return LineStatus::CannotOpen;
    }
}

} // namespace

LineHealth::LineHealth() : m_fromBox(FrameFormat::raise()), m_fromUnit(FrameFormat::raise())
{
    m_status.state = SerialTap::isWired() ? LineStatus::NotOpened : LineStatus::NotWatched;
    SerialTap::add(this);
}

void LineHealth::setType(int type)
{
    if (const FrameFormat *format = BoxCatalog::frameOf(type)) {
        m_fromBox = LineFramer(*format);
        m_fromUnit = LineFramer(*format);
    }
}

bool LineHealth::sayHello()
{
    const FrameFormat &format = m_fromBox.format();
    const int ones = &format == &FrameFormat::xinHang() ? 2 : 1;
    return SerialTap::send(format.frame({0x81, QByteArray(ones, 1)}));
}

void LineHealth::opened(const QString &port, const PortSettings &, qint64)
{
    m_status.port = port;
    m_isOpen = true;
    m_wasLost = false;
    m_hasPackages = false;
    m_strangeBytes = 0;
    m_otherProcess.clear();
    m_lastLook = -1;
    m_fromBox.clear();
    m_fromUnit.clear();
    m_unanswered.clear();
}

void LineHealth::openFailed(const QString &port, int systemError, qint64)
{
    m_status.port = port;
    const LineStatus::State state = stateOfError(systemError);
    // Of an adapter that was pulled out nobody wants to hear that there is none.
    m_status.state = m_wasLost && state == LineStatus::NoDevice ? LineStatus::Lost : state;
    m_status.who.clear();
    if (m_status.state == LineStatus::NoPermission) {
        m_status.who = PortHolder::groupOf(port);
    } else if (m_status.state == LineStatus::InUse) {
        m_status.who = PortHolder::processesAt(port).value(0);
    } else if (m_status.state == LineStatus::CannotOpen) {
        m_status.who = QString::fromLocal8Bit(std::strerror(systemError));
    }
}

void LineHealth::closed(bool isLost, qint64)
{
    m_isOpen = false;
    m_wasLost = isLost;
    m_status.who.clear();
    m_status.state = isLost ? LineStatus::Lost : LineStatus::NotOpened;
}

void LineHealth::received(const QByteArray &bytes, qint64 at)
{
    m_strangeSince = m_strangeBytes == 0 ? at : m_strangeSince;
    m_strangeBytes += bytes.size();
    m_fromBox.feed(bytes, at);
    LinePiece piece;
    while (m_fromBox.next(&piece)) {
        switch (piece.kind) {
        case LinePiece::Package:
            takePackage(piece);
            break;
        case LinePiece::Answer:
            --m_strangeBytes;
            break;
        case LinePiece::BadPackage:
            ++m_status.badChecksums;
            break;
        case LinePiece::Skipped:
            m_status.skippedBytes += piece.bytes.size();
            break;
        }
    }
}

// A box that has its acknowledgement sends nothing twice without need: what comes again before it is a repetition.
void LineHealth::takePackage(const LinePiece &package)
{
    ++m_status.packages;
    m_hasPackages = true;
    m_strangeBytes = 0;
    m_lastPackage = package.microseconds;
    while (!m_packageTimes.empty() && m_packageTimes.front() <= package.microseconds - Second) {
        m_packageTimes.pop_front();
    }
    m_packageTimes.push_back(package.microseconds);
    if (m_fromBox.format().answers[0] == '\0') {
        return;
    }
    if (package.bytes == m_unanswered) {
        ++m_status.repetitions;
        m_lastRepetition = package.microseconds;
    } else {
        m_unanswered = package.bytes;
        m_unansweredSince = package.microseconds;
    }
}

void LineHealth::sent(const QByteArray &bytes, qint64 at)
{
    m_fromUnit.feed(bytes, at);
    LinePiece piece;
    while (m_fromUnit.next(&piece)) {
        if (piece.kind == LinePiece::Answer && !m_unanswered.isEmpty()) {
            m_status.acknowledgement = qMax<qint64>(0, at - m_unansweredSince);
            m_unanswered.clear();
        }
    }
}

LineStatus::State LineHealth::talkState(qint64 now) const
{
    if (m_boxManner != Speaks) {
        return m_boxManner == Stopped ? LineStatus::BoxStopped : LineStatus::BoxHushed;
    }
    const bool isStrange = m_strangeBytes >= FewStrangeBytes && now - m_strangeSince >= StrangeFor;
    const bool isSilent = m_hasPackages && now - m_lastPackage >= qint64(Patience) * 1000;
    if (!m_otherProcess.isEmpty() && (!m_hasPackages || isSilent)) {
        return LineStatus::InUse;
    }
    if (isStrange && (!m_hasPackages || now - m_lastPackage >= Second)) {
        return LineStatus::OtherRate;
    }
    if (!m_hasPackages) {
        return LineStatus::Waiting;
    }
    if (isSilent) {
        return LineStatus::Silent;
    }
    return m_lastRepetition >= 0 && now - m_lastRepetition < RepetitionFor ? LineStatus::Slow
                                                                           : LineStatus::Talking;
}

void LineHealth::lookForOthers(qint64 now)
{
    const bool isTalking = m_hasPackages && now - m_lastPackage < Second;
    if (!isTalking && (m_lastLook < 0 || now - m_lastLook >= Second)) {
        m_lastLook = now;
        m_otherProcess = PortHolder::processesAt(m_status.port).value(0);
    }
}

LineStatus LineHealth::status()
{
    const qint64 now = SerialTap::now();
    LineStatus status = m_status;
    if (status.port.isEmpty()) {
        status.port = m_port;
    }
    while (!m_packageTimes.empty() && m_packageTimes.front() <= now - Second) {
        m_packageTimes.pop_front();
    }
    status.packagesPerSecond = int(m_packageTimes.size());
    status.packageAge = m_lastPackage < 0 ? -1 : (now - m_lastPackage) / 1000;
    if (m_isOpen) {
        lookForOthers(now);
        status.state = talkState(now);
        status.who = status.state == LineStatus::InUse ? m_otherProcess : QString();
    }
    return status;
}
