#ifndef PCAPNG_H
#define PCAPNG_H

#include <QtGlobal>

/// Numbers of the pcapng file format. Ours have packages as packets of link type USER0, the direction in the packet's
/// flags; docs/line-log.md says what becomes of header and states.
namespace Pcapng {

enum BlockType : quint32 {
    Section = 0x0A0D0D0A, // reads the same in either byte order
    Interface = 1,
    SimplePacket = 3,
    InterfaceStatistics = 5,
    EnhancedPacket = 6
};
enum OptionCode : quint16 {
    EndOfOptions = 0,
    Comment = 1,
    PacketFlags = 2,
    InterfaceName = 2,
    InterfaceDescription = 3,
    SectionApplication = 4,
    InterfaceResolution = 9,
    InterfaceTimeOffset = 14
};

const quint32 ByteOrder = 0x1A2B3C4D;
const quint16 User0 = 147; // link types for users
const quint16 User15 = 162;

const quint32 DirectionMask = 3; // of a packet's flags
const quint32 Inbound = 1;
const quint32 Outbound = 2;
const quint32 NoStart = 1U << 29; // the error of a packet that begins as none does

} // namespace Pcapng

#endif // PCAPNG_H
