#include "pcapngwriter.h"

#include "orblog.h"
#include "pcapng.h"

#include <QtEndian>

namespace {

const int MostStates = 60000; // bytes of them that one packet can carry
const quint8 MicrosecondResolution = 6;

template <typename Number>
QByteArray number(Number value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray padded(const QByteArray &bytes)
{
    return bytes + QByteArray(int((4 - bytes.size() % 4) % 4), '\0');
}

QByteArray option(quint16 code, const QByteArray &value)
{
    return value.isEmpty() ? QByteArray() : number(code) + number(quint16(value.size())) + padded(value);
}

QByteArray block(quint32 type, const QByteArray &body, const QByteArray &options)
{
    const QByteArray end = options.isEmpty() ? QByteArray() : number(quint32(Pcapng::EndOfOptions));
    const QByteArray length = number(quint32(12 + body.size() + options.size() + end.size()));
    return number(type) + length + body + options + end + length;
}

QByteArray timeText(qint64 microseconds)
{
    return number(quint32(quint64(microseconds) >> 32)) + number(quint32(quint64(microseconds)));
}

} // namespace

void PcapngWriter::putHeader(const LineLogHeader &header)
{
    m_start = header.start.isValid() ? header.start.toMSecsSinceEpoch() * 1000 : 0;
    const qint64 unknownLength = -1;
    put(block(Pcapng::Section,
              number(quint32(Pcapng::ByteOrder)) + number(quint16(1)) + number(quint16(0)) +
                  number(unknownLength),
              option(Pcapng::Comment, OrbLog::lines(header).trimmed().left(MostStates)) +
                  option(Pcapng::SectionApplication, "headunit convert")));
    put(block(Pcapng::Interface, number(Pcapng::User0) + number(quint16(0)) + number(quint32(0)),
              option(Pcapng::InterfaceName, header.port.toUtf8().left(MostStates)) +
                  option(Pcapng::InterfaceDescription, header.type.toUtf8().left(MostStates)) +
                  option(Pcapng::InterfaceResolution, QByteArray(1, char(MicrosecondResolution)))));
}

void PcapngWriter::putRecord(const LineRecord &record)
{
    m_packages.feed(record);
    putPieces();
}

void PcapngWriter::putEnd()
{
    m_packages.finish();
    putPieces();
    if (!m_states.isEmpty()) { // behind the last packet
        put(block(Pcapng::InterfaceStatistics, number(quint32(0)) + timeText(m_start),
                  option(Pcapng::Comment, m_states.trimmed())));
    }
}

void PcapngWriter::putPieces()
{
    for (LinePackages::Item item; m_packages.next(&item);) {
        if (item.record.kind != LineRecord::State) {
            putPacket(item.record);
            continue;
        }
        const QByteArray line = OrbLog::line(item.record);
        if (m_states.size() + line.size() > MostStates) {
            m_losses.add("states of the line, too many between two packets");
        } else {
            m_states += line;
        }
    }
}

void PcapngWriter::putPacket(const LineRecord &record)
{
    const quint32 size = quint32(record.bytes.size());
    const quint32 flags = (record.isTowardsUnit() ? Pcapng::Inbound : Pcapng::Outbound) |
                          (record.kind == LineRecord::Unframed ? Pcapng::NoStart : 0);
    put(block(Pcapng::EnhancedPacket,
              number(quint32(0)) + timeText(m_start + record.microseconds) + number(size) + number(size) +
                  padded(record.bytes),
              option(Pcapng::Comment, m_states.trimmed()) + option(Pcapng::PacketFlags, number(flags))));
    m_states.clear();
}
