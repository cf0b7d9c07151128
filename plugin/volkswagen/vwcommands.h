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

/// How long a screen waits for the car's answer before it says so and asks once more, in milliseconds.
const int AnswerPatience = 2000;

} // namespace Vw

#endif // VWCOMMANDS_H
