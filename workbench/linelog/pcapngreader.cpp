#include "pcapngreader.h"

#include "logtext.h"
#include "orblog.h"
#include "pcapng.h"

#include <QtEndian>

namespace {

const quint32 LongestBlock = 1024 * 1024; // that is read; a longer one is passed over
const int LongestPacket = 64 * 1024;
const int MostInterfaces = 1024;
const int BlockOverhead = 12;
const qint64 EarliestDate = 100000000; // seconds; earlier times count from the log's start

qint64 ticksPerSecond(quint8 resolution)
{
    const int exponent = resolution & 0x7F;
    if (resolution & 0x80) {
        return exponent < 62 ? qint64(1) << exponent : 0;
    }
    qint64 ticks = 1;
    for (int i = 0; i < exponent && ticks > 0; ++i) {
        ticks = exponent > 18 ? 0 : ticks * 10;
    }
    return ticks;
}

} // namespace

bool PcapngReader::read(LineRecord *record)
{
    while (m_records.isEmpty()) {
        ++m_block;
        switch (readBlock()) {
        case Took:
            break;
        case Broken:
            skip("blocks that no such file has; nothing behind them was read");
            return false;
        case Ended:
            return false;
        }
    }
    *record = m_records.dequeue();
    return true;
}

PcapngReader::Outcome PcapngReader::readBlock()
{
    QByteArray head;
    if (!readExactly(8, &head)) {
        return head.isEmpty() ? Ended : cut();
    }
    QByteArray body;
    const bool isSection = u32(head, 0) == Pcapng::Section;
    if (isSection) {
        if (!readExactly(4, &body)) {
            return cut();
        }
        m_isBigEndian = qFromBigEndian<quint32>(body.constData()) == Pcapng::ByteOrder;
        if (u32(body, 0) != Pcapng::ByteOrder) {
            return Broken;
        }
    }
    const quint32 length = u32(head, 4);
    const quint32 fewest = BlockOverhead + quint32(body.size());
    if (m_block == 1 && !isSection) {
        return Broken;
    }
    if (length < fewest || length % 4 != 0) {
        return Broken;
    }
    if (length > LongestBlock) {
        skip("blocks of more than 1 MiB");
        return discard(qint64(length) - fewest + 4) ? Took : cut();
    }
    QByteArray rest;
    if (!readExactly(int(length - fewest + 4), &rest)) {
        return cut();
    }
    if (u32(rest, int(rest.size()) - 4) != length) {
        return Broken;
    }
    body += rest.left(rest.size() - 4);
    take(u32(head, 0), body);
    return Took;
}

// As far as there are bytes; false when they are not \a size.
bool PcapngReader::readExactly(int size, QByteArray *bytes)
{
    *bytes = device()->read(size);
    return bytes->size() == size;
}

bool PcapngReader::discard(qint64 size)
{
    while (size > 0) {
        const qint64 count = device()->read(qMin(size, qint64(LongestPacket))).size();
        if (count == 0) {
            return false;
        }
        size -= count;
    }
    return true;
}

PcapngReader::Outcome PcapngReader::cut()
{
    skip("last block, cut in the middle");
    return Ended;
}

void PcapngReader::take(quint32 type, const QByteArray &body)
{
    switch (type) {
    case Pcapng::Section:
        takeSection(body);
        break;
    case Pcapng::Interface:
        takeInterface(body);
        break;
    case Pcapng::EnhancedPacket:
        takePacket(body);
        break;
    case Pcapng::SimplePacket:
        skip("packets without a time and a direction");
        break;
    case Pcapng::InterfaceStatistics:
        for (const Option &option : options(body, 12)) {
            takeComment(option);
        }
        break;
    default:
        break;
    }
}

void PcapngReader::takeSection(const QByteArray &body)
{
    m_interfaces.clear();
    for (const Option &option : options(body, 16)) {
        if (option.code != Pcapng::Comment) {
            continue;
        }
        for (const QByteArray &line : option.value.split('\n')) {
            OrbLog::read(line.trimmed(), &m_header);
        }
    }
    if (m_header.start.isValid()) {
        m_clock.setStart(m_header.start);
    }
}

void PcapngReader::takeInterface(const QByteArray &body)
{
    Interface interface = {u16(body, 0), 1000000, 0};
    for (const Option &option : options(body, 8)) {
        if (option.code == Pcapng::InterfaceResolution && option.value.size() == 1) {
            interface.perSecond = ticksPerSecond(quint8(option.value.at(0)));
        } else if (option.code == Pcapng::InterfaceTimeOffset && option.value.size() == 8) {
            interface.offset = qint64(u64(option.value, 0));
        }
    }
    if (m_interfaces.size() < MostInterfaces) {
        m_interfaces << interface;
    }
}

void PcapngReader::takePacket(const QByteArray &body)
{
    const quint32 number = u32(body, 0);
    const quint32 size = u32(body, 12);
    if (body.size() < 20 || size > quint32(body.size() - 20) || number >= quint32(m_interfaces.size())) {
        skip("packets that do not fit their block or have no interface");
        return;
    }
    const Interface &interface = m_interfaces.at(int(number));
    if (interface.linkType < Pcapng::User0 || interface.linkType > Pcapng::User15) {
        skip("packets of another link type than USER0 to USER15");
        return;
    }
    quint32 flags = 0;
    for (const Option &option : options(body, 20 + (int(size) + 3) / 4 * 4)) {
        takeComment(option);
        if (option.code == Pcapng::PacketFlags && option.value.size() == 4) {
            flags = u32(option.value, 0);
        }
    }
    if (size == 0 || size > LongestPacket) {
        skip("packets without bytes or of more than 64 KiB");
        return;
    }
    LineRecord record;
    record.microseconds = m_clock.at(stamp(interface, quint64(u32(body, 4)) << 32 | u32(body, 8)));
    record.bytes = body.mid(20, int(size));
    record.kind = (flags & Pcapng::DirectionMask) == Pcapng::Outbound ? LineRecord::ToBox
                  : (flags & Pcapng::NoStart)                         ? LineRecord::Unframed
                                                                      : LineRecord::ToUnit;
    m_header.start = m_clock.start();
    m_records.enqueue(record);
}

// States of the line stand in comments as lines of our own log.
void PcapngReader::takeComment(const Option &option)
{
    if (option.code != Pcapng::Comment) {
        return;
    }
    for (const QByteArray &line : option.value.split('\n')) {
        LineRecord state;
        if (OrbLog::read(line.trimmed(), &state) && state.kind == LineRecord::State) {
            m_records.enqueue(state);
        }
    }
}

TimeStamp PcapngReader::stamp(const Interface &interface, quint64 ticks)
{
    TimeStamp stamp;
    const quint64 perSecond = quint64(interface.perSecond);
    if (perSecond == 0 || ticks / perSecond > quint64(LogText::LatestSecond) ||
        qAbs(interface.offset / 2) > LogText::LatestSecond / 2) {
        return stamp;
    }
    const qint64 seconds = qint64(ticks / perSecond) + interface.offset;
    const quint64 rest = ticks % perSecond;
    const quint64 microseconds =
        perSecond < 1000000000000 ? rest * 1000000 / perSecond : rest / (perSecond / 1000000);
    stamp.kind = seconds < EarliestDate ? TimeStamp::Offset : TimeStamp::Date;
    stamp.microseconds = qMax(qint64(0), seconds) * 1000000 + qMin(qint64(microseconds), qint64(999999));
    return stamp;
}

QVector<PcapngReader::Option> PcapngReader::options(const QByteArray &body, int at) const
{
    QVector<Option> options;
    while (at + 4 <= body.size()) {
        const quint16 code = u16(body, at);
        const int size = u16(body, at + 2);
        if (code == Pcapng::EndOfOptions || at + 4 + size > body.size()) {
            break;
        }
        options.append({code, body.mid(at + 4, size)});
        at += 4 + (size + 3) / 4 * 4;
    }
    return options;
}

// Numbers of the section's byte order; 0 past the end.
quint16 PcapngReader::u16(const QByteArray &bytes, int at) const
{
    const uchar *const from = reinterpret_cast<const uchar *>(bytes.constData()) + at;
    return at + 2 > bytes.size() ? 0
           : m_isBigEndian       ? qFromBigEndian<quint16>(from)
                                 : qFromLittleEndian<quint16>(from);
}

quint32 PcapngReader::u32(const QByteArray &bytes, int at) const
{
    const uchar *const from = reinterpret_cast<const uchar *>(bytes.constData()) + at;
    return at + 4 > bytes.size() ? 0
           : m_isBigEndian       ? qFromBigEndian<quint32>(from)
                                 : qFromLittleEndian<quint32>(from);
}

quint64 PcapngReader::u64(const QByteArray &bytes, int at) const
{
    const quint64 first = u32(bytes, at);
    const quint64 second = u32(bytes, at + 4);
    return m_isBigEndian ? first << 32 | second : second << 32 | first;
}
