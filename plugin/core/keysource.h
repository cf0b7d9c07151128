#ifndef KEYSOURCE_H
#define KEYSOURCE_H

#include "carkeys.h"

/// One group of a car's keys (its steering wheel, its panel): what the box reports becomes keys of the head
/// unit. Its tables are static data and are borrowed.
class KeySource
{
public:
    /// \a last: the framework's fourth argument for these keys (knobs always say 0).
    template <int Keys>
    KeySource(const CarKeys::Mapping (&keys)[Keys], int last)
        : m_keys(CarKeys::keyTable(keys)), m_knobs(), m_last(last), m_currentKey(CarKeys::NoKey)
    {}

    /// \a knobs: codes that report a number of detents instead of a state.
    template <int Keys, int Knobs>
    KeySource(const CarKeys::Mapping (&keys)[Keys], const CarKeys::Mapping (&knobs)[Knobs], int last)
        : m_keys(CarKeys::keyTable(keys))
        , m_knobs(CarKeys::keyTable(knobs))
        , m_last(last)
        , m_currentKey(CarKeys::NoKey)
    {}

    /// Injects the key of \a code, once in the phase \a state (0 released, 1 pressed, 2 held), or as \a state
    /// taps when it is a knob. An unknown code injects nothing.
    void report(quint8 code, quint8 state);

    /// The key that was reported last, CarKeys::NoKey after an unknown code.
    unsigned int currentKey() const { return m_currentKey; }

private:
    const CarKeys::KeyTable m_keys;
    const CarKeys::KeyTable m_knobs;
    const int m_last;
    unsigned int m_currentKey;
};

#endif // KEYSOURCE_H
