#ifndef UNITKEYS_H
#define UNITKEYS_H

#include <Qt>

/// Key codes that the unit knows besides Qt's own names.
namespace UnitKeys {

const int ModeSwitch = 0x0100117E;
const int TrackPrevious = 0x010000A7; // sent instead of previous and next where those mean something else
const int TrackNext = 0x010000A8;

} // namespace UnitKeys

#endif // UNITKEYS_H
