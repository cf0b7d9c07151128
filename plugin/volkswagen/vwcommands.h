#ifndef VWCOMMANDS_H
#define VWCOMMANDS_H

#include <QtGlobal>

/// Commands of the box in a Volkswagen that adapter and screens share.
namespace Vw {

/// Sent by the unit.
enum SentCommand : quint8 { ReadyCommand = 0x81, DataRequestCommand = 0x90, WriteSettingCommand = 0xC6 };

/// Received, for the screens.
enum Reply : quint8 {
    SettingsReply = 0x40,
    TripReply = 0x50,
    StartStopReply = 0x60,
    ReportsReply = 0x61,
    ConsumersReply = 0x62,
    ServiceReply = 0x63,
    TyreStatesReply = 0x65,
    TyreWarningReply = 0x68
};

/// Replies that the box sends by itself, and that no screen asks for.
inline bool isUnaskedReport(quint8 command)
{
    return command == StartStopReply || command == ReportsReply || command == ConsumersReply ||
           command == TyreStatesReply || command == TyreWarningReply;
}

} // namespace Vw

#endif // VWCOMMANDS_H
