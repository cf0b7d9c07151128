#ifndef KEYSOURCE_H
#define KEYSOURCE_H

#include "carkeys.h"

/// Keys of a car that are reported in the same way.
struct KeyGroup
{
    enum Kind {
        Keys,  ///< reported with their state: 0 released, 1 pressed, 2 held
        Knobs, ///< reported with a number of detents, each of which is a tap; always 0 as last argument
        Taps   ///< pressed and released at once, whatever their state
    };

    CarKeys::KeyTable keys;
    Kind kind;
    int last; ///< the framework's fourth argument for these keys
};

/// How a box says that a key came up, besides with that key's state 0.
struct KeyRelease
{
    enum Rule {
        ByState,      ///< not at all
        ByCode,       ///< with a code of its own
        ByCodeOrOther ///< with a code of its own, and with any other code than that of the held key
    };
    enum { LastOfKey = -1 };

    Rule rule;
    quint8 code;
    int last; ///< the framework's fourth argument for such a release, LastOfKey for that of the key's group
};

const KeyRelease ReleasedByState = {KeyRelease::ByState, 0, KeyRelease::LastOfKey};

/// The keys that one command of a box reports (a steering wheel, a panel, both): what the box says becomes
/// keys of the head unit. Its tables are static data and are borrowed.
class KeySource
{
public:
    template <int Groups>
    explicit KeySource(const KeyGroup (&groups)[Groups], const KeyRelease &release = ReleasedByState)
        : m_groups(groups)
        , m_count(Groups)
        , m_release(release)
        , m_currentKey(CarKeys::NoKey)
        , m_currentLast(0)
    {}

    /// Injects the key of \a code in the phase \a state (0 released, 1 pressed, 2 held), as \a state taps
    /// when it is a knob. An unknown code injects nothing but the release that it may mean.
    void report(quint8 code, quint8 state);

    /// The same for a box that tells no state but the code again and again while the key is down: a key that is not
    /// the current one is pressed, the current one held.
    void report(quint8 code);

    /// The key that was reported last, CarKeys::NoKey after an unknown code and after a release by code.
    unsigned int currentKey() const { return m_currentKey; }

private:
    const KeyGroup *find(quint8 code, unsigned int *key) const;
    void releaseCurrent();

    const KeyGroup *const m_groups;
    const int m_count;
    const KeyRelease m_release;
    unsigned int m_currentKey;
    int m_currentLast;
};

#endif // KEYSOURCE_H
