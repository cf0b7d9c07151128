#ifndef VWCHOICEMEMORY_H
#define VWCHOICEMEMORY_H

#include "orbiniconfig.h"

namespace Vw {

class PageState;

/// What the driver chose last for the items that the car takes and never reports. Kept in "carsetting.ini",
/// where the unit's other car settings are, so that a restart does not lose it.
class ChoiceMemory
{
public:
    ChoiceMemory();

    /// Gives \a state every choice that is kept. A stored text that is no value of its item counts as none.
    void recall(PageState &state) const;

    /// Keeps the choice; an item that the car reports is left to the car.
    void keep(int item, int value);

    /// The car was told to do \a action: forgets, here and in \a state, what that undoes.
    void forgetAfter(int action, PageState &state);

private:
    OrbIniConfig m_config;
};

} // namespace Vw

#endif // VWCHOICEMEMORY_H
