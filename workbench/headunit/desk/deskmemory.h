#ifndef DESKMEMORY_H
#define DESKMEMORY_H

#include "desksettings.h"

class DeskWindow;

/// What the desk remembers from one start to the next, in the user's configuration folder: its language, its place and
/// size, and the car. A unit without a window remembers nothing.
class DeskMemory
{
public:
    /// The language that was chosen last, else the system's as far as the desk speaks it, else English.
    QString language() const;
    /// CAN-bus type of the unit that ran last; 0 for none.
    int canBusType() const;

    /// Gives \a desk the language and the place that are remembered.
    void restore(DeskWindow *desk) const;
    /// Remembers how \a desk is, for a unit of CAN-bus type \a type; 0 leaves the car as it was.
    void store(const DeskWindow *desk, int type);

private:
    DeskSettings m_settings;
};

#endif // DESKMEMORY_H
